#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Every installed program and library is hardened, and needs no library but what its work needs.
# tests/privilege/hardened.sh BUILD FORTIFY-LEVEL
set -uo pipefail
# shellcheck source=tests/privilege/elf_checks.sh
. "$(dirname "${BASH_SOURCE[0]}")/elf_checks.sh"

build=$1 level=$2
failures=0

# $1 the file's name, then what check_elf takes behind the file.
expect_hardened() {
  local name=$1 faults
  shift
  faults=$(check_elf "$build/$name" "$@" 2>&1)
  if [ -n "$faults" ]; then
    printf '%s: %s\n' "$name" "$faults"
    failures=$((failures + 1))
  fi
}

expect_hardened rastertoprinter program libTQR7mervale.so libcups.so libcupsimage.so
expect_hardened commandtoprinter program libTQR7mervale.so libcups.so libcupsimage.so
expect_hardened phototopage program libcups.so libcupsimage.so libjpeg.so libpng16.so liblcms2.so \
  libzimg.so
expect_hardened rastertopage program libcups.so libcupsimage.so
expect_hardened libTQR7mervale.so.1 library liblcms2.so
expect_hardened tqr7-printer-sim program liblcms2.so libpng16.so
expect_hardened tqr7 program libcups.so libjpeg.so libpng16.so liblcms2.so libzimg.so libarchive.so

# tqr7_core is the tests' own copy, whose calls of the C library a test takes over; what is installed
# links tqr7_core_installed. Floors and what is measured beside them are installed nowhere.
unchecked=$(grep '"command":' "$build/compile_commands.json" |
  grep -vE '/tqr7_core\.dir/|bench/speed/' | grep -vc -- "-D_FORTIFY_SOURCE=$level")
if [ "$unchecked" -ne 0 ]; then
  echo "$unchecked files are compiled without -D_FORTIFY_SOURCE=$level"
  failures=$((failures + 1))
fi
[ "$failures" -eq 0 ]
