# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Shell functions that make a fresh Debian 12 ready: packages, and a build of this tree. Source it.

# shellcheck disable=SC2034  # used by those who source this
# What the build needs, then what printing through a scheduler needs.
TQR7_PACKAGES=(
  g++ cmake ninja-build libcups2-dev libcupsimage2-dev libpng-dev libjpeg-dev libcli11-dev
  liblcms2-dev libhwy-dev libzimg-dev
  nlohmann-json3-dev libarchive-dev
  libgtest-dev libgmock-dev cups-ppdc gettext locales python3 strace tzdata valgrind
  cups cups-client cups-filters cups-ipp-utils ghostscript
)

# The folders that the filter is made of. What they hold is watched most closely: all of it is
# covered, checked by clang-tidy for every change, and read by cppcheck.
# shellcheck disable=SC2034
TQR7_FILTER_FOLDERS=(filter protocol status job image diag)

# What the fuzz targets need besides.
# shellcheck disable=SC2034
TQR7_FUZZ_PACKAGES=(clang libclang-rt-14-dev)

# What bench/run and bench/run-colour need besides.
# shellcheck disable=SC2034
TQR7_BENCH_PACKAGES=(gnuplot-nox libbenchmark-dev libjpeg-turbo-progs)

# Prints those of the named packages that are not installed.
missing_packages() {
  local installed package
  # One question for all of them: it takes as long as for one.
  installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' "$@" 2>/dev/null)"
  for package in "$@"; do
    case $installed in
      *" installed=$package "*) ;;
      *) printf '%s\n' "$package" ;;
    esac
  done
}

# Installs those of the named packages that are missing. Elsewhere than on Debian it leaves the
# choice of packages to the person, and the build says what it cannot find.
install_packages() {
  command -v dpkg-query >/dev/null && command -v apt-get >/dev/null || return 0
  local missing as_root=()
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  as_root+=(env DEBIAN_FRONTEND=noninteractive)
  echo "Installing: ${missing[*]}"
  local install=("${as_root[@]}" apt-get install -y --no-install-recommends "${missing[@]}")
  # A fresh system has no lists of packages yet, or stale ones.
  "${install[@]}" >/dev/null 2>&1 || { "${as_root[@]}" apt-get update && "${install[@]}"; }
}

# Builds the preset named $1 in the source folder $2: all of it, or the targets named behind. What is
# configured looks by itself whether it must be again, but for the presets.
build_preset() {
  local preset=$1 source=$2
  shift 2
  (cd "$source" &&
    { [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset"; } &&
    cmake --build --preset "$preset" --parallel ${1:+--target "$@"})
}

# Makes ready what a person's script runs: packages, and the release targets named behind the source
# folder $1 and the name $2 of the log, which alone has the compiler's words. Says what is missing.
build_quietly() {
  local source=$1 log="$1/build/$2"
  shift 2
  if ! install_packages "${TQR7_PACKAGES[@]}"; then
    echo "${0##*/}: packages are missing" >&2
    return 1
  fi
  echo "Building (the first time takes a minute or two) ..."
  mkdir -p "$source/build"
  if ! build_preset release "$source" "$@" >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "${0##*/}: the build failed; all it said is in $log" >&2
    return 1
  fi
}
