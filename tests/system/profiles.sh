#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# An owner's profile beside the filter is what it prints with; a broken one stops no job.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

"$TQR7_BUILD/tests/make-profile" "$work/own.icc" || exit 1

add_printer own --profile "$work/own.icc"
add_printer model
picture "$work/photo.png" 1852 1232
read -ra photo <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"

install -m 644 "$work/own.icc" "$SCHEDULER_DIR/filter/tqr7.icc"
print_job own "$work/photo.png" && expect_completed "$JOB"
print_job model "$work/photo.png" && expect_completed "$JOB"
expect_sheet "$work/own/sheet-0001.png" 1852 1232 "${photo[@]}"
expect_other_colours "$work/model/sheet-0001.png" 1852 1232 "${photo[@]}"

head -c 300 "$work/own.icc" >"$SCHEDULER_DIR/filter/tqr7.icc"
print_job model "$work/photo.png" && expect_completed "$JOB"
expect_sheet "$work/model/sheet-0002.png" 1852 1232 "${photo[@]}"
log_holds '/tqr7.icc is not used (' || fail 'the log does not tell of the broken profile'

rm "$SCHEDULER_DIR/filter/tqr7.icc"
print_job model "$work/photo.png" && expect_completed "$JOB"
expect_sheet "$work/model/sheet-0003.png" 1852 1232 "${photo[@]}"

expect_no_protocol_errors
finish
