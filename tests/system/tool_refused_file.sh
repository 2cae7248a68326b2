#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A file that cannot be printed: tqr7 status says that it is the file, and tqr7 resume leaves its job.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# What a subcommand of the tool says goes to SAID; its exit status is held against the first word.
expect_tool() {
  local expected=$1 status=0
  shift
  SAID=$("$TQR7_BUILD/tqr7" "$@" 2>&1) || status=$?
  expect_equal "the exit status of $*" "$expected" "$status"
}

field() {
  "$tools/json-value" "$1" <<<"$SAID"
}

"$tools/make-photo" "$work/whole.jpg" 1852 1232 exif-1 || exit 1
head -c 12000 "$work/whole.jpg" >"$work/cut.jpg"
echo 'This is a letter, and no photo.' >"$work/letter.jpg"
cut_words='The photo cannot be printed: Premature end of JPEG file.'
letter_words='The photo cannot be printed: it is neither a JPEG nor a PNG file.'

add_printer photo
print_job photo "${plain[@]}" "$work/cut.jpg"
expect_job_ends "$JOB" stopped
print_job photo "${plain[@]}" "$work/letter.jpg"
expect_job_ends "$JOB" stopped

expect_tool 1 status photo
expect_equal 'two broken files' "photo: not good, idle, accepts jobs
  2 jobs are stopped (1, 2)
    The file of job 1 itself cannot be printed, and starting the job again does not help: $cut_words
    To do: \`cancel 1\` clears it. Then send the file again, repaired or from a good copy.
    The file of job 2 itself cannot be printed, and starting the job again does not help: $letter_words
    To do: \`cancel 2\` clears it. Then send the file again, repaired or from a good copy.
  bidirectional connection: yes (socket)" "$SAID"
expect_tool 1 status --json photo
expect_equal 'JSON: the stopped jobs' '[1,2]' "$(field /queues/0/jobs/stopped)"
expect_equal 'JSON: the job' 2 "$(field /queues/0/refused_files/1/job)"
expect_equal 'JSON: the words' "\"$letter_words\"" "$(field /queues/0/refused_files/1/words)"

# Neither a person's run nor one that goes on starts them again.
expect_tool 1 resume photo
expect_equal 'resume' "photo: job 1 left alone: its file cannot be printed ($cut_words); \
\`cancel 1\` clears it
photo: job 2 left alone: its file cannot be printed ($letter_words); \`cancel 2\` clears it" "$SAID"
"$TQR7_BUILD/tqr7" resume --watch --interval 0.2 photo >"$work/watch.log" 2>&1 &
watcher=$!
wait_until 'the first look' grep -q 'job 2 left alone' "$work/watch.log"
# A few looks more.
sleep 1
kill -TERM "$watcher"
wait "$watcher"
expect_equal 'the exit status of the watch' 1 "$?"
expect_equal 'what the watch said' 2 "$(wc -l <"$work/watch.log")"
expect_equal 'how often the photo was tried' 1 "$(log_count "[Job 1] $cut_words")"

# A job that the printer stopped is none of them, and is started beside them.
add_printer jammed --status 0x2665
print_job jammed "${plain[@]}" "$work/whole.jpg"
expect_job_ends "$JOB" stopped
expect_tool 1 status jammed
expect_contains 'another stop' "To do: See to the printer, then \`tqr7 resume jammed\`" "$SAID"
case $SAID in
  *'cannot be printed'*) fail "a good photo is told to be broken: $SAID" ;;
esac
expect_tool 0 resume jammed
expect_equal 'a good photo' 'jammed: job 3 started again from its beginning' "$SAID"

# What is advised helps.
cancel 1
cancel 2
expect_tool 0 status photo
expect_tool 0 resume photo
print_job photo "${plain[@]}" "$work/whole.jpg"
expect_completed "$JOB"

finish
