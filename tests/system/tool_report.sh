#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# tqr7 report bundles what finds a fault, and neither the picture nor what is personal.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

report() {
  "$TQR7_BUILD/tqr7" report "$@" 2>&1
}

unpack() {
  rm -rf "$work/unpacked"
  mkdir "$work/unpacked"
  tar -xzf "$1" -C "$work/unpacked" || fail "$1 is no tar file"
}

expect_in() {
  grep -qF -- "$2" "$folder/$1" || fail "$1 does not hold \"$2\""
}

# No word of the arguments stands in any file of the bundle.
expect_nowhere() {
  local word
  for word in "$@"; do
    grep -rqiF -- "$word" "$folder" && fail "the bundle holds \"$word\": $(grep -rniF -- "$word" "$folder" | head -n 3)"
  done
}

SAID=$(report)
expect_equal 'no queue' "tqr7 report: no queue of this driver's has had a job" "$SAID"

picture "$work/Tante-Ernas-Geburtstag.png" 1852 1232
printer_start "$TQR7_BUILD" "$work/photo" --record "$work/stream" --enable 0x0200 || exit 1
scheduler_add_queue photo "$(printer_uri "$PRINTER_PORT")" -L 'Ernas Keller' -D 'Ernas Drucker'
print_job photo "${plain[@]}" -U erna-mustermann -t "Erna's \"90.\" Geburtstag" \
  -o RQPrintFinish=Matte "$work/Tante-Ernas-Geburtstag.png"
expect_job_ends "$JOB" stopped
printer_start "$TQR7_BUILD" "$work/good" --record "$work/stream" || exit 1
PATH=$PATH:/usr/sbin lpadmin -p photo -v "$(printer_uri "$PRINTER_PORT")"
"$TQR7_BUILD/tqr7" resume photo >/dev/null || fail 'resume'
expect_completed "$JOB"

mkdir "$work/tmp"
SAID=$(TMPDIR=$work/tmp report -o "$work/report.tar.gz" --stream "$work/stream")
expect_equal 'the exit status' 0 "$?"
expect_equal 'what is said' "$work/report.tar.gz" "$SAID"
expect_equal 'what is left behind' '' "$(ls "$work/tmp")"
expect_equal 'the files' 'tqr7-report-photo-1/README.txt
tqr7-report-photo-1/versions.txt
tqr7-report-photo-1/status.txt
tqr7-report-photo-1/queue.txt
tqr7-report-photo-1/ppd.txt
tqr7-report-photo-1/job.txt
tqr7-report-photo-1/log.txt
tqr7-report-photo-1/exchanges.txt
tqr7-report-photo-1/stream.txt' "$(tar -tzf "$work/report.tar.gz")"
unpack "$work/report.tar.gz"
folder=$work/unpacked/tqr7-report-photo-1

expect_in README.txt 'A report of tqr7 on job 1, to find a fault by.'
expect_in versions.txt 'CUPS, the scheduler: '
expect_in versions.txt 'libarchive: '
expect_in status.txt 'photo: good, idle, accepts jobs'
expect_in queue.txt 'printer-make-and-model: CORVANTIEL TQR7'
expect_in queue.txt "device-uri, in part: socket://HOST:$PRINTER_PORT/?contimeout=8"
expect_in ppd.txt 'RQPrintFinish: [Gloss'
expect_in job.txt 'RQPrintFinish: Matte'
expect_in job.txt 'job-state: completed'
expect_in log.txt '[Job 1] driver-setting-unmuch 0x0200'
expect_in log.txt '[Job 1] argv[3]=(left out)'
expect_in exchanges.txt '[CMD] 0000: 1b 47 44 30 00 00 01 16'
expect_in exchanges.txt '[STS]CMD_GET_ENABLE 0000: '
expect_in stream.txt 'job header, 512 bytes'
grep -E '^  [0-9a-f]+:( 00)+$' "$folder/stream.txt" && fail 'stream.txt has lines of zeros'

# Nothing personal: the title in all of its parts, the user, the machine, names of queue and place.
expect_nowhere geburtstag "Erna's" erna mustermann Keller Drucker 127.0.0.1 'localhost' \
  "$(hostname)" "$(id -un)" 'picture.png'

# Nothing of the picture, neither as bytes nor in hexadecimal: no 32 bytes of file or stream. The
# stream's blocks are told; its pixels begin behind the image header.
header=$(grep -aobF "$(printf '\033ZT')" "$work/stream" | head -n 1)
pixels=$((${header%%:*} + 512))
[ "$(cat "$folder"/*.txt | grep -c '[0-9a-f]\{4\}: [0-9a-f][0-9a-f] ')" -gt 50 ] ||
  fail 'there are no blocks in hexadecimal'
"$tools/find-pieces" "$folder" "$work/Tante-Ernas-Geburtstag.png" 0 || fail 'the picture is in it'
"$tools/find-pieces" "$folder" "$work/stream" "$pixels" || fail 'the picture is in it'
# What is told is found: this search can.
"$tools/find-pieces" "$folder" "$work/stream" $((pixels - 512)) >/dev/null &&
  fail 'find-pieces does not find the image header'

# The same once more, of a job by its number: the same bytes.
report photo-1 -o "$work/again.tar.gz" --stream "$work/stream" >/dev/null
cmp "$work/report.tar.gz" "$work/again.tar.gz" || fail 'the same report has other bytes'

# A log file of one's own, and what is said when it does not hold enough.
grep -a '^[EIW] ' "$SCHEDULER_DIR/log/error_log" >"$work/quiet_log"
SAID=$(report 1 -o "$work/quiet.tar.gz" --log "$work/quiet_log")
expect_contains 'no debug lines' 'cupsctl --debug-logging' "$SAID"
SAID=$(report 1 -o "$work/quiet.tar.gz" --log "$work/missing")
expect_contains 'no log' 'The log could not be read: the file cannot be read.' "$SAID"
unpack "$work/quiet.tar.gz"
expect_in log.txt 'The log could not be read'

# A title that is a word of the log's own, of a job by way of a class: the log stays readable.
PATH=$PATH:/usr/sbin lpadmin -p photo -c room
cupsenable room
cupsaccept room
print_job room "${plain[@]}" -U erna-mustermann -t page "$work/Tante-Ernas-Geburtstag.png"
expect_completed "$JOB"
report -o "$work/page.tar.gz" >/dev/null || fail 'a job of a class'
unpack "$work/page.tar.gz"
folder=$work/unpacked/tqr7-report-room-2
expect_in log.txt '[Job 2] Formatting (title) 1.'
expect_in log.txt '[Job 2] Reading the photo.'
expect_in exchanges.txt '[CMD] 0000: 1b 47 44 30 00 00 01 16'
expect_in ppd.txt 'NickName: CORVANTIEL TQR7'
expect_in status.txt 'class of photo'
expect_nowhere erna mustermann geburtstag 127.0.0.1 localhost

SAID=$(report 99)
expect_equal 'no such job' "tqr7 report: no queue of this driver's has a job 99" "$SAID"
SAID=$(report 1x)
expect_equal 'no whole number' 'tqr7 report: "1x" is not the number of a job' "$SAID"
# The question put to a printer is a job, too, but not the one that a person means.
"$TQR7_BUILD/tqr7" status --ask photo >/dev/null
expect_equal 'the last job' "$work/last.tar.gz" "$(report -o "$work/last.tar.gz")"
expect_contains 'the last job' 'tqr7-report-room-2/job.txt' "$(tar -tzf "$work/last.tar.gz")"
SAID=$(report last)
expect_equal 'no number' 'tqr7 report: "last" is not the number of a job' "$SAID"
SAID=$(CUPS_SERVER=$work/nobody report)
expect_contains 'no scheduler' 'tqr7 report: the scheduler does not answer: ' "$SAID"

finish
