#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Printers of a class that are off, or go away within a sheet, hand their jobs on by themselves, and
# take part again when they are back.
# shellcheck source=tests/system/print_room.sh
. "$(dirname "${BASH_SOURCE[0]}")/print_room.sh"

# Each breaks off within its first sheet: one by its cable, the others by themselves.
policies=(abort-job retry-job retry-current-job stop-printer)
printer_start "$TQR7_BUILD" "$work/abort-job" --device-values || exit 1
relay_start "$PRINTER_PORT" close 1000000
scheduler_add_queue abort-job "$(printer_uri "$RELAY_PORT")" -o printer-error-policy=abort-job
for policy in retry-job retry-current-job stop-printer; do
  add_printer "$policy" --device-values --fault 'drop at byte 1000000 once'
  PATH=$PATH:/usr/sbin lpadmin -p "$policy" -o "printer-error-policy=$policy"
done
add_printer away --device-values
kill "$PRINTER_PID"
wait "$PRINTER_PID"
add_printer good --device-values
open_room "${policies[@]}" away good

send_photos 10 20 30 40 50 60 70 80
expect_all_completed "${JOBS[@]}"
expect_equal 'photos, each once' '10 20 30 40 50 60 70 80' \
  "$(photos_printed_by "${policies[@]}" away good)"
expect_works good
expect_equal 'cut sheets' 4 "$(find "$work" -name 'incomplete-*.png' | wc -l)"
log_holds 'Unable to contact printer, queuing on next printer in class.' ||
  fail 'no job came to the printer that is off'
expect_equal 'jobs handed on within a sheet' 4 "$(log_count '] Unable to write print data')"
# None of the policies has been asked.
for queue in "${policies[@]}" away good; do
  expect_enabled "$queue"
done

# It is switched on again.
printer_start "$TQR7_BUILD" "$work/back" --device-values || exit 1
scheduler_add_queue away "$(printer_uri "$PRINTER_PORT")"
# As many as there are members: each has its turn.
send_photos 90 100 110 120 130 140
expect_all_completed "${JOBS[@]}"
expect_works back
expect_equal 'photos in the end, each once' '10 20 30 40 50 60 70 80 90 100 110 120 130 140' \
  "$(photos_printed_by "${policies[@]}" back good)"

finish
