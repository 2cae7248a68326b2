#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The docs' tables of papers have a row for each paper of job/paper_list.def, with its numbers, and the
# filter's manual page names each.
# tests/docs/paper_tables.sh [--write]; --write writes the tables anew
# shellcheck disable=SC2016  # awk's and Markdown's
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
write=${1:-}
failures=0

# Rows of a table. The program has a paper's numbers by name.
rows() {
  scripts/papers | LC_ALL=C awk '
    function by(width, height) { return width " × " height }
    function rounded(number) { return int(number + 0.5) }
    {
      choice = $1; sheet_width = $2; sheet_height = $3; width = $4; height = $5; left = $6; top = $7
      two_up = $8; joined = $11; photo = by($14, $15); inches = $16 == "-" ? "" : $16
    }
    { '"$1"' }' | sed 's/|  |/| |/g'
}

# table PAGE HEADER ROWS: the table of this header in docs/PAGE has these rows.
table() {
  local page=docs/$1 header=$2 rows=$3 made
  if ! grep -qFx "$header" "$page"; then
    echo "$page: no table \"$header\"" >&2
    failures=1
    return
  fi
  made=$(mktemp)
  HEADER=$header ROWS=$rows awk '
    $0 == ENVIRON["HEADER"] { print; getline; print; print ENVIRON["ROWS"]; inside = 1; next }
    inside && /^\|/ { next }
    { inside = 0; print }' "$page" >"$made"
  if [ "$write" = --write ]; then
    cp "$made" "$page"
  elif ! diff "$page" "$made"; then
    echo "$page (<) is not what the list of papers makes (>): tests/docs/paper_tables.sh --write" >&2
    failures=1
  fi
  rm "$made"
}

table printing-photos.md \
  '| PageSize | Photo in mm | in inches | Sheet in mm | Sheet in dots | Image in dots | |' "$(rows '
  note = left ? "white border" : choice == "RQ_10x15" ? "the default" : ""
  if (two_up) note = "two prints; the application lays out both on one page"
  if (joined) note = "two prints; the filter joins two pages"
  sub(/x/, " × ", inches)
  millimetres = by(rounded(sheet_width * 25.4 / 300), rounded(sheet_height * 25.4 / 300))
  row = "| `" choice "` | " photo " | " inches " | " millimetres " | " by(sheet_width, sheet_height)
  print row " | " by(width, height) (joined ? " a page" : "") " | " note " |"')"

table command-stream.md '| Paper | Sheet | Image | Image at | Two prints |' "$(rows '
  image = joined ? by(sheet_width, sheet_height) : by(width, height)
  row = "| " substr(choice, 4) " | " by(sheet_width, sheet_height) " | " image " | " left ", " top
  print row " | " (two_up ? "yes " : "") "|"')"

# Hundredths of a millimetre. The margins of two prints are 1.25 points beyond the sheet.
table driverless.md '| Width × height | Margins | `PageSize` |' "$(rows '
  dot = 2540 / 300
  beyond = two_up ? 1.25 * 2540 / 72 : 0
  size = by(rounded((width + 2 * left) * dot + 2 * beyond), rounded((height + 2 * top) * dot))
  margins = two_up ? rounded(beyond) " left and right" : "none"
  if (left) margins = rounded(left * dot) " left and right, " rounded(top * dot) " top and bottom"
  print "| " size " | " margins " | `" choice "`" (choice == "RQ_10x15" ? ", the default" : "") " |"')"

while read -r choice _; do
  if ! grep -qwF "$choice" docs/rastertoprinter.8; then
    echo "docs/rastertoprinter.8: $choice is not named" >&2
    failures=1
  fi
done < <(scripts/papers)
exit "$failures"
