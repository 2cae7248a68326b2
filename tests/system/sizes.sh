#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Each of the 13 paper sizes arrives with its sheet, its image and their place, borders white.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# Name, sheet, image, place of the image: dots.
sizes='
RQ_9x13        1550 1082  1550 1082   0  0
RQ_10x15       1852 1232  1852 1232   0  0
RQ_13x18       1550 2134  1550 2134   0  0
RQ_15x20       1852 2434  1852 2434   0  0
RQ_5x15        1852  631  1852  631   0  0
RQ_15x15       1852 1833  1852 1833   0  0
RQ_13x13       1550 1533  1550 1533   0  0
RQ_5x15x2_1    1852 1232  1852 1232   0  0
RQ_9x13_WB     1550 1082  1382  934  84 74
RQ_10x15_WB    1852 1232  1684 1084  84 74
RQ_13x18_WB    1550 2134  1382 1986  84 74
RQ_15x20_WB    1852 2434  1684 2286  84 74
'

jobs=()
while read -r name _ _ width height _; do
  [ -n "$name" ] || continue
  add_printer "$name" --device-values
  picture "$work/$name.png" "$width" "$height"
  print_job "$name" "${plain[@]}" -o "PageSize=$name" -o print-scaling=fill "$work/$name.png"
  jobs+=("$JOB")
done <<<"$sizes"

for job in "${jobs[@]}"; do
  expect_completed "$job"
done

while read -r name sheet_width sheet_height width height left top; do
  [ -n "$name" ] || continue
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
