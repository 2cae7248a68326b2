#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs the commands of one page of the docs, in the page's order, in a shell with a private scheduler and a
# queue "photo" on a simulated printer. tests/docs/commands.list says how each has to end.
# run_commands.sh PAGE
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/../system/system_test.sh"
# shellcheck source=tests/docs/page_commands.sh
. "$(dirname "${BASH_SOURCE[0]}")/page_commands.sh"

page=$1
root=$(cd "$tests/../.." && pwd)
list=$root/tests/docs/commands.list
place=$work/place

# The folder in which the commands run: this tree with its build, and a person's files.
make_place() {
  local entry
  mkdir -p "$place/build" "$work/bin"
  for entry in "$root"/* "$root"/.ci; do
    case ${entry##*/} in
      build | prints) ;;
      *) ln -s "$entry" "$place/" ;;
    esac
  done
  ln -s "$TQR7_BUILD" "$place/build/release"
  cp "$TQR7_BUILD/sample-photo.jpg" "$place/photo.jpg"
  gs -q -sDEVICE=pdfwrite -o "$place/album.pdf" -c '<</PageSize [444.48 295.68]>> setpagedevice
    0.2 0.4 0.8 setrgbcolor 0 0 444.48 295.68 rectfill showpage
    0.8 0.4 0.2 setrgbcolor 0 0 444.48 295.68 rectfill showpage' >/dev/null ||
    fail 'no PDF to print'
  # The example of the printer's manual page.
  printf '%s\n' 'paper 2 then 0x1100' 'status stray 00 FF once' >"$place/evening"
  # Whoever runs the tests may do here what the docs do as root; there is no desktop.
  # shellcheck disable=SC2016  # the words of the programs
  printf '#!/bin/sh\nexec "$@"\n' >"$work/bin/sudo"
  # shellcheck disable=SC2016
  printf '#!/bin/sh\ntest -f "$1"\n' >"$work/bin/xdg-open"
  chmod 755 "$work"/bin/*
}

# A command with the names of this place: the printers' addresses and ports, the folders of an
# installed driver. A printer that names no port takes a free one, too.
in_this_place() {
  local command=$1
  case $command in
    tqr7-printer-sim*--port*) ;;
    tqr7-printer-sim*) command="tqr7-printer-sim --port 9100${command#tqr7-printer-sim}" ;;
  esac
  sed -E -e "s|--port 9100|--port 0|" \
    -e "s#192\.0\.2\.[0-9]+:9100/\?contimeout=60#127.0.0.1:$PRINTER_PORT/?contimeout=8#" \
    -e "s|127\.0\.0\.1:9100|127.0.0.1:${own_port:-0}|" \
    -e "s|-m drv:///tqr7\.drv/tqr7\.ppd|-P $SCHEDULER_DIR/tqr7.ppd|" \
    -e "s|/usr/lib/cups/filter/tqr7/|$TQR7_BUILD/|" \
    -e "s|/etc/cups/|$SCHEDULER_DIR/etc/|" <<<"$command"
}

# The words of a command that ran go to this file.
words=$work/words

# shellcheck disable=SC2317  # wait_until calls it
no_job_is_at_work() {
  local job
  for job in $(lpstat -W not-completed -o | cut -d ' ' -f 1); do
    case $(scheduler_job_state "$job") in
      pending | processing) return 1 ;;
    esac
  done
}

all_jobs() { lpstat -W all -o | cut -d ' ' -f 1 | sort; }

# Stopped jobs.
jobs_left() { lpstat -W not-completed -o | wc -l; }

# run STATUS COMMAND END: it exits with STATUS, every job that it sent ends as END, and no other job stops.
run() {
  local wanted=$1 command=$2 end=$3 jobs left=0 status job
  jobs=$(all_jobs)
  [ "$end" = stopped ] || left=$(jobs_left)
  timeout 60 bash -c "$command" >"$words" 2>&1
  status=$?
  [ $status -eq "$wanted" ] || fail "\"$command\" ends with $status: $(cat "$words")"
  wait_until "the jobs of \"$command\" have ended" no_job_is_at_work
  for job in $(comm -13 <(echo "$jobs") <(all_jobs)); do
    expect_equal "$job of \"$command\"" "$end" "$(scheduler_job_state "$job")"
  done
  [ "$end" = stopped ] || [ "$(jobs_left)" -le "$left" ] || fail "A job has stopped behind \"$command\""
}

# Starts a program that runs until it is stopped, and waits for its words.
start() {
  local said=$1 command=${2% &}
  : >"$words"
  bash -c "exec $command" >"$words" 2>&1 &
  started=$!
  if [ -n "$said" ]; then
    wait_until "\"$command\" says $said" grep -q -- "$said" "$words"
  else
    sleep 0.5
  fi
  kill -0 "$started" 2>/dev/null || fail "\"$command\" has ended: $(cat "$words")"
  own_port=$(sed -n 's/^listening on 127\.0\.0\.1 port //p' "$words")
}

stop() {
  local status
  kill "$started" 2>/dev/null
  wait "$started"
  status=$?
  [ $status -eq 0 ] || fail "\"$1\", stopped, ends with $status: $(cat "$words")"
}

follow_row() {
  local how=$1 command=$2
  case $how in
    run) run 0 "$command" completed ;;
    'run '*) run "${how#run }" "$command" completed ;;
    stops) run 0 "$command" stopped ;;
    serves*) start "$(cut -s -d ' ' -f 2- <<<"$how")" "$command" && stop "$command" ;;
    stays*)
      start "${how#stays }" "$command"
      PRINTER_PIDS+=("$started")
      ;;
    meanwhile)
      PRINTER_PID=$PRINTER_PID bash -c "$command" || fail "meanwhile: $command"
      return
      ;;
    printer | ci | 'in '* | 'block '* | 'section '* | 'as in '* | 'nowhere: '*) return ;;
    *) fail "the list does not know \"$how\"" ;;
  esac
  run_so_far=$((run_so_far + 1))
}

rows=$(rows_of_page "$list" "$page")
read -ra printer_options < <(sed -n 's/^printer\t//p' <<<"$rows")
add_printer photo "${printer_options[@]}"
make_place
cd "$place" || exit 1
export PATH=$work/bin:$TQR7_BUILD:$PATH:/usr/sbin TQR7_BUILD SCHEDULER_FILTER_PRELOAD

run_so_far=0
while IFS=$'\t' read -r how command <&3; do
  follow_row "$how" "$(in_this_place "$command")"
done 3<<<"$rows"

echo "$run_so_far commands of $page"
[ "$run_so_far" -gt 0 ] || fail "$page has no command to run"
grep -h 'failure: ' "$work"/*/printer.log && fail 'the printer could not write'
finish
