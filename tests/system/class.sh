#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A class gives its jobs to all its printers; one in error leaves the others working, and every photo
# comes out once.
# shellcheck source=tests/system/print_room.sh
. "$(dirname "${BASH_SOURCE[0]}")/print_room.sh"

add_printer one --device-values
add_printer two --device-values
add_printer three --device-values
open_room one two three
send_photos 10 30 50 70 90 110
expect_all_completed "${JOBS[@]}"
for printer in one two three; do
  expect_works "$printer"
done
expect_equal 'photos, all printers well' '10 30 50 70 90 110' "$(photos_printed_by one two three)"

# Two goes into error. The jobs it draws stop and are kept, the others are printed.
printer_start "$TQR7_BUILD" "$work/jammed" --device-values --status 0x2665 || exit 1
scheduler_add_queue two "$(printer_uri "$PRINTER_PORT")"
before=$(($(sheet_count one) + $(sheet_count three)))
JOBS=()
send_photos 20 40 60 80 100 120
expect_all_end "${JOBS[@]}"
mapfile -t stopped < <(jobs_in_state stopped "${JOBS[@]}")
mapfile -t completed < <(jobs_in_state completed "${JOBS[@]}")
[ ${#stopped[@]} -gt 0 ] || fail 'the printer in error has drawn no job'
expect_equal 'jobs, stopped or completed' ${#JOBS[@]} $((${#stopped[@]} + ${#completed[@]}))
expect_equal 'sheets of the others' ${#completed[@]} \
  $(($(sheet_count one) + $(sheet_count three) - before))
expect_equal 'sheets of the printer in error' 0 "$(sheet_count jammed)"
expect_equal 'jobs that wait for a person' "${stopped[*]}" \
  "$(lpstat -o room | cut -d' ' -f1 | xargs)"
expect_contains 'why the first stopped' 'Alerts: job-completed-with-errors' "$(lpstat -l -o room)"
expect_contains 'the reason' 'Alerts: com.corvantiel-error0008_2665' "$(lpstat -l -p two)"
for queue in one two three; do
  expect_enabled "$queue"
done

# Set aside, it draws no more; the stopped jobs come out on the others, and so does a moved one.
cupsdisable -r 'set aside' two
lpmove "${stopped[0]}" one
for job in "${stopped[@]:1}"; do
  lp -i "$job" -H restart
done
send_photos 130 140
expect_all_completed "${JOBS[@]}"
expect_equal 'sheets of the printer in error' 0 "$(sheet_count jammed)"
expect_equal 'photos, each once' '10 20 30 40 50 60 70 80 90 100 110 120 130 140' \
  "$(photos_printed_by one two three jammed)"

# The person has seen to the printer: it takes part again, and the reason is gone.
printer_start "$TQR7_BUILD" "$work/mended" --device-values || exit 1
scheduler_add_queue two "$(printer_uri "$PRINTER_PORT")"
cupsenable two
send_photos 150 160 170
expect_all_completed "${JOBS[@]}"
expect_works mended
expect_contains 'the reason afterwards' 'Alerts: none' "$(lpstat -l -p two)"
expect_equal 'photos in the end, each once' \
  '10 20 30 40 50 60 70 80 90 100 110 120 130 140 150 160 170' \
  "$(photos_printed_by one two three jammed mended)"

expect_no_protocol_errors
finish
