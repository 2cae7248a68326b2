#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# tqr7 resume --watch keeps a kiosk's queues running: it starts them when the printer is good again.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
PATH=$PATH:/usr/sbin

mend() {
  printer_start "$TQR7_BUILD" "$work/mended-$1" || exit 1
  lpadmin -p "$1" -v "$(printer_uri "$PRINTER_PORT")"
}

watch_start() {
  "$TQR7_BUILD/tqr7" resume --watch --interval 0.5 "$@" >"$work/watch.log" 2>&1 &
  watcher=$!
}

# Ends the watch as a service manager does; it must say the status given.
expect_watch_ends() {
  kill -TERM "$watcher"
  wait "$watcher"
  expect_equal 'the exit status of the watch' "$1" "$?"
}

# A stopped job is not at its end here: the watch is to start it.
# shellcheck disable=SC2317  # wait_until calls it
is_completed() { [ "$(scheduler_job_state "$1")" = completed ]; }

picture "$work/photo.png" 1852 1232

# A printer that is away: its queue has the error policy that stops it. It takes the longest.
printer_start "$TQR7_BUILD" "$work/away" || exit 1
kill "$PRINTER_PID"
wait "$PRINTER_PID"
scheduler_add_queue away "socket://127.0.0.1:$PRINTER_PORT/?contimeout=2" \
  -o printer-error-policy=stop-printer
print_job away "${plain[@]}" "$work/photo.png"
away=$JOB

add_printer strict --enable 0x0200
add_printer jammed --status 0x2665
add_printer mine
print_job strict "${plain[@]}" "$work/photo.png"
strict=$JOB
print_job jammed "${plain[@]}" "$work/photo.png"
jammed=$JOB
expect_job_ends "$strict" stopped
expect_job_ends "$jammed" stopped
cupsdisable mine

watch_start strict jammed mine
# shellcheck disable=SC2317  # wait_until calls it
twice_started() { [ "$(grep -c "strict: queue started" "$work/watch.log")" -ge 2 ]; }
wait_until "a second attempt" twice_started
wait_until 'the attempts' grep -q 'jammed: ' "$work/watch.log"
mend strict
mend jammed
wait_until "$strict is printed" is_completed "$strict"
wait_until "$jammed is printed" is_completed "$jammed"
expect_contains 'the watch: strict' \
  'strict: queue started again (the driver had stopped it: ' \
  "$(cat "$work/watch.log")"
expect_equal "the watch: the person's queue, said once" 1 "$(grep -c '^mine: ' "$work/watch.log")"
expect_contains 'the watch: mine' 'mine: left alone: a person stopped it' "$(cat "$work/watch.log")"
expect_contains 'the queue mine' disabled "$(lpstat -p mine)"
expect_watch_ends 1

# Everything runs: the watch ends well.
cupsenable mine
watch_start strict jammed mine
sleep 0.3
expect_watch_ends 0
expect_equal 'a watch with nothing to do' '' "$(cat "$work/watch.log")"

# The error policy's stop is told from a person's, which comes on top of it.
# shellcheck disable=SC2317  # wait_until calls it
queue_away_stopped() { lpstat -p away | grep -q disabled; }
wait_until 'the policy stops the queue' queue_away_stopped
expect_contains 'status' "error policy, stop-printer, stopped it at job ${away#away-}" \
  "$("$TQR7_BUILD/tqr7" status away)"
cupsdisable away
expect_contains 'a person, too' 'left alone' "$("$TQR7_BUILD/tqr7" resume away)"
cupsenable away
wait_until 'the policy stops the queue again' queue_away_stopped
mend away
expect_equal 'the queue away' 'away: queue started again (its error policy had stopped it: the '\
'printer could not be reached)' "$("$TQR7_BUILD/tqr7" resume away)"
wait_until "$away is printed" is_completed "$away"

expect_no_protocol_errors
finish
