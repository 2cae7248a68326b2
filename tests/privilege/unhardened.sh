#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A program that lacks one piece of the hardening is found out, for that piece and no other.
# tests/privilege/unhardened.sh C++-COMPILER
set -uo pipefail
# shellcheck source=tests/privilege/elf_checks.sh
. "$(dirname "${BASH_SOURCE[0]}")/elf_checks.sh"

compiler=$1
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

# A copy that the compiler cannot see the end of, into an array on the stack.
cat >"$work/program.cpp" <<'CODE'
#include <cstring>
int main(int argc, char* argv[]) {
  char text[64];
  std::strcpy(text, argv[argc - 1]);
  return text[0];
}
CODE

# $1 what the checks must say, $2 … the flags that take a piece away.
expect_found() {
  local fault=$1 found
  shift
  if ! "$compiler" -O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE -pie \
    -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack "$@" "$work/program.cpp" -o "$work/program"; then
    echo "a program with $* cannot be built"
    failures=$((failures + 1))
    return
  fi
  found=$(check_elf "$work/program" program 2>&1)
  if [ "$found" != "$fault" ]; then
    printf 'with %s: expected "%s", found "%s"\n' "${*:-every piece}" "$fault" "$found"
    failures=$((failures + 1))
  fi
}

expect_found ''
expect_found 'its code is at a fixed place (no PIE)' -fno-PIE -no-pie
expect_found "the loader's tables stay writable (no RELRO)" -Wl,-z,norelro
expect_found 'functions are looked up as they are called (no BIND_NOW)' -Wl,-z,lazy
expect_found 'its stack runs code (GNU_STACK with E)' -Wl,-z,execstack
expect_found 'its stack is not guarded (no protector)' -fno-stack-protector
expect_found 'its copies are not checked (no FORTIFY_SOURCE)' -U_FORTIFY_SOURCE
expect_found 'it looks for libraries elsewhere than beside itself: Library runpath: [/tmp]' \
  -Wl,--enable-new-dtags -Wl,-rpath,/tmp
expect_found 'it needs the library libdl.so.2' -Wl,--no-as-needed -l:libdl.so.2 -Wl,--as-needed
[ "$failures" -eq 0 ]
