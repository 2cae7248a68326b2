# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# What the tests of a print room begin with: a class "room" over several printers, and photos that can
# be told apart when they are printed.

# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# Queues as members of the class "room".
open_room() {
  local queue
  for queue in "$@"; do
    PATH=$PATH:/usr/sbin lpadmin -p "$queue" -c room
  done
  cupsenable room
  cupsaccept room
}

# A photo of one grey level; without a size it has the shape of a 10x15 sheet.
grey_photo() {
  local file=$1 level=$2 width=${3:-463} height=${4:-308}
  {
    printf 'P5\n%d %d\n255\n' "$width" "$height"
    head -c $((width * height)) /dev/zero | tr '\0' "\\$(printf '%03o' "$level")"
  } >"$file"
}

# Sends photos of the grey levels given to the room, one a job; adds the jobs to JOBS.
JOBS=()
send_photos() {
  local level
  for level in "$@"; do
    grey_photo "$work/photo-$level.pgm" "$level"
    print_job room "${plain[@]}" "$work/photo-$level.pgm"
    JOBS+=("$JOB")
  done
}

# The jobs of those given that are in a state.
jobs_in_state() {
  local state=$1 job
  shift
  for job in "$@"; do
    [ "$(scheduler_job_state "$job")" != "$state" ] || echo "$job"
  done
}

expect_all_end() {
  local job
  for job in "$@"; do
    wait_until "$job has ended" job_ended "$job"
  done
}

expect_all_completed() {
  expect_all_end "$@"
  expect_equal 'jobs that are completed' "$*" "$(jobs_in_state completed "$@" | xargs)"
}

# The grey levels of all photos that the printers named have printed, in their order.
photos_printed_by() {
  local sheets
  mapfile -t sheets < <(cd "$work" && find "$@" -name 'sheet-*.png')
  [ ${#sheets[@]} -eq 0 ] || (cd "$work" && "$tools/sheet-grey" "${sheets[@]}") | sort -n | xargs
}

sheet_count() {
  find "$work/$1" -name 'sheet-*.png' | wc -l
}

expect_works() {
  [ "$(sheet_count "$1")" -gt 0 ] || fail "$1 has printed nothing"
}

expect_enabled() {
  expect_contains "the queue $1" 'enabled' "$(lpstat -p "$1")"
}
