#!/usr/bin/env python3
"""Runs the commands that the pages show, and compares what they print with what is shown.

Usage: check_readme.py SOURCES TOOL. Each page has a scratch folder with a copy of examples/, in
which its commands run in the order of the page:

- in a block of ```console, a line that begins with "$ " is a command for bash, and the lines up to
  the next one are its output: that on the standard output, then that on the standard error;
- a line "..." of the output stands for any number of lines;
- $? of a command is the exit code of the one before;
- a block under <!-- file: NAME --> is put into the scratch folder as NAME.

Fails on output that differs, on a command of the tool outside such a block, and on a page without
commands. With --update as a third argument, what the tool prints takes the place of what is shown,
but for outputs with "...", which stay as they are.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(sys.argv[1]).resolve()
TOOL = pathlib.Path(sys.argv[2]).resolve()
UPDATE = sys.argv[3:] == ["--update"]
PAGES = ["README.md", "docs/analysts.md", "docs/pipelines.md"]


def environment() -> dict[str, str]:
    kept = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    return kept | {"PATH": f"{TOOL.parent}:{os.environ['PATH']}", "LC_ALL": "C"}


class Scratch:
    def __init__(self, folder: str):
        self.folder = pathlib.Path(folder)
        self.code = 0
        shutil.copytree(ROOT / "examples", self.folder / "examples")

    def run(self, command: str) -> list[str]:
        # Separate pipes: in one, the order of the two would depend on buffers.
        done = subprocess.run(["bash", "-c", f"(exit {self.code}); {command}"], cwd=self.folder,
                              env=environment(), stdin=subprocess.DEVNULL, capture_output=True,
                              timeout=120)
        self.code = done.returncode
        return (done.stdout + done.stderr).decode(errors="backslashreplace").splitlines()


def fits(shown: list[str], printed: list[str]) -> bool:
    pattern = "".join(r"(?:[^\n]*\n)*" if line == "..." else re.escape(line + "\n")
                      for line in shown)
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


def blocks(lines: list[str]):
    """Fence line, first and end line of each block."""
    at = 0
    while at < len(lines):
        if not lines[at].startswith("```"):
            at += 1
            continue
        end = lines.index("```", at + 1)
        yield at, at + 1, end
        at = end + 1


def check(page: str) -> list[str]:
    path = ROOT / page
    lines = path.read_text().splitlines()
    failures = []
    shown_commands = set()
    result = list(lines)
    shift = 0
    with tempfile.TemporaryDirectory() as folder:
        scratch = Scratch(folder)
        for fence, first, end in blocks(lines):
            named = re.fullmatch(r"<!-- file: (\S+) -->", lines[fence - 1])
            if named:
                (scratch.folder / named[1]).write_text("\n".join(lines[first:end]) + "\n")
            if lines[fence] != "```console":
                continue
            at = first
            while at < end:
                if not lines[at].startswith("$ "):
                    failures.append(f"{page}:{at + 1}: output before the first command")
                    break
                after = at + 1
                while after < end and not lines[after].startswith("$ "):
                    after += 1
                shown = lines[at + 1:after]
                printed = scratch.run(lines[at][2:])
                shown_commands.add(at)
                if UPDATE and "..." not in shown:
                    result[at + 1 + shift:after + shift] = printed
                    shift += len(printed) - len(shown)
                elif not fits(shown, printed):
                    failures.append(f"{page}:{at + 1}: {lines[at]}\nprints\n" + "\n".join(printed)
                                    + "\nand the page shows\n" + "\n".join(shown))
                at = after
    if UPDATE:
        path.write_text("\n".join(result) + "\n")
    failures += [f"{page}:{number + 1}: a command outside a block of console"
                 for number, line in enumerate(lines)
                 if line.startswith("$ nga ") and number not in shown_commands]
    if not shown_commands:
        failures.append(f"{page}: shows no command")
    print(f"{page}: {len(shown_commands)} commands")
    return failures


def main() -> int:
    failures = [failure for page in PAGES for failure in check(page)]
    print("\n\n".join(failures))
    return 1 if failures else 0


sys.exit(main())
