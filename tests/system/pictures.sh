#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A JPEG, a PNG and a PDF come out upright, in the colours that they have on the screen, on a sheet of
# the printer's dots.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer photo
add_printer drawing
add_printer document
add_printer portrait

picture "$work/photo.jpg" 1852 1232
picture "$work/drawing.png" 926 616
picture "$work/document.pdf" 1852 1232
picture "$work/portrait.png" 616 926

print_job photo "$work/photo.jpg" && photo=$JOB
print_job drawing -o print-scaling=fill "$work/drawing.png" && drawing=$JOB
print_job document "$work/document.pdf" && document=$JOB
print_job portrait -o print-scaling=fill "$work/portrait.png" && portrait=$JOB

expect_completed "$photo"
expect_completed "$drawing"
expect_completed "$document"
expect_completed "$portrait"

read -ra upright <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/photo/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
expect_sheet "$work/drawing/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
expect_sheet "$work/document/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
# A portrait lies on the sheet with its top at the left: its top right corner comes to the top left.
read -ra turned <<<"$(quarters_of 0 0 1852 1232 50965a d2b45a c85a50 465a96)"
expect_sheet "$work/portrait/sheet-0001.png" 1852 1232 "${turned[@]}"

expect_no_protocol_errors
finish
