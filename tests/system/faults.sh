# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# What the tests of the printer's faults begin with. Each fault has a queue and a simulated printer of
# its own and one job of two sheets; all run at once. What was seen becomes the rows of the table in
# docs/faults.md: nothing is in a row that was not read off the scheduler, the tool or the sheets.
#
#   fault RULE [RULE …]   a fault, by the simulated printer's rules; FAULT_URI, FAULT_POLICY and
#                         FAULT_NAME (of the row) may be set for one call
#   fault_off             a printer that is switched off, and on when a person sees to it
#   run_faults            prints, looks, has a person see to the printers, brings the jobs back
#   write_rows NAME       the rows, for fault_table.sh

# A held job is tried again soon; 30 seconds are the scheduler's own pause.
# shellcheck disable=SC2034  # the private scheduler reads it
SCHEDULER_DIRECTIVES='JobRetryInterval 2'
# shellcheck source=tests/system/print_room.sh
. "$(dirname "${BASH_SOURCE[0]}")/print_room.sh"

rows_folder=$TQR7_BUILD/tests/faults
fault_names=() fault_queues=() fault_printers=() fault_jobs=() fault_rows=()

# shellcheck disable=SC2120
fault() {
  local queue rules=() rule name=''
  queue=$(printf 'q%02d' ${#fault_queues[@]})
  for rule in "$@"; do
    rules+=(--fault "$rule")
    name+="${name:+ and }\`$rule\`"
  done
  # The filter's seconds are short: a busy printer would say that it asks again too soon.
  add_printer "$queue" --device-values --simulated-clock "${rules[@]}"
  PATH=$PATH:/usr/sbin lpadmin -p "$queue" -o printer-error-policy="${FAULT_POLICY:-retry-job}"
  fault_names+=("${FAULT_NAME:-$name}")
  fault_queues+=("$queue")
  fault_printers+=("$PRINTER_PID")
}

# shellcheck disable=SC2016,SC2119  # Markdown; no rule
fault_off() {
  FAULT_NAME='the printer is off, `contimeout=8`, `printer-error-policy=abort-job`' \
    FAULT_POLICY=abort-job fault
  kill "$PRINTER_PID"
  wait "$PRINTER_PID"
  fault_printers[-1]=off
}

# A person sees to a printer.
see_to() {
  local queue=$1 printer=$2
  if [ "$printer" != off ]; then
    kill -USR1 "$printer"
    return
  fi
  # Or the old printer's port could be read before the new one has begun its log.
  rm "$work/$queue/printer.log"
  printer_start "$TQR7_BUILD" "$work/$queue" --device-values || exit 1
  PATH=$PATH:/usr/sbin lpadmin -p "$queue" -v "$(printer_uri "$PRINTER_PORT")"
}

attribute_of_queue() {
  lpoptions -p "$1" | grep -o " $2=[^ ]*" | cut -d= -f2
}

# Printer-state is 3 idle, 4 processing, 5 stopped.
queue_rests() {
  [ "$(attribute_of_queue "$1" printer-state)" != 4 ]
}

# Whether nothing more happens by itself. A held job is tried again in a moment.
job_rests() {
  local job=$1 queue=${1%-*}
  case $(scheduler_job_state "$job") in
    completed | canceled | aborted | stopped) queue_rests "$queue" ;;
    pending) [ "$(attribute_of_queue "$queue" printer-state)" = 5 ] ;;
    *) false ;;
  esac
}

# The queue's state and reasons, by IPP. lpstat has to tell the same.
look_at_queue() {
  local queue=$1 state said
  said=$(lpstat -l -p "$queue")
  case $(attribute_of_queue "$queue" printer-state) in
    3) state=idle && expect_contains "lpstat of $queue" 'is idle' "$said" ;;
    5) state=stopped && expect_contains "lpstat of $queue" 'disabled since' "$said" ;;
    *) state='neither idle nor stopped' ;;
  esac
  QUEUE_STATE=$state
  QUEUE_REASONS=$(attribute_of_queue "$queue" printer-state-reasons)
  expect_contains "lpstat of $queue" "Alerts: ${QUEUE_REASONS//,/ }" "${said//,/ }"
}

# The first line of tqr7 status, without the queue's name, and its exit status.
look_with_tool() {
  local status=0 said
  said=$("$TQR7_BUILD/tqr7" status "$1" | head -n 1; exit "${PIPESTATUS[0]}") || status=$?
  said=${said#"$1: "}
  TOOL_STATUS="$status: ${said%, accepts jobs}"
}

# The filter's own words of error in the log.
words_in_log() {
  grep -aE "^E .*\[Job ${1#*-}\] ([a-z]+-[a-z]+-?[a-z]*|out-of-range) 0x" \
    "$SCHEDULER_DIR/log/error_log" | sed 's/.*\] //' | sort -u | xargs
}

code() {
  case $1 in
    '' | none) echo '–' ;;
    *) echo "\`$1\`" ;;
  esac
}

# A row up to where the fault shows.
look() {
  local i=$1 queue=${fault_queues[$1]} job=${fault_jobs[$1]}
  look_at_queue "$queue"
  look_with_tool "$queue"
  fault_rows[i]="| ${fault_names[i]} | $(scheduler_job_state "$job") | $QUEUE_STATE"
  fault_rows[i]+=" | $(code "$QUEUE_REASONS") | $(code "$(words_in_log "$job")")"
  fault_rows[i]+=" | $TOOL_STATUS | $(sheet_count "$queue")"
}

is_completed() {
  [ "$(scheduler_job_state "$1")" = completed ]
}

# What brings the job out, to RETURNS.
# shellcheck disable=SC2016  # Markdown
bring_back() {
  local queue=$1 job=$2 said
  RETURNS='by itself'
  is_completed "$job" && return
  # Pending: the queue was stopped by its error policy, and the job goes on with it.
  local pending
  pending=$(scheduler_job_state "$job")
  said=$("$TQR7_BUILD/tqr7" resume "$queue" 2>&1)
  RETURNS='`tqr7 resume`'
  if [[ $pending == pending || $said == *"$queue: job ${job#*-} started again"* ]]; then
    wait_until "$job is completed" is_completed "$job"
    return
  fi
  lp -i "$job" -H restart
  RETURNS='`lp -i JOB -H restart`'
  wait_until "$job is completed" is_completed "$job"
}

run_faults() {
  local i
  grey_photo "$work/photo.pgm" 100 1852 631
  for i in "${!fault_queues[@]}"; do
    print_job "${fault_queues[i]}" "${plain[@]}" -o PageSize=RQ_5x15 -n 2 "$work/photo.pgm"
    fault_jobs[i]=$JOB
  done
  for i in "${!fault_jobs[@]}"; do
    wait_until "${fault_names[i]}: ${fault_jobs[i]} rests" job_rests "${fault_jobs[i]}"
    look "$i"
  done
  for i in "${!fault_printers[@]}"; do
    see_to "${fault_queues[i]}" "${fault_printers[i]}"
  done
  for i in "${!fault_jobs[@]}"; do
    bring_back "${fault_queues[i]}" "${fault_jobs[i]}"
    [ "$(sheet_count "${fault_queues[i]}")" -ge 2 ] || RETURNS='nothing, it counts as printed'
    fault_rows[i]+=" | $RETURNS | $(sheet_count "${fault_queues[i]}") |"
  done
  # Every sheet that came out shows all of the photo.
  expect_equal 'photos on the sheets' 100 \
    "$(photos_printed_by "${fault_queues[@]}" | tr ' ' '\n' | sort -u | xargs)"
}

write_rows() {
  mkdir -p "$rows_folder"
  printf '%s\n' "${fault_rows[@]}" >"$rows_folder/$1.md"
}
