#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# tqr7 status says of each queue what stands with it, and its exit status is for scripts.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# What the tool says goes to SAID, both streams; then its exit status is held against the first word.
expect_status() {
  local expected=$1 status=0
  shift
  SAID=$("$TQR7_BUILD/tqr7" status "$@" 2>&1) || status=$?
  expect_equal "the exit status of status $*" "$expected" "$status"
}

# The value at a place of the JSON document.
field() {
  "$tools/json-value" "$1" <<<"$SAID"
}

# A queue of another driver's is none of the tool's.
PATH=$PATH:/usr/sbin lpadmin -p other -E -v socket://127.0.0.1:9 2>/dev/null
expect_status 2
expect_equal 'no queue' "tqr7 status: there is no queue of this driver's" "$SAID"
expect_status 2 other
expect_equal 'another driver' "tqr7 status: the queue other is not one of this driver's" "$SAID"
expect_status 2 missing
expect_equal 'no such queue' 'tqr7 status: there is no queue missing' "$SAID"

add_printer good
expect_status 0
expect_equal 'a good queue' 'good: good, idle, accepts jobs
  bidirectional connection: yes (socket)' "$SAID"

# Reasons stand while no job runs, with the job that the driver gave up.
add_printer jammed --status 0x2665
picture "$work/photo.png" 1852 1232
print_job jammed "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
lp -s -d jammed -H hold "$work/photo.png"
expect_status 1 jammed
expect_contains 'state' 'jammed: not good, idle, accepts jobs' "$SAID"
expect_contains 'reason' '  reason com.corvantiel-error0008_2665
    The printer reported error 2665. ' "$SAID"
expect_contains 'remedy' "    To do: Read the printer's display, and look up 2665" "$SAID"
expect_contains 'the stopped job' '  1 job is stopped (1)' "$SAID"
expect_contains 'what starts it' 'tqr7 resume jammed' "$SAID"
expect_contains 'the held job' '  1 job is held by a person (2)' "$SAID"
expect_status 0 good
expect_status 1
expect_contains 'both queues' 'good: good, ' "$SAID"
expect_contains 'both queues' 'jammed: not good, ' "$SAID"

# The driver's own stop, and a person's.
add_printer strict --enable 0x0200
print_job strict "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
expect_status 1 strict
expect_contains 'the refusal' \
  '    The driver stopped the queue at job 3: ' "$SAID"
cupsdisable -r 'Ribbon is on order' strict
expect_status 1 strict
expect_contains 'the person' '    A person stopped the queue, or a program that is not this driver.
    To do: '"\`cupsenable strict\`" "$SAID"
expect_contains "the person's words" '    The person said: Ribbon is on order' "$SAID"
cupsreject strict
expect_status 1 strict
expect_contains 'not accepting' 'strict: not good, stopped, does not accept jobs' "$SAID"

# Without a way back this driver does not print.
scheduler_add_queue mute "lpd://127.0.0.1/queue"
expect_status 1 mute
expect_contains 'one way' '  bidirectional connection: no (lpd)
    The driver asks the printer before each sheet, and without answers it does not print.' "$SAID"

# A class is told with the queues behind it.
PATH=$PATH:/usr/sbin lpadmin -p good -c room
cupsenable room
cupsaccept room
expect_status 0 room
expect_equal 'a class' 'room: good, idle, accepts jobs, class of good' "$SAID"

expect_status 1 --json jammed good
expect_equal 'JSON: all' false "$(field /good)"
expect_equal 'JSON: the queue' '"jammed"' "$(field /queues/0/name)"
expect_equal 'JSON: the reason' '"com.corvantiel-error0008_2665"' \
  "$(field /queues/0/reasons/0/keyword)"
expect_equal 'JSON: its number' '"2665"' "$(field /queues/0/reasons/0/number)"
expect_equal 'JSON: jobs' '{"printing":[],"stopped":[1],"waiting":[],"held":[2]}' \
  "$(field /queues/0/jobs)"
expect_equal 'JSON: the other queue' true "$(field /queues/1/good)"
expect_equal 'JSON: its connection' true "$(field /queues/1/bidirectional)"

# Control characters of the scheduler's do not reach the terminal.
cupsdisable -r "$(printf 'red \033[31m ribbon\a')" good
expect_status 1 good
expect_contains 'control characters' 'The person said: red ?[31m ribbon?' "$SAID"
cupsenable good

# --watch says it again when something changes, and ends with what it said last.
"$TQR7_BUILD/tqr7" status good --watch --interval 0.1 >"$work/watched" 2>&1 &
watcher=$!
wait_until 'the first look' grep -q '^good: good' "$work/watched"
cupsdisable good
wait_until 'the change' grep -q '^good: not good, stopped' "$work/watched"
# A few looks more, at which nothing has changed.
sleep 0.5
kill -INT "$watcher"
wait "$watcher"
expect_equal 'the exit status of --watch' 1 "$?"
expect_equal 'what --watch said' 2 "$(grep -c '^good: ' "$work/watched")"

CUPS_SERVER=$work/nobody expect_status 2
expect_contains 'no scheduler' 'tqr7 status: the scheduler does not answer: ' "$SAID"

finish
