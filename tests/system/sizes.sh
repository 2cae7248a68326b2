#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Each paper size arrives with its sheet, its image and their place, borders white.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# Name, sheet, image, place of the image: dots. A page of two that are joined is no sheet.
sizes=$("$tests/../../scripts/papers" | awk '!$11 { print $1, $2, $3, $4, $5, $6, $7 }')

jobs=()
while read -r name _ _ width height _; do
  add_printer "$name" --device-values
  picture "$work/$name.png" "$width" "$height"
  print_job "$name" "${plain[@]}" -o "PageSize=$name" -o print-scaling=fill "$work/$name.png"
  jobs+=("$JOB")
done <<<"$sizes"

for job in "${jobs[@]}"; do
  expect_completed "$job"
done

while read -r name sheet_width sheet_height width height left top; do
  read -ra dots <<<"$(quarters_of "$left" "$top" "$width" "$height" c85a50 50965a 465a96 d2b45a)"
  if [ "$left" -gt 0 ]; then
    # The border's inmost dots, and the image's outmost but for what scaling may leave of an edge.
    dots+=(83 300 ffffff 300 73 ffffff 88 78 c85a50
      $((left + width)) 300 ffffff 300 $((top + height)) ffffff
      $((left + width - 5)) $((top + height - 5)) d2b45a)
  fi
  expect_sheet "$work/$name/sheet-0001.png" "$sheet_width" "$sheet_height" "${dots[@]}"
done <<<"$sizes"

expect_no_protocol_errors
finish
