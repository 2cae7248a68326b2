#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The commands of docs/print-room.md do what the page says, as they stand there: only the printers'
# addresses and the PPD's place are put in.
# shellcheck source=tests/system/print_room.sh
. "$(dirname "${BASH_SOURCE[0]}")/print_room.sh"

page=$tests/../../docs/print-room.md
ports=()

# The commands of the block of the page that is marked with the name.
commands_of() {
  awk -v mark="<!-- test: $1 -->" '
    $0 == mark { marked = 1; next }
    marked && /^```/ { if (inside) exit; inside = 1; next }
    inside' "$page" |
    sed -e "s|192\.0\.2\.11:9100|127.0.0.1:${ports[0]}|" \
      -e "s|192\.0\.2\.12:9100|127.0.0.1:${ports[1]}|" \
      -e "s|192\.0\.2\.13:9100|127.0.0.1:${ports[2]}|" \
      -e "s|/usr/lib/cups/filter/tqr7/tqr7\.ppd|$SCHEDULER_DIR/tqr7.ppd|" \
      -e "s|photo\.jpg|$work/photo.pgm|"
}

run() {
  local commands
  commands=$(commands_of "$1")
  [ -n "$commands" ] || fail "the page has no commands \"$1\""
  done_blocks+=("$1")
  PATH=$PATH:/usr/sbin:$TQR7_BUILD bash -e <<<"$commands" >"$work/$1.out" 2>&1 ||
    fail "the commands \"$1\": $(cat "$work/$1.out")"
}
done_blocks=()

for printer in one two three; do
  status=0
  [ "$printer" != two ] || status=0x2665
  printer_start "$TQR7_BUILD" "$work/$printer" --device-values --status "$status" || exit 1
  ports+=("$PRINTER_PORT")
done
grey_photo "$work/photo.pgm" 200

run queues
run defaults
run class
expect_equal 'the members' 'photo1 photo2 photo3' "$(lpstat -c room | tail -n +2 | xargs)"
# So that the photo's grey can be told on the sheet.
lpoptions -p room "${plain[@]}"
lpoptions -p photo2 "${plain[@]}"

# The second is in error and stops the jobs that it draws; the first job is among them.
run print
send_photos 10 20 30
JOBS+=(room-1)
expect_all_end "${JOBS[@]}"
expect_equal 'the first job' stopped "$(scheduler_job_state room-1)"
done_blocks+=(status)
seen=$(PATH=$TQR7_BUILD:$PATH bash <<<"$(commands_of status)")
expect_equal 'the exit status of tqr7 status' 1 $?
expect_contains 'tqr7 status' 'photo2: not good, idle' "$seen"
expect_contains 'tqr7 status' 'photo1: good' "$seen"
expect_contains 'tqr7 status' 'reason com.corvantiel-error0008_2665' "$seen"
run look
expect_contains 'the printers' 'printer photo2 is idle' "$(cat "$work/look.out")"
expect_contains 'the room' 'job-completed-with-errors' "$(cat "$work/look.out")"
run aside
expect_contains 'the queue set aside' disabled "$(lpstat -p photo2)"
run move
expect_completed room-1
run again
expect_all_completed "${JOBS[@]}"
expect_equal 'photos, each once' '10 20 30 200' "$(photos_printed_by one three)"

# Opened while the printer is still in error, the queue is set aside again by the shell that watches.
run back
expect_job_ends photo2-5 stopped
commands_of watch | sed 's/^while sleep 2;/while sleep 0.2;/' >"$work/watch.sh"
done_blocks+=(watch)
bash "$work/watch.sh" >"$work/watch.out" 2>&1 &
PRINTER_PIDS+=($!)
wait_until 'the shell has set the queue aside' grep -qx 'photo2 is set aside' "$work/watch.out"
expect_contains 'the queue set aside again' disabled "$(lpstat -p photo2)"

# The person has seen to the printer: the photo comes out, and the queue stays open.
printer_start "$TQR7_BUILD" "$work/mended" --device-values || exit 1
PATH=$PATH:/usr/sbin lpadmin -p photo2 -v "$(printer_uri "$PRINTER_PORT")"
run back
expect_completed photo2-6
JOBS=()
send_photos 40 50 60
expect_all_completed "${JOBS[@]}"
expect_equal 'photos of the mended printer' 200 "$(photos_printed_by mended | cut -d' ' -f2)"
expect_equal 'how often the queue was set aside' 1 "$(wc -l <"$work/watch.out")"
expect_equal 'photos in the end' '10 20 30 40 50 60 200 200' "$(photos_printed_by one three mended)"

expect_equal 'the blocks of the page' "$(sed -n 's/^<!-- test: \(.*\) -->$/\1/p' "$page" | sort -u)" \
  "$(printf '%s\n' "${done_blocks[@]}" | sort -u)"
expect_equal 'blocks of the page without a mark' \
  $((2 * $(grep -c '^<!-- test: ' "$page"))) "$(grep -c '^```' "$page")"
expect_no_protocol_errors
finish
