#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Holds the table of docs/faults.md against what the fault tests have seen, and fails when they differ.
#
#   fault_table.sh           compares; the rows are those of the last run of the fault tests
#   fault_table.sh --write   writes docs/faults.md anew
#
# Needs TQR7_BUILD, the build folder.
set -euo pipefail

page=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/docs/faults.md
rows=("$TQR7_BUILD"/tests/faults/{1-answers,2-exchanges,3-connection}.md)
made=$(mktemp)
trap 'rm -f "$made"' EXIT

# The page with the rows between its marks.
awk -v files="${rows[*]}" '
  /^<!-- rows end -->$/ { skipping = 0 }
  !skipping { print }
  /^<!-- rows -->$/ {
    skipping = 1
    print ""
    print "| What goes wrong | The job | The queue | Its reasons | The word in the log | `tqr7 status` " \
          "| Sheets out | What brings the job out | Sheets in the end |"
    print "|---|---|---|---|---|---|---|---|---|"
    count = split(files, name, " ")
    for (i = 1; i <= count; ++i) {
      while ((got = (getline line < name[i])) > 0) print line
      if (got < 0) { print "fault_table: no rows: " name[i] > "/dev/stderr"; exit 1 }
    }
    print ""
  }' "$page" >"$made"

if [ "${1:-}" = --write ]; then
  cat "$made" >"$page"
elif ! diff -u "$page" "$made"; then
  echo "docs/faults.md is not what the tests have seen. If the new rows are right:"
  echo "  TQR7_BUILD=$TQR7_BUILD tests/system/fault_table.sh --write"
  exit 1
fi
