#!/usr/bin/env python3
"""What the Python module costs, as ratios against named peers in the same run; nothing asserts a
time. Run by hand on a quiet machine, with the build's module in the path:

    PYTHONPATH=build/release/python /usr/bin/python3 bench/bench_python.py
"""
import statistics
import subprocess
import sys
import time

ROUNDS = 15


def measured(work, count):
    """Seconds for one of count calls."""
    start = time.perf_counter()
    for _ in range(count):
        work()
    return (time.perf_counter() - start) / count


def compare(name, work, peer_name, peer, count, limit, peer_count=None):
    """The median of the ratios of interleaved rounds."""
    ours, theirs, ratios = [], [], []
    for _ in range(ROUNDS):
        ours.append(measured(work, count))
        theirs.append(measured(peer, peer_count or count))
        ratios.append(ours[-1] / theirs[-1])
    report(name, statistics.median(ours), peer_name, statistics.median(theirs),
           statistics.median(ratios), limit)


def report(name, ours, peer_name, theirs, ratio, limit):
    print(f"{name:42} {ours * 1e6:10.2f} us  {peer_name:44} {theirs * 1e6:10.2f} us  "
          f"{ratio:6.2f} (at most {limit})")


def imports():
    def load(module):
        start = time.perf_counter()
        subprocess.run([sys.executable, "-c", f"import {module}"], check=True)
        return time.perf_counter() - start

    def alone():
        start = time.perf_counter()
        subprocess.run([sys.executable, "-c", "pass"], check=True)
        return time.perf_counter() - start

    rounds = [(load("nga"), load("numpy"), alone()) for _ in range(ROUNDS)]
    nga, numpy, empty = (statistics.median(column) for column in zip(*rounds))
    report("import nga", nga - empty, "import numpy", numpy - empty,
           (nga - empty) / (numpy - empty), 1)


class Plain:
    """A property that keeps what it replaced, in a list."""

    def __init__(self):
        self._value = None
        self._changes = []

    @property
    def value(self):
        return self._value

    @value.setter
    def value(self, value):
        self._changes.append(("value", self._value, value))
        self._value = value


def document_of(nga, size):
    document = nga.new(f"of {size}")
    text = ", ".join(f'"material-{number}": {{"density": {{"table": [[{number}.5]]}}, "elastic": '
                     f'{{"table": [[{number}.0, 0.3]]}}}}' for number in range(size))
    return nga.from_dict(document.name, __import__("json").loads(f'{{"materials": {{{text}}}}}'))


def main():
    imports()
    import nga
    import numpy

    for size in (1, 1000):
        document = document_of(nga, size)
        elastic = document.materials["material-0"].elastic
        # Turned around by each call, since an assignment that changes nothing writes nothing.
        values = [(nga.LAMINA, 3, True), (nga.TRACTION, 4, False)]

        def attribute():
            values.reverse()
            elastic.type, elastic.dependencies, elastic.noTension = values[0]

        plain = Plain()

        def setter():
            values.reverse()
            plain.value, plain.value, plain.value = values[0]

        compare(f"set a field, of {size} materials (3)", attribute, "a property that appends (3)",
                setter, 2000, 20)

    table = numpy.arange(100.0).reshape(20, 5)
    elastic.table = table
    cells = table.tobytes()
    compare("read a table of 20 by 5", lambda: elastic.table, "numpy.frombuffer and reshape",
            lambda: numpy.frombuffer(cells).reshape(20, 5), 5000, 5)
    compare("read a literal", lambda: elastic.type, "a property", lambda: plain.value, 20000, "-")

    empty, large = nga.new("empty"), document_of(nga, 100_000)
    compare("snapshot of 100,000 materials", large.snapshot, "snapshot of an empty document",
            empty.snapshot, 2000, 10)

    small = document_of(nga, 100)

    def edited(document, name):
        before = document.snapshot()
        document.materials[name].elastic.dependencies = 4
        assert len(document.diff(before)) == 1
        return lambda: document.diff(before)

    compare("diff after one edit of 100,000", edited(large, "material-77777"),
            "diff after one edit of 100", edited(small, "material-77"), 500, 3)


main()
