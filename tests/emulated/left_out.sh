#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Prints how many tests each row of left_out.txt leaves out of an emulated run, and why. A row that
# names no test is an error. tests/emulated/left_out.sh BUILD-FOLDER EMULATOR SYSROOT
set -euo pipefail

build=$1 emulator=$2 sysroot=$3
total=0
while read -r program pattern reason; do
  case $program in '' | '#'*) continue ;; esac
  count=$("$emulator" -L "$sysroot" "$build/tests/$program" --gtest_list_tests \
    "--gtest_filter=$pattern" | grep -c '^  ') || true
  if [ "$count" -eq 0 ] || [ -z "$reason" ]; then
    echo "left_out.txt: $program has no test $pattern, or there is no reason" >&2
    exit 1
  fi
  printf '%4d  %s %s: %s\n' "$count" "$program" "$pattern" "$reason"
  total=$((total + count))
done <"$(dirname "${BASH_SOURCE[0]}")/left_out.txt"
echo "$total tests left out"
