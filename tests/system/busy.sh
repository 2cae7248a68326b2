#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A printer that is busy at first is asked again until it is ready, and then prints. The filter sleeps as
# long as it says: the printer counts a query that comes too soon as an error.
# shellcheck disable=SC2034  # system_test.sh uses it
SCHEDULER_FILTER_PRELOAD=
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer slow --device-values --busy 3
picture "$work/photo.png" 1852 1232
print_job slow "${plain[@]}" "$work/photo.png"
expect_completed "$JOB"

expect_equal 'busy answers' 3 "$(log_count 'CMD_GET_ENABLE[01 + 00]')"
expect_equal 'ready answers' 1 "$(log_count 'CMD_GET_ENABLE[00 + 00]')"
read -ra dots <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/slow/sheet-0001.png" 1852 1232 "${dots[@]}"

expect_no_protocol_errors
finish
