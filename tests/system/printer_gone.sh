#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A printer that goes away within an image ends the job as the queue's policy says.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

printer_start "$TQR7_BUILD" "$work/cut" || exit 1
relay_start "$PRINTER_PORT" close 1000000
scheduler_add_queue cut "$(printer_uri "$RELAY_PORT")" -o printer-error-policy=abort-job
picture "$work/photo.png" 1852 1232
print_job cut "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" aborted
expect_equal 'the cable' closed "$(sed -n 2p "$work/relay.log")"
expect_equal 'sheets' '' "$(find "$work/cut" -name 'sheet-*.png')"

# Printer and queue take the next job; the cut sheet has spent a number.
print_job cut "${plain[@]}" "$work/photo.png"
expect_completed "$JOB"
expect_sheet "$work/cut/sheet-0002.png" 1852 1232

finish
