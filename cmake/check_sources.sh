#!/usr/bin/env bash
# Checks that need no build: floors, headers that compile alone, the second compiler, the format.
set -uo pipefail
cd "$(dirname "$0")/.."
failed=0
say() { printf '== %s\n' "$*" >&2; }

say "Floors: no file includes from above its own"
python3 cmake/check_floors.py || failed=1

includes=()
for dir in include platform/* module module/*/com; do [ -d "$dir" ] && includes+=("-I$dir"); done
flags=(-std=c++20 -fsyntax-only -Wall -Wextra -Wconversion -Wno-sign-conversion -Woverloaded-virtual
  -Wno-invalid-offsetof -Werror "${includes[@]}")

say "Each public header compiles alone (g++)"
find include platform module -name '*.h' -not -path '*/impl/*' -not -path 'module/DDB_Units.h' | sort |
  xargs -P "$(nproc)" -I{} sh -c '
    header=$1; shift
    g++ -x c++ "$@" -include "$header" /dev/null || { echo "does not compile alone: $header" >&2; exit 255; }
  ' sh {} "${flags[@]}" || failed=1

say "The library under clang++"
find platform module -name '*.cpp' | sort |
  xargs -P "$(nproc)" -I{} clang++ "${flags[@]}" -Wno-unknown-warning-option {} || failed=1
if [ -d host ]; then
  say "The host under clang++"
  find host/store host/nga host/cli -name '*.cpp' | sort |
    xargs -r -P "$(nproc)" -I{} clang++ "${flags[@]}" -Wno-unknown-warning-option -Ihost/store -Ihost/nga {} || failed=1
fi
if [ -d host/python ] && [ -n "$(find /usr/include -maxdepth 1 -name 'python3.*')" ]; then
  say "The Python module under clang++"
  find host/python -name '*.cpp' | sort |
    xargs -r -P "$(nproc)" -I{} clang++ "${flags[@]}" -Wno-unknown-warning-option -Ihost/store -Ihost/nga \
      -isystem "$(find /usr/include -maxdepth 1 -name 'python3.*' | sort | tail -1)" {} || failed=1
fi

exit $failed
