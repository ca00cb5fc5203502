#!/usr/bin/env python3
"""Fails if a file includes a header of a floor above its own. The order of floors is the one list
below; a header in include/ stands on the floor of its prefix."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = [("platform/CoreUtils", 0), ("platform/BasicUtils", 1), ("platform/CaeUtils", 2),
           ("platform/RfmInterface", 3), ("platform/ROM", 4), ("platform/DiagnosticExtractor", 5),
           ("module", 6), ("host/store", 7), ("host/nga", 7), ("host/cli", 7), ("host/python", 7)]
PREFIXES = {"cow": 0, "cls": 1, "omu": 2, "mdl": 2, "ddr": 5}


def floor_of(path: pathlib.Path):
    relative = path.relative_to(ROOT).as_posix()
    if relative.startswith("include/"):
        return PREFIXES.get(path.name.split("_")[0])
    for folder, floor in FOLDERS:
        if relative.startswith(folder + "/"):
            return floor
    return None


def main() -> int:
    files = [p for top in ("include", "platform", "module", "host")
             for p in sorted((ROOT / top).rglob("*")) if p.suffix in (".h", ".cpp")]
    headers = {p.name: p for p in files if p.suffix == ".h"}
    bad = 0
    for path in files:
        own = floor_of(path)
        if own is None:
            print(f"{path.relative_to(ROOT)}: stands on no floor", file=sys.stderr)
            bad += 1
            continue
        for number, line in enumerate(path.read_text().splitlines(), 1):
            match = re.match(r'\s*#include "([^"]+)"', line)
            if not match:
                continue
            header = headers.get(match.group(1).split("/")[-1])
            if header is not None and floor_of(header) > own:
                print(f"{path.relative_to(ROOT)}:{number}: floor {own} includes "
                      f"{header.relative_to(ROOT)} of floor {floor_of(header)}", file=sys.stderr)
                bad += 1
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
