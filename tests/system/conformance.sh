#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs the IPP test suites of CUPS against a shared queue, and holds the tables of docs/driverless.md
# against what they say: another failure is one, and a failure that is gone is one too.
#
#   conformance.sh           compares
#   conformance.sh --write   writes the tables of docs/driverless.md anew
# A queue as the page tells to set one up: the sizes that lie in the printer are named to clients.
# shellcheck disable=SC2034  # system_test.sh uses it
SCHEDULER_DIRECTIVES='ReadyPaperSizes RQ_10x15,RQ_10x15_WB'
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

page=$(cd "$tests/../.." && pwd)/docs/driverless.md
suites=(ipp-1.1 ipp-2.0 ipp-everywhere)

# The suites send documents that lie beside them, and no Debian package has those. The last suite ends
# in print jobs of a collection of samples: ipp_documents.sh prints such rasters instead.
copy_suites() {
  local suite
  for suite in "${suites[@]}"; do
    awk '/^# Test printing all sample documents/ { exit } { print }' \
      "/usr/share/cups/ipptool/$suite.test" >"$work/$suite.test" || exit 1
  done
  picture "$work/document-a4.pdf" 2480 3508
  picture "$work/document-letter.pdf" 2550 3300
  picture "$work/color.jpg" 1200 800
  cp "$work/color.jpg" "$work/gray.jpg"
  printf '%%!PS\n0.5 setgray 0 0 400 200 rectfill showpage\n' >"$work/document-a4.ps"
  cp "$work/document-a4.ps" "$work/document-letter.ps"
}

# All tests of a suite, each with what it expected and did not find.
run_suite() {
  (cd "$work" && ipptool -t -I -f color.jpg "$(queue_address "$1")" "$1.test") >"$work/$1.said" 2>&1
  # Failures are judged by the tables; here it must have come to its end.
  if grep -q '^ipptool:' "$work/$1.said" || ! grep -q '\[PASS\]$' "$work/$1.said"; then
    fail "$1.test did not run: $(grep '^ipptool:' "$work/$1.said")"
  fi
}

# The tests that ended with the word given.
count_of() {
  grep -c "\[$2\]\$" "$work/$1.said"
}

suite_rows() {
  local suite
  echo '| Suite | Passed | Failed | Skipped |'
  echo '|---|---|---|---|'
  for suite in "${suites[@]}"; do
    echo "| \`$suite.test\` | $(count_of "$suite" PASS) | $(count_of "$suite" FAIL) |" \
      "$(count_of "$suite" SKIP) |"
  done
}

# One line "test, tab, attribute, and the value when one is named" for each expectation not met.
unmet_expectations() {
  awk '
    /\[FAIL\]$/ { test = $0; sub(/^ */, "", test); sub(/ *\[FAIL\]$/, "", test) }
    / EXPECTED: / {
      sub(/^ *EXPECTED: /, "")
      # A pattern of media names is half a page long.
      sub(/ WITH-(ALL-VALUES|VALUE) \/.*/, " of a standard form")
      sub(/ WITH-VALUE /, " with ")
      print test "\t" $0
    }' "$1"
}

cause_of() {
  case $1 in
    'media-default of a standard form' | 'media-ready of a standard form' | \
      'media-supported of a standard form')
      echo "the scheduler names a size by its dimensions, \`custom_156.8x104.31mm_156.8x104.31mm\`," \
        'and the standard has no point in the second part; the dimensions are the printer'\''s dots'
      ;;
    'operations-supported with "0x003c"' | identify-actions-*)
      echo 'the scheduler has no Identify-Printer' ;;
    'ipp-features-supported with "ipp-everywhere"')
      echo 'the scheduler names this feature for no queue' ;;
    media-size-supported) echo 'the scheduler only sends it to clients that ask for it by name' ;;
    preferred-attributes-supported | overrides-supported | print-content-optimize-* | \
      print-rendering-intent-*)
      echo 'the scheduler has no such attribute' ;;
    printer-supply | printer-supply-*)
      echo 'the printer does not report what is left of ribbon and paper' ;;
    pwg-raster-document-sheet-back) echo 'the scheduler only has it for printers that print on both sides' ;;
    *) echo 'NOT KNOWN' ;;
  esac
}

failure_rows() {
  local suite test expected
  echo '| Test | What it expects and does not find | Why |'
  echo '|---|---|---|'
  for suite in "${suites[@]}"; do
    unmet_expectations "$work/$suite.said"
  done | sort -u | while IFS=$'\t' read -r test expected; do
    echo "| $test | \`$expected\` | $(cause_of "$expected") |"
  done
}

# The page with the tables between its marks.
page_with_tables() {
  awk -v tables="$work/tables.md" '
    /^<!-- conformance end -->$/ { skipping = 0 }
    !skipping { print }
    /^<!-- conformance -->$/ {
      skipping = 1
      print ""
      while ((getline line < tables) > 0) print line
      print ""
    }' "$page"
}

# shellcheck disable=SC2317  # wait_until calls it
none_waiting() {
  [ -z "$(lpstat -W not-completed -o)" ]
}

copy_suites
runs=()
for suite in "${suites[@]}"; do
  add_printer "$suite"
  run_suite "$suite" &
  runs+=($!)
done
wait "${runs[@]}"
wait_until 'every job has ended' none_waiting
{ suite_rows && echo && failure_rows; } >"$work/tables.md"

page_with_tables >"$work/driverless.md"
if [ "${1:-}" = --write ]; then
  cp "$work/driverless.md" "$page"
elif ! diff -u "$page" "$work/driverless.md"; then
  fail "the tables of docs/driverless.md are not what the suites say; if the new ones are right," \
    "TQR7_BUILD=$TQR7_BUILD tests/system/conformance.sh --write"
fi
expect_equal 'expectations without a known cause' 0 "$(grep -c 'NOT KNOWN' "$work/tables.md")"

# What the suites sent has been printed, but for what they cancelled.
for suite in "${suites[@]}"; do
  [ -e "$work/$suite/sheet-0004.png" ] || fail "$suite printed fewer than four sheets"
done
expect_no_protocol_errors
finish
