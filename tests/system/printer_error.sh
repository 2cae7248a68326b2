#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A printer in error stops the job and says why in words; the next good job withdraws the reason.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer jammed --status 0x2665
picture "$work/photo.png" 1852 1232
print_job jammed "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
expect_equal 'the reason in words' \
  'com.corvantiel-error0008_2665: Printer error 2665 (class 0008). Check the printer, then print again.' \
  "$("$tools/queue-words" jammed)"
expect_contains 'lpstat' 'Alerts: com.corvantiel-error0008_2665' "$(lpstat -l -p jammed)"
expect_contains 'the queue' 'is idle' "$(lpstat -p jammed)"
expect_equal 'sheets' '' "$(find "$work/jammed" -name 'sheet-*.png')"

# The person has seen to the printer.
printers_stop
printer_start "$TQR7_BUILD" "$work/mended" || exit 1
scheduler_add_queue jammed "$(printer_uri "$PRINTER_PORT")"
lp -i "$JOB" -H restart
expect_completed "$JOB"
expect_equal 'the reason afterwards' 'none: ' "$("$tools/queue-words" jammed)"
expect_sheet "$work/mended/sheet-0001.png" 1852 1232

expect_no_protocol_errors
finish
