# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Shell functions that read from an ELF file whether it is hardened as cmake/hardening.cmake asks.
# Source it. Each prints what is wrong, and nothing where all is well. No "grep -q": with pipefail,
# whoever writes to a grep that has left makes the whole line fail.

# Prints the values of the dynamic section's entries named $1 in the file $2.
dynamic_entries() {
  readelf --wide --dynamic "$2" | sed -nE "s/^[^(]*\(($1)\) *//p"
}

# Prints the flags, such as "RW", of the program header $1 in the file $2.
segment_flags() {
  readelf --wide --segments "$2" | awk -v name="$1" '
    $1 == name { flags = ""; for (i = 7; i < NF; ++i) flags = flags $i; print flags }'
}

# Prints the names that the file $1 takes from its libraries.
imported_names() {
  readelf --wide --dyn-syms "$1" | awk '$7 == "UND" { sub(/@.*/, "", $8); print $8 }'
}

# $1 the file, $2 "program" or "library": a library is at a random place by its nature.
check_place() {
  [ "$2" = library ] || dynamic_entries FLAGS_1 "$1" | grep -w PIE >/dev/null ||
    echo "its code is at a fixed place (no PIE)"
}

check_loader_tables() {
  [ -n "$(segment_flags GNU_RELRO "$1")" ] || echo "the loader's tables stay writable (no RELRO)"
  dynamic_entries 'FLAGS|FLAGS_1' "$1" | grep -wE 'BIND_NOW|NOW' >/dev/null ||
    echo "functions are looked up as they are called (no BIND_NOW)"
}

check_stack() {
  case $(segment_flags GNU_STACK "$1") in
    RW) ;;
    '') echo "nothing says that its stack runs no code (no GNU_STACK)" ;;
    *) echo "its stack runs code (GNU_STACK with E)" ;;
  esac
  imported_names "$1" | grep -x __stack_chk_fail >/dev/null || echo "its stack is not guarded (no protector)"
}

# Which level of checks was asked for cannot be read from the file; the build's commands tell that.
check_copies() {
  local checked
  checked=$(imported_names "$1" | grep -c '_chk$')
  [ "$checked" -gt 0 ] || echo "its copies are not checked (no FORTIFY_SOURCE)"
}

check_search_path() {
  local path
  path=$(dynamic_entries 'RUNPATH|RPATH' "$1")
  case $path in
    '' | "Library runpath: [\$ORIGIN]") ;;
    *) echo "it looks for libraries elsewhere than beside itself: $path" ;;
  esac
}

# $1 the file, $2 … the libraries that it may need besides the C and C++ ones.
check_libraries() {
  local file=$1 library
  shift
  while read -r library; do
    case " $* libc.so libm.so libstdc++.so libgcc_s.so ld-linux-x86-64.so ld-linux-aarch64.so \
ld-linux-armhf.so " in
      *" ${library%.so*}.so "*) ;;
      *) echo "it needs the library $library" ;;
    esac
  done < <(dynamic_entries NEEDED "$file" | sed 's/.*\[\(.*\)\]/\1/')
}

# All of them: $1 the file, $2 "program" or "library", $3 … the libraries that it may need.
check_elf() {
  local file=$1 kind=$2
  shift 2
  check_place "$file" "$kind"
  check_loader_tables "$file"
  check_stack "$file"
  check_copies "$file"
  check_search_path "$file"
  check_libraries "$file" "$@"
}
