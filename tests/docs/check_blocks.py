#!/usr/bin/env python3
"""Holds the code of the pages against the sources that the tests compile and run.

Each block of C++ or CMake bears the place it is taken from in the line above its fence,
<!-- file: region -->, and a source marks the region with [region] and [/region] in comments. Fails
on a block without a place, on one that differs, and on a region that no block shows. Pages may show
the same region."""
import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(sys.argv[1])
PAGES = ["docs/cpp.md", "README.md"]
SOURCES = ["tests/docs/cpp_page_test.cpp", "tests/consumer/main.cpp", "tests/consumer/CMakeLists.txt"]


def regions(path: str) -> dict[str, str]:
    found: dict[str, list[str]] = {}
    opened = None
    for number, line in enumerate((ROOT / path).read_text().splitlines(), 1):
        mark = re.fullmatch(r"\s*(?://|#) \[(/?)([\w-]+)\]", line)
        if mark and not mark[1]:
            if opened or mark[2] in found:
                sys.exit(f"{path}:{number}: region {mark[2]} within another, or a second one")
            opened = mark[2]
            found[opened] = []
        elif mark:
            if opened != mark[2]:
                sys.exit(f"{path}:{number}: region {mark[2]} ends and was not begun")
            opened = None
        elif opened:
            found[opened].append(line)
    if opened:
        sys.exit(f"{path}: region {opened} does not end")
    return {name: textwrap.dedent("\n".join(lines)).strip("\n") for name, lines in found.items()}


def main() -> int:
    known = {path: regions(path) for path in SOURCES}
    unused = {(path, name) for path in known for name in known[path]}
    failures = []
    for page in PAGES:
        failures += check(page, known, unused)
    failures += [f"{path}: no block shows region {name}" for path, name in sorted(unused)]
    print("\n".join(failures) or f"{sum(map(len, known.values()))} blocks agree")
    return 1 if failures else 0


def check(page: str, known: dict[str, dict[str, str]], unused: set[tuple[str, str]]) -> list[str]:
    failures = []
    lines = (ROOT / page).read_text().splitlines()
    at = 0
    while at < len(lines):
        if not re.fullmatch(r"```(cpp|cmake)", lines[at]):
            at += 1
            continue
        end = lines.index("```", at + 1)
        place = re.fullmatch(r"<!-- (\S+): ([\w-]+) -->", lines[at - 1])
        where = f"{page}:{at + 1}"
        if not place or place[2] not in known.get(place[1], {}):
            failures.append(f"{where}: the line above the block names no region of {SOURCES}")
        else:
            unused.discard((place[1], place[2]))
            if "\n".join(lines[at + 1:end]) != known[place[1]][place[2]]:
                failures.append(f"{where}: differs from region {place[2]} of {place[1]}, which is\n"
                                + known[place[1]][place[2]])
        at = end + 1
    return failures


sys.exit(main())
