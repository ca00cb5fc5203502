"""Ctrl-C in the midst of long calls: they end, and the document is as it was."""
import os
import signal
import subprocess
import sys
import threading
import time

import pytest

import nga

SIZE = 20000
pytestmark = pytest.mark.skipif(threading.current_thread() is not threading.main_thread(),
                                reason="signals are handled by the main thread")


def text_of(size, number=1.0):
    entries = ", ".join(f'"m{i}": {{"elastic": {{"table": [[{number}, 0.3]]}}, '
                        f'"density": {{"table": [[{number}]]}}}}' for i in range(size))
    return f'{{"materials": {{{entries}}}}}'


@pytest.fixture(scope="module")
def large():
    document = nga.new("large")
    document.import_json(text_of(SIZE))
    return document


def interrupted(call, function):
    """Sends SIGINT while the call is at work, again and again until it meets the named function of
    the extension within; gives how often that took."""
    events = []

    def profile(frame, event, argument):
        if event.startswith("c_") and getattr(argument, "__name__", "") == function:
            events.append(event)

    start = time.perf_counter()
    call()
    lasted = time.perf_counter() - start
    former = signal.signal(signal.SIGINT, signal.default_int_handler)
    try:
        for attempt in range(40):
            delay = lasted * (0.2 + 0.6 * (attempt % 7) / 7)
            events.clear()
            killer = None
            try:
                command = f"sleep {delay:.4f}; kill -INT {os.getpid()}"
                killer = subprocess.Popen(["sh", "-c", command])
                sys.setprofile(profile)
                call()
                sys.setprofile(None)
                killer.wait()
                time.sleep(0.01)
            except KeyboardInterrupt:
                sys.setprofile(None)
            finally:
                sys.setprofile(None)
                if killer is not None:
                    killer.wait()
            if events and events[-1] == "c_exception":
                return attempt + 1
    finally:
        signal.signal(signal.SIGINT, former)
    pytest.fail(f"no signal ended {function}")


def test_a_check_is_interrupted(large):
    interrupted(large.findings, "findings")
    interrupted(lambda: large.findings(deep=True), "findings")


def test_a_difference_is_interrupted(large):
    other = nga.new("other")
    other.import_json(text_of(SIZE, 2.0))
    interrupted(lambda: large.diff(other), "diff")


def test_a_text_is_interrupted(large):
    interrupted(large.to_json, "export_json")


def test_an_import_is_interrupted_and_changes_nothing(large):
    document = nga.new("importing")
    document.Material(name="steel", description="stays")
    before = document.to_json()
    steps = document.undo_count
    text = large.to_json()

    def bring_in():
        # The signal may come behind the import, before it is undone.
        while document.undo_count > steps:
            document.undo()
        document.import_json(text)

    interrupted(bring_in, "import_json")
    assert document.to_json() == before and document.undo_count == steps
    document.import_json(text)
    assert len(document.materials) == SIZE + 1


def test_a_save_is_interrupted_and_the_file_stays(large, tmp_path):
    document = nga.from_dict("saving", large.to_dict())
    file = tmp_path / "a.nga"
    document.save_as(file)
    saved = []

    def save():
        saved[:] = [file.read_bytes()]
        steel = document.materials["m0"]
        steel.description += "."
        document.save()

    interrupted(save, "save")
    # The last attempt ended within: the file is as it was before, and beside it is nothing.
    assert file.read_bytes() == saved[0]
    assert list(tmp_path.iterdir()) == [file]
    dots = document.materials["m0"].description
    assert nga.open(file).materials["m0"].description == dots[1:]
    document.save()
    assert nga.open(file).to_json() == document.to_json()
    interrupted(lambda: document.save_as(tmp_path / "b.nga"), "save_as")
    assert nga.open(file).to_json() == document.to_json()


def test_opening_is_interrupted(large, tmp_path):
    document = nga.from_dict("opening", large.to_dict())
    document.save_as(tmp_path / "a.nga")
    (tmp_path / "a.json").write_text(document.to_json())
    interrupted(lambda: nga.open(tmp_path / "a.nga"), "open")
    interrupted(lambda: nga.open(tmp_path / "a.json"), "from_json")


def test_a_handler_of_a_signal_finds_the_document_closed(large):
    """It runs in the midst of a walk, which must not lose its ground."""
    elsewhere = nga.new("elsewhere")
    refused = []

    def handler(number, frame):
        try:
            large.undo_count
        except RuntimeError:
            pass
        else:
            # It came before the call or behind it.
            return
        for use in (lambda: large.materials["m0"].description,
                    lambda: large.materials.rename("m0", "x"), lambda: large.undo()):
            try:
                use()
            except RuntimeError as failure:
                refused.append(str(failure))
        # Another document is open to it.
        assert nga.documents["elsewhere"] is elsewhere and nga.documents["large"] is large
        elsewhere.Material(name=f"steel {len(elsewhere.materials)}")

    former = signal.signal(signal.SIGALRM, handler)
    try:
        start = time.perf_counter()
        large.findings()
        lasted = time.perf_counter() - start
        for attempt in range(40):
            refused.clear()
            signal.setitimer(signal.ITIMER_REAL, max(lasted * (0.2 + 0.015 * attempt), 1e-4))
            assert large.findings() == []
            if refused:
                break
        signal.setitimer(signal.ITIMER_REAL, 0)
    finally:
        signal.signal(signal.SIGALRM, former)
    assert len(refused) == 3 and all("in the midst of a call" in text for text in refused)
    assert len(elsewhere.materials) > 0
    assert large.materials["m0"].description == ""


def test_a_handler_may_change_an_object_of_no_document_that_is_walked():
    """It walks a share, so the handler can do as it likes."""
    def tests(number):
        return [nga.UniaxialTestData(table=((number, 2.0),)) for _ in range(3000)]

    free = nga.MullinsEffect(uniaxialTests=tests(1.0), validate=False)
    changed = []

    def handler(number, frame):
        free.uniaxialTests = []
        free.uniaxialTests = tests(2.0)
        changed.append(1)

    former = signal.signal(signal.SIGALRM, handler)
    try:
        for attempt in range(30):
            signal.setitimer(signal.ITIMER_REAL, 0.0005 + 0.0002 * attempt)
            content = free.to_dict()
            free.findings(deep=True)
            assert len({one["table"][0][0] for one in content["uniaxialTests"]}) == 1
        signal.setitimer(signal.ITIMER_REAL, 0)
        assert changed
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, former)


@pytest.fixture
def stop_behind():
    """Raises KeyboardInterrupt as soon as a function of the extension has returned, as a signal
    can, before its result has a name."""
    def arm(function):
        def profile(frame, event, argument):
            if event == "c_return" and getattr(argument, "__name__", "") == function:
                sys.setprofile(None)
                raise KeyboardInterrupt
        sys.setprofile(profile)

    yield arm
    sys.setprofile(None)


def test_an_edit_whose_opening_is_interrupted_blocks_nothing(doc, stop_behind):
    steel = doc.Material(name="steel")
    with pytest.raises(KeyboardInterrupt):
        stop_behind("open_edit")
        with doc.edit("never begun"):
            steel.description = "a"
    assert steel.description == "" and doc.undo() and doc.redo()


def test_an_edit_whose_end_is_interrupted_is_done_whole(doc, stop_behind):
    steel = doc.Material(name="steel")
    with pytest.raises(KeyboardInterrupt):
        with doc.edit("done"):
            steel.description = "a"
            stop_behind("close_edit")
    assert steel.description == "a" and doc.undo_count == 2
    assert doc.undo() and steel.description == ""


def test_a_script_is_right_behind_a_save_that_a_signal_ended(doc, tmp_path, stop_behind):
    doc.Material(name="steel")
    doc.save_as(tmp_path / "a.nga")
    opened = nga.open(tmp_path / "a.nga")
    opened.Material(name="iron")
    with pytest.raises(KeyboardInterrupt):
        stop_behind("save")
        opened.save()
    assert "iron" in nga.open(tmp_path / "a.nga").materials
    space = {}
    exec(opened.journal.script, space)
    assert space["doc"].to_json() == opened.to_json()
