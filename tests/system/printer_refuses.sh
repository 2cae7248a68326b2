#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A printer that refuses the job's settings stops the queue, and a person reads how to go on.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer strict --enable 0x0200
picture "$work/photo.png" 1852 1232
print_job strict "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped

expect_equal 'the reason in words' \
  'paused: The queue is stopped. Make the printer ready, then resume the queue.' \
  "$("$tools/queue-words" strict)"
expect_contains 'the queue' 'disabled' "$(lpstat -p strict)"
log_holds '] driver-setting-unmuch 0x0200' || fail 'the log does not hold the error'
expect_equal 'sheets' '' "$(find "$work/strict" -name 'sheet-*.png')"

expect_no_protocol_errors
finish
