# What ./run and ./test share: the packages they need, and the two steps of a build.

NGA_BUILD_PACKAGES=(g++ cmake ninja-build libsqlite3-dev nlohmann-json3-dev libcli11-dev sqlite3)
NGA_TEST_PACKAGES=(clang libgtest-dev libbenchmark-dev python3 python3-dev python3-venv python3-pip
  pybind11-dev python3-numpy python3-pytest mypy)

nga_say() { printf '%s\n' "== $*" >&2; }

# Installs the packages of a list that are missing, and says which.
nga_install() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  nga_say "Installing with apt-get: ${missing[*]}"
  local sudo=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { nga_say "Please install these packages first (no root, no sudo)."; exit 2; }
    sudo=(sudo)
  fi
  "${sudo[@]}" apt-get update -qq
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

nga_setup() {
  command -v dpkg-query >/dev/null || { nga_say "This script installs what it misses on Debian; elsewhere see README.md."; return 0; }
  nga_install "${NGA_BUILD_PACKAGES[@]}"
  [ "$1" = test ] && nga_install "${NGA_TEST_PACKAGES[@]}"
  return 0
}

# The tests need GoogleTest, so a plain ./run leaves them out.
nga_configure() {
  local preset=$1
  shift
  # Not what an earlier call of another script has left in the build.
  local options=(-DNGA_BUILD_PYTHON=AUTO)
  if ! dpkg-query -W -f='${Status}' libgtest-dev 2>/dev/null | grep -q 'ok installed'; then
    options+=(-DNGA_BUILD_TESTS=OFF)
  else
    options+=(-DNGA_BUILD_TESTS=ON)
  fi
  dpkg-query -W -f='${Status}' libbenchmark-dev 2>/dev/null | grep -q 'ok installed' || options+=(-DNGA_BUILD_BENCH=OFF)
  nga_say "Configuring build/$preset"
  cmake --preset "$preset" "${options[@]}" "$@" >/dev/null
}

nga_build() {
  nga_say "Building build/$1 ($2)"
  cmake --build "build/$1" --target "$2" >&2
}
