#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A job that is cancelled while its image is on the way ends, and the queue takes the next one.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

printer_start "$TQR7_BUILD" "$work/slow" --device-values || exit 1
relay_start "$PRINTER_PORT" stall 1000000
scheduler_add_queue slow "$(printer_uri "$RELAY_PORT")"
picture "$work/photo.png" 1852 2434
print_job slow "${plain[@]}" -o PageSize=RQ_15x20 "$work/photo.png"
wait_until 'the image is on the way' grep -q stalled "$work/relay.log"

cancel "$JOB"
kill -USR1 "$RELAY_PID"
expect_job_ends "$JOB" canceled
# shellcheck disable=SC2317  # wait_until calls it
queue_is_idle() { lpstat -p slow | grep -q 'is idle'; }
wait_until 'the queue is idle' queue_is_idle
expect_equal 'sheets' '' "$(find "$work/slow" -name 'sheet-*.png')"

# The cut sheet has spent a number.
picture "$work/next.png" 1852 1232
print_job slow "${plain[@]}" "$work/next.png"
expect_completed "$JOB"
read -ra dots <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/slow/sheet-0002.png" 1852 1232 "${dots[@]}"

finish
