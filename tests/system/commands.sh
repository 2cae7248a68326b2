#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Printer commands: the queue offers them, reports the printer's status and prints its test page.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

command_file() {
  printf '#CUPS-COMMAND\n%s\n' "$1" >"$work/command"
  echo "$work/command"
}

# As print dialogs and the web interface send it: with its type.
send_command() {
  local queue=$1 command=$2
  shift 2
  print_job "$queue" -o document-format=application/vnd.cups-command "$@" \
    "$(command_file "$command")"
}

reasons() {
  "$tools/queue-words" "$1" | sed 's/: .*//'
}

# The first, the last and a middle column of the patches' three rows, on a sheet of 10 x 15 cm.
patches='110 178 ff0000 1559 178 8000ff 110 279 f6d7c3 1145 279 5a3825 110 380 000000 937 380 929292'
read -ra patches <<<"$patches"

add_printer photo --device-values
expect_contains 'what the queue offers' 'printer-commands=ReportStatus,PrintSelfTestPage' \
  "$(lpoptions -p photo)"

# The page with the queue's settings, and once more recognized by its first line alone.
send_command photo PrintSelfTestPage "${plain[@]}"
expect_completed "$JOB"
expect_sheet "$work/photo/sheet-0001.png" 1852 1232 "${patches[@]}"
print_job photo "${plain[@]}" "$(command_file PrintSelfTestPage)"
expect_completed "$JOB"
expect_sheet "$work/photo/sheet-0002.png" 1852 1232 "${patches[@]}"

# A sheet of two prints, each page a half: the upper one is blue along the cut, the lower one orange.
send_command photo PrintSelfTestPage -o PageSize=RQ_5x15x2_2 "${plain[@]}"
expect_completed "$JOB"
expect_sheet "$work/photo/sheet-0003.png" 1852 1232 110 110 ff0000 110 726 ff0000 \
  300 615 0060e0 300 616 ff8000

# A bordered size: the image lies within its border, and its gauges begin there.
send_command photo PrintSelfTestPage -o PageSize=RQ_9x13_WB "${plain[@]}"
expect_completed "$JOB"
expect_sheet "$work/photo/sheet-0004.png" 1550 1082 83 500 ffffff 194 252 ff0000 \
  $((84 + 567)) 73 ffffff $((84 + 567)) 74 000000 $((84 + 567)) 78 000000 $((84 + 567)) 79 ffffff

# What the printer does not have does no harm.
send_command photo 'Clean all'
expect_completed "$JOB"
log_holds 'The printer has no command \"Clean\", which is skipped.' ||
  fail 'the log does not name the command that was skipped'
expect_equal 'sheets' 4 "$(find "$work/photo" -name 'sheet-*.png' | wc -l)"

# On paper: colours that the printer has are those of the page.
add_printer paper
send_command paper PrintSelfTestPage
expect_completed "$JOB"
expect_sheet "$work/paper/sheet-0001.png" 1852 1232 110 279 f6d7c3 1145 279 5a3825 937 380 929292

# ReportStatus tells of a printer in error without a photo, and that it was mended.
add_printer jammed --status 0x2665
expect_equal 'the reason before' none "$(reasons jammed)"
send_command jammed ReportStatus
expect_completed "$JOB"
expect_equal 'the reason in error' com.corvantiel-error0008_2665 "$(reasons jammed)"
expect_contains 'the queue' 'is idle' "$(lpstat -p jammed)"
# A test page stops as a photo does.
send_command jammed PrintSelfTestPage
expect_job_ends "$JOB" stopped
expect_equal 'sheets in error' '' "$(find "$work/jammed" -name 'sheet-*.png')"

printers_stop
printer_start "$TQR7_BUILD" "$work/mended" || exit 1
scheduler_add_queue jammed "$(printer_uri "$PRINTER_PORT")"
send_command jammed ReportStatus
expect_completed "$JOB"
expect_equal 'the reason afterwards' none "$(reasons jammed)"
expect_equal 'sheets for a report' '' "$(find "$work/mended" -name 'sheet-*.png')"

expect_no_protocol_errors
finish
