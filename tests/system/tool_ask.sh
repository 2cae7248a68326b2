#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# tqr7 has the printer asked for its state while no job runs: for status, and before it resumes.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
PATH=$PATH:/usr/sbin

# A stopped job is not at its end here: the watch is to start it.
# shellcheck disable=SC2317  # wait_until calls it
is_completed() { [ "$(scheduler_job_state "$1")" = completed ]; }

picture "$work/photo.png" 1852 1232

# The printer is mended while the queue still shows what the job before it saw.
add_printer jammed --status 0x2665
print_job jammed "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
SAID=$("$TQR7_BUILD/tqr7" status --ask jammed)
expect_contains 'still in error' 'reason com.corvantiel-error0008_2665' "$SAID"
expect_contains 'the stopped job' '1 job is stopped (1)' "$SAID"
expect_equal 'questions left behind' 'jammed-1' "$(lpstat -o | cut -d ' ' -f 1)"

# A watch asks, and starts the job only when the printer is good.
"$TQR7_BUILD/tqr7" resume --watch --interval 0.3 >"$work/watch.log" 2>&1 &
watcher=$!
wait_until 'the watch has asked' grep -q 'waits: the printer is still in error' "$work/watch.log"
# shellcheck disable=SC2317  # wait_until calls it
asked_again() { [ "$(grep -c 'status request' "$work/jammed/printer.log")" -ge 5 ]; }
wait_until 'the watch has asked again' asked_again
expect_equal 'the job meanwhile' stopped "$(scheduler_job_state "$JOB")"
printer_start "$TQR7_BUILD" "$work/mended" || exit 1
lpadmin -p jammed -v "$(printer_uri "$PRINTER_PORT")"
wait_until "$JOB is printed" is_completed "$JOB"
kill -TERM "$watcher"
wait "$watcher"
expect_equal 'the exit status of the watch' 0 "$?"
expect_equal 'what the watch said' 'jammed: waits: the printer is still in error
jammed: job 1 started again from its beginning' "$(cat "$work/watch.log")"
expect_sheet "$work/mended/sheet-0001.png" 1852 1232

# A stopped queue asks nothing, and no question waits in it.
cupsdisable jammed
SAID=$("$TQR7_BUILD/tqr7" status --ask jammed 2>&1)
expect_contains 'a stopped queue' \
  'tqr7 status: the printer of jammed was not asked: a stopped queue asks nothing' "$SAID"
expect_equal 'questions in a stopped queue' '' "$(lpstat -o)"

expect_no_protocol_errors
finish
