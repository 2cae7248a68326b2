#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Copies, files and pages become sheets; pages of the joined two-print size share one.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer copies --device-values
add_printer files --device-values
add_printer joined --device-values
add_printer joined_copies --device-values

picture "$work/photo.jpg" 1852 1232
picture "$work/second.pdf" 1852 1232
picture "$work/halves.pdf" 1852 616 2
picture "$work/half.png" 1852 616

print_job copies "${plain[@]}" -n 2 "$work/photo.jpg" && copies=$JOB
print_job files "${plain[@]}" "$work/photo.jpg" "$work/second.pdf" && files=$JOB
print_job joined "${plain[@]}" -o PageSize=RQ_5x15x2_2 "$work/halves.pdf" && joined=$JOB
print_job joined_copies "${plain[@]}" -o PageSize=RQ_5x15x2_2 -n 2 "$work/half.png" &&
  joined_copies=$JOB

for job in "$copies" "$files" "$joined" "$joined_copies"; do
  expect_completed "$job"
done

sheets_of() {
  (cd "$work/$1" && echo sheet-*.png)
}

expect_equal 'sheets of two copies' 'sheet-0001.png sheet-0002.png' "$(sheets_of copies)"
expect_equal 'sheets of two files' 'sheet-0001.png sheet-0002.png' "$(sheets_of files)"
expect_equal 'sheets of two joined pages' sheet-0001.png "$(sheets_of joined)"
expect_equal 'sheets of two joined copies' sheet-0001.png "$(sheets_of joined_copies)"

read -ra whole <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
for sheet in copies/sheet-0001 copies/sheet-0002 files/sheet-0001 files/sheet-0002; do
  expect_sheet "$work/$sheet.png" 1852 1232 "${whole[@]}"
done
# The second page takes the upper half, the first the lower.
read -ra first <<<"$(quarters_of 0 616 1852 616 c85a50 50965a 465a96 d2b45a)"
read -ra second <<<"$(quarters_of 0 0 1852 616 50965a 465a96 d2b45a c85a50)"
expect_sheet "$work/joined/sheet-0001.png" 1852 1232 "${first[@]}" "${second[@]}"
read -ra upper <<<"$(quarters_of 0 0 1852 616 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/joined_copies/sheet-0001.png" 1852 1232 "${first[@]}" "${upper[@]}"

expect_no_protocol_errors
finish
