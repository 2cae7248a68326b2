#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# With colour conversion a print has the picture's colours, as far as the printer has them; without,
# the printer gets the picture's own values.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

converted=(-o RQColorConversion=Enabled -o RQSharpness_Common=None)

add_printer paper
add_printer sent --device-values
picture "$work/photo.jpg" 1852 1232
picture "$work/vivid.png" 1852 1232 1 vivid
read -ra photo <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"

print_job paper "${converted[@]}" "$work/photo.jpg" && expect_completed "$JOB"
print_job paper "${converted[@]}" "$work/vivid.png" && expect_completed "$JOB"
print_job paper "${plain[@]}" "$work/photo.jpg" && expect_completed "$JOB"
print_job sent "${converted[@]}" "$work/photo.jpg" && expect_completed "$JOB"
print_job sent "${converted[@]}" "$work/vivid.png" && expect_completed "$JOB"
print_job sent "${plain[@]}" "$work/photo.jpg" && expect_completed "$JOB"
print_job sent "${plain[@]}" "$work/vivid.png" && expect_completed "$JOB"

# On paper the photo is as on the screen, because other values are sent.
expect_sheet "$work/paper/sheet-0001.png" 1852 1232 "${photo[@]}"
expect_other_colours "$work/sent/sheet-0001.png" 1852 1232 "${photo[@]}"

# Beyond the printer's colours at least one channel is at its end. The others are the model's in
# model/model_numbers.h, and what they show on paper.
read -ra ends <<<"$(quarters_of 0 0 1852 1232 f40003 4cff00 0000ff ffff00)"
expect_sheet "$work/sent/sheet-0002.png" 1852 1232 "${ends[@]}"
read -ra clipped <<<"$(quarters_of 0 0 1852 1232 ff1600 14f724 0048fd fff822)"
expect_sheet "$work/paper/sheet-0002.png" 1852 1232 "${clipped[@]}"

# Unconverted values arrive as they are, and look different on paper.
expect_sheet "$work/sent/sheet-0003.png" 1852 1232 "${photo[@]}"
expect_other_colours "$work/paper/sheet-0003.png" 1852 1232 "${photo[@]}"
read -ra vivid <<<"$(quarters_of 0 0 1852 1232 ff0000 00ff00 0000ff ffff00)"
expect_sheet "$work/sent/sheet-0004.png" 1852 1232 "${vivid[@]}"

expect_no_protocol_errors
finish
