#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# tqr7 resume starts what the printer brought to a standstill, and nothing that a person stopped.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
PATH=$PATH:/usr/sbin

# What the tool says goes to SAID, both streams; then its exit status is held against the first word.
expect_resume() {
  local expected=$1 status=0
  shift
  SAID=$("$TQR7_BUILD/tqr7" resume "$@" 2>&1) || status=$?
  expect_equal "the exit status of resume $*" "$expected" "$status"
}

# A good printer takes the place of the queue's. Only the address changes, the queue stands as it
# stood.
mend() {
  printer_start "$TQR7_BUILD" "$work/mended-$1" || exit 1
  lpadmin -p "$1" -v "$(printer_uri "$PRINTER_PORT")"
}

sheets() {
  find "$work/mended-$1" -name 'sheet-*.png' | wc -l
}

is_stopped() {
  lpstat -p "$1" | grep -q disabled
}

expect_left_to_person() {
  expect_resume 1 "$1"
  expect_equal "$2" "$1: left alone: a person stopped it, or a program that is not this driver; \
\`cupsenable $1\` starts it" "$SAID"
  is_stopped "$1" || fail "$2: the queue runs"
}

picture "$work/photo.png" 1852 1232

# Two queues at once: one that the driver stopped, with a job waiting behind the refused one; one at
# rest with a job that the driver gave up. A held job stays held, a cancelled one cancelled.
add_printer strict --enable 0x0201
add_printer jammed --status 0x2665
print_job strict "${plain[@]}" "$work/photo.png"
refused=$JOB
print_job jammed "${plain[@]}" "$work/photo.png"
given_up=$JOB
expect_job_ends "$refused" stopped
expect_job_ends "$given_up" stopped
print_job strict "${plain[@]}" "$work/photo.png"
behind=$JOB
print_job jammed -H hold "${plain[@]}" "$work/photo.png"
held=$JOB
print_job jammed "${plain[@]}" "$work/photo.png"
cancel "$JOB"
cancelled=$JOB
mend strict
mend jammed
expect_resume 0
# The word is lost where another program of the job complains after the driver.
expect_equal 'what was done' 'jammed: job 2 started again from its beginning
strict: job 1 started again from its beginning
strict: queue started again (the driver had stopped it: pagesize-inkribbon-unmuch)' \
  "$(sort <<<"${SAID/stopped it: refused sheet/stopped it: pagesize-inkribbon-unmuch}")"
expect_completed "$refused"
expect_completed "$behind"
expect_completed "$given_up"
expect_equal 'the order of the jobs' '1 3' \
  "$(grep -ao '\[Job [0-9]*\] Job completed' "$SCHEDULER_DIR/log/error_log" | tr -dc '0-9\n' |
    grep -v 2 | paste -sd ' ')"
expect_equal 'sheets of strict' 2 "$(sheets strict)"
expect_equal 'the held job' held "$(scheduler_job_state "$held")"
expect_equal 'the cancelled job' canceled "$(scheduler_job_state "$cancelled")"
expect_resume 0
expect_equal 'queues that run' 'jammed: runs; nothing to start
strict: runs; nothing to start' "$SAID"
cancel "$held"

# A person stops a queue at rest.
cupsdisable strict
expect_left_to_person strict 'cupsdisable'
cupsenable strict
cupsdisable -r 'Out of ribbon' strict
expect_left_to_person strict 'cupsdisable -r'
cupsenable strict

# A person stops a queue that prints.
print_job strict -n 5 "${plain[@]}" "$work/photo.png"
wait_until 'the job prints' log_holds '[Job 6] Printing page 2'
cupsdisable strict
expect_left_to_person strict 'cupsdisable while a job prints'
wait_until 'the job waits' test pending = "$(scheduler_job_state "$JOB")"
expect_left_to_person strict 'cupsdisable while a job prints, later'
cancel "$JOB"
cupsenable strict

# A person stops a queue that the driver had stopped.
add_printer refuser --enable 0x0200
print_job refuser "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
cupsdisable refuser
expect_left_to_person refuser 'cupsdisable behind the driver'
# The same with a start in between.
cupsenable refuser
cupsdisable refuser
expect_left_to_person refuser 'cupsenable and cupsdisable behind the driver'

# A queue at rest, with a job that the driver gave up, is stopped by a person: the job waits too.
add_printer ill --status 0x2100
print_job ill "${plain[@]}" "$work/photo.png"
ill=$JOB
expect_job_ends "$ill" stopped
cupsdisable ill
expect_left_to_person ill 'cupsdisable behind an error'
expect_equal 'the job behind' stopped "$(scheduler_job_state "$ill")"
cupsenable ill

# The job that the driver stopped the queue at is cancelled: the queue is still the driver's stop.
add_printer cancelled --enable 0x0200
print_job cancelled "${plain[@]}" "$work/photo.png"
expect_job_ends "$JOB" stopped
said_before=$("$TQR7_BUILD/tqr7" status cancelled)
cancel "$JOB"
if [[ $said_before == *': driver-setting-unmuch.'* ]]; then
  expect_resume 0 cancelled
  expect_equal 'a cancelled job behind' \
    'cancelled: queue started again (the driver had stopped it: driver-setting-unmuch)' "$SAID"
  is_stopped cancelled && fail 'the queue of the cancelled job stands'
else
  expect_left_to_person cancelled 'a cancelled job behind, whose word another program took'
fi

# A person's stop with words that a program writes, where the last job came through.
add_printer well
print_job well "${plain[@]}" "$work/photo.png"
expect_completed "$JOB"
cupsdisable -r 'Waiting for printer to finish.' well
expect_left_to_person well 'cupsdisable with words of a program'
cupsenable well

# A class that a person stopped, whatever their words.
lpadmin -p well -c room
cupsaccept room
cupsdisable -r 'Waiting for printer to finish.' room
expect_left_to_person room 'cupsdisable of a class'

# A queue of another driver's is none of the tool's, also beside one of ours.
lpadmin -p other -E -v socket://127.0.0.1:9 2>/dev/null
cupsdisable other
expect_resume 2 other well well
expect_equal 'another driver' "tqr7 resume: the queue other is not one of this driver's
well: runs; nothing to start" "$SAID"
is_stopped other || fail 'the queue of another driver was started'

# Without the right to administer nothing is started, and that is said.
sed -i 's|<Limit All>|<Limit Restart-Job Resume-Printer>\nRequire user nobody\n</Limit>\n<Limit All>|' \
  "$SCHEDULER_DIR/etc/cupsd.conf"
kill -HUP "$SCHEDULER_PID"
sleep 1
expect_resume 1 ill
expect_contains 'no right' 'not done: job 8 started again from its beginning: you have no right to administer' "$SAID"
expect_equal 'the job without the right' stopped "$(scheduler_job_state "$ill")"

CUPS_SERVER=$work/nobody expect_resume 2
expect_contains 'no scheduler' 'tqr7 resume: the scheduler does not answer: ' "$SAID"
expect_resume 2 missing
expect_equal 'no such queue' 'tqr7 resume: there is no queue missing' "$SAID"

finish
