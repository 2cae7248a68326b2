#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Checks that the tests in the last column of a page's tables exist: a name is a suite, or the beginning of
# one test's name. named_tests.sh BUILD-FOLDER PAGE
set -euo pipefail

build=$1 page=$2
tests=$(ctest --test-dir "$build" -N | sed -n 's/^ *Test *#[0-9]*: //p')

# The last column of each row, its code words that look like a test's name.
# shellcheck disable=SC2016  # the page's own quotes
named=$(sed -n 's/^|.*|\([^|]*\)|$/\1/p' "$page" | grep -oE '`[A-Z][A-Za-z0-9]+(\.[A-Za-z0-9]+)?`' |
  tr -d '`' | sort -u)

count=0
missing=()
while read -r name; do
  count=$((count + 1))
  # A suite with parameters has a word and a stroke before its name.
  case $name in
    *.*) pattern="(^|/)${name/./\\.}" ;;
    *) pattern="(^|/)$name\\." ;;
  esac
  grep -qE "$pattern" <<<"$tests" || missing+=("$name")
done <<<"$named"

if [ ${#missing[@]} -gt 0 ]; then
  echo "$page names tests that do not exist: ${missing[*]}" >&2
  exit 1
fi
echo "$count names, all of them tests"
[ "$count" -gt 20 ]
