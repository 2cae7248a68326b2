#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A JPEG, a PNG, another picture and a PDF come out upright, in the colours that they have on the screen,
# in the middle of a sheet of the printer's dots.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer photo
add_printer drawing
add_printer document
add_printer portrait
add_printer camera
add_printer other

picture "$work/photo.jpg" 1852 1232
picture "$work/drawing.png" 926 616
picture "$work/document.pdf" 1852 1232
picture "$work/portrait.png" 616 926
"$tools/make-photo" "$work/camera.jpg" 1852 1232 exif-6
"$tools/make-photo" "$work/wide.jpg" 1852 1232 display-p3
"$tools/make-photo" "$work/other.ppm" 900 600 plain
head -c 20000 "$work/camera.jpg" >"$work/broken.jpg"

print_job photo "$work/photo.jpg" && photo=$JOB
print_job drawing -o print-scaling=fill "$work/drawing.png" && drawing=$JOB
print_job drawing -o print-scaling=fill -o print-color-mode=monochrome "$work/drawing.png" && grey=$JOB
print_job document "$work/document.pdf" && document=$JOB
print_job portrait -o print-scaling=fill "$work/portrait.png" && portrait=$JOB
print_job camera -o print-scaling=fill "$work/camera.jpg" && camera=$JOB
print_job camera "$work/wide.jpg" && wide=$JOB
print_job camera "$work/broken.jpg" && broken=$JOB
# 900 x 600 pixels: a sheet of 1550 x 1082 dots leaves 24 rows white above.
print_job other -o PageSize=RQ_9x13 "$work/other.ppm" && other=$JOB

expect_completed "$photo"
expect_completed "$drawing"
expect_completed "$grey"
expect_completed "$document"
expect_completed "$portrait"

read -ra upright <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/photo/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
expect_sheet "$work/drawing/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
expect_sheet "$work/document/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
# Black and white.
read -ra greys <<<"$(quarters_of 0 0 1852 1232 717171 838383 5a5a5a b4b4b4)"
expect_sheet "$work/drawing/sheet-0002.png" 1852 1232 "${greys[@]}"
# A portrait lies on the sheet with its top at the left: its top right corner comes to the top left.
read -ra turned <<<"$(quarters_of 0 0 1852 1232 50965a d2b45a c85a50 465a96)"
expect_sheet "$work/portrait/sheet-0001.png" 1852 1232 "${turned[@]}"

# Cameras say in the file how it is to be turned, and phones in which colours it is.
expect_completed "$camera"
expect_completed "$wide"
expect_sheet "$work/camera/sheet-0001.png" 1852 1232 "${upright[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
expect_sheet "$work/camera/sheet-0002.png" 1852 1232 "${upright[@]}"
# What cannot be read to its end takes no paper.
expect_job_ends "$broken" stopped
log_holds 'The photo cannot be printed: Premature end of JPEG file.' || fail 'no word of the broken photo'
[ ! -e "$work/camera/sheet-0003.png" ] || fail 'a broken photo was printed'
# What another filter has drawn is laid into the middle.
expect_completed "$other"
read -ra middle <<<"$(quarters_of 0 24 1550 1033 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/other/sheet-0001.png" 1550 1082 "${middle[@]}" \
  700 18 ffffff 700 32 c85a50 700 1048 465a96 700 1066 ffffff
grep -aq 'rastertopage' "$SCHEDULER_DIR/log/error_log" || fail 'rastertopage was not run'

expect_no_protocol_errors
finish
