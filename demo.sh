#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Prints a photo on a simulated TQR7: a real scheduler, this filter, and a PNG of the sheet.
set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/prepare.sh
. "$here/scripts/prepare.sh"
# shellcheck source=scripts/private-scheduler.sh
. "$here/scripts/private-scheduler.sh"
# shellcheck source=scripts/simulated-printer.sh
. "$here/scripts/simulated-printer.sh"

photo='' size=RQ_10x15 finish=Gloss output=$PWD/prints profile='' compare=''
lp_options=() printer_options=()
# A build folder that is up to date, if there is one; otherwise this builds.
build=${TQR7_BUILD:-}

size_names() {
  "$here/scripts/papers" | cut -d ' ' -f 1
}

usage() {
  cat <<HELP
usage: ./demo.sh [photo] [options]

Installs what is missing, builds, and prints the photo (JPEG, PNG, TIFF, GIF or PDF; the sample
when there is none) through a private CUPS scheduler on a simulated TQR7. Nothing of the system's
own printing is touched.

  --size NAME            paper size, with or without "RQ_" (10x15)
  --finish gloss|matte   finish (gloss)
  -o NAME=VALUE          any option of lp or of the printer, as often as you like
  --output DIR           folder for the PNG of the sheet (./prints)
  --compare              also makes NAME-compare.png: photo and print beside each other, on a sheet
                         that the photo (JPEG or PNG) fills
  --profile FILE         the printer's ICC profile, in place of the model of it that is built in:
                         the filter prints with it, and the sheet is shown through it
  --printer WORDS        options for the simulated printer, such as '--status 0x2665'
  --help                 this text

The sheet is a soft proof: the colours of the print, not the values that the printer was sent (for
those: --printer --device-values).

Sizes: $(size_names | sed 's/^RQ_//' | tr '\n' ' ')
A picture fills the sheet; -o print-scaling=fit shows all of it instead.
HELP
}

fail() {
  echo "demo.sh: $*" >&2
  exit 1
}

use_size() {
  local name
  while read -r name; do
    # In any case of letters, with or without RQ_.
    if [[ ${1,,} == "${name,,}" || rq_${1,,} == "${name,,}" ]]; then
      size=$name
      return
    fi
  done < <(size_names)
  fail "no paper size \"$1\"; there are: $(size_names | sed 's/^RQ_//' | tr '\n' ' ')"
}

use_finish() {
  case ${1,,} in
    gloss) finish=Gloss ;;
    matte) finish=Matte ;;
    *) fail "no finish \"$1\": gloss or matte" ;;
  esac
}

read_arguments() {
  while [ $# -gt 0 ]; do
    case $1 in
      --help | -h) usage && exit 0 ;;
      --compare) compare=yes ;;
      --size | --finish | --output | --profile | --printer | -o)
        [ $# -ge 2 ] || fail "$1 needs a value (--help shows how)"
        case $1 in
          --size) use_size "$2" ;;
          --finish) use_finish "$2" ;;
          --output) output=$2 ;;
          --profile) profile=$2 ;;
          --printer) read -ra printer_options <<<"$2" ;;
          -o) lp_options+=(-o "$2") ;;
        esac
        shift
        ;;
      -*) fail "no option \"$1\" (--help shows those there are)" ;;
      *)
        [ -z "$photo" ] || fail "one photo at a time: $photo, $1"
        photo=$1
        [ -n "$photo" ] || fail "the photo's name is empty"
        ;;
    esac
    shift
  done
}

# By the first bytes, as the scheduler does.
check_photo() {
  [ -e "$photo" ] || fail "there is no file $photo"
  if [ ! -f "$photo" ] || [ ! -r "$photo" ]; then
    fail "$photo cannot be read"
  fi
  case $(head -c 4 "$photo" | od -An -tx1 | tr -d ' \n') in
    ffd8ff* | 89504e47 | 25504446 | 47494638 | 49492a00 | 4d4d002a) ;;
    *) fail "$photo is not a JPEG, PNG, TIFF, GIF or PDF file" ;;
  esac
}

# A photo fills the sheet unless the person has said how large it is to be.
add_scaling() {
  local words=" ${lp_options[*]} "
  case $words in
    *' print-scaling='* | *fit-to-page* | *fitplot* | *' fill '* | *' fill='* | *crop-to-fit* | \
      *' scaling='* | *natural-scaling=* | *' ppi='*) ;;
    *) lp_options=(-o print-scaling=fill "${lp_options[@]}") ;;
  esac
}

build_all() {
  build=$here/build/release
  build_quietly "$here" demo-build.log tqr7_module tqr7-printer-sim tqr7.ppd sample-photo \
    job-state compare-prints || exit 1
}

stop_all() {
  scheduler_stop
  printers_stop
  [ -z "${sheets:-}" ] || rm -rf "$sheets"
}

# Shows the filter's progress until the job has ended, and sets $state to how it ended.
follow_job() {
  local job=$1 shown='' line tries
  for ((tries = 0; tries < 3600; ++tries)); do
    line=$(grep -ao 'Printing page [0-9]*, [0-9]*% complete' "$SCHEDULER_DIR/log/error_log" |
      tail -n 1)
    if [ "$line" != "$shown" ]; then
      echo "  $line"
      shown=$line
    fi
    state=$(scheduler_job_state "$job")
    case $state in
      completed | canceled | aborted | stopped) return ;;
    esac
    sleep 0.1
  done
  state='not at its end after six minutes'
}

# The printer's state reasons, each with the PPD's words for it, and the log.
explain_failure() {
  local reason words
  echo "The job is ${state:-lost}." >&2
  for reason in $(lpstat -l -p TQR7 | sed -n 's/^[ \t]*Alerts: //p' | tr ',' ' '); do
    words=$(sed -n "s|^\*cupsIPPReason $reason/\([^:]*\):.*|\1|p" "$build/tqr7.ppd")
    echo "  $reason${words:+: $words}" >&2
  done
  echo "The last lines of the scheduler's log:" >&2
  grep -a '\[Job ' "$SCHEDULER_DIR/log/error_log" | grep -av 'STATE: -\|envp\|argv' |
    tail -n 25 >&2
}

# Photo and sheet beside each other. The printer's list says where on the sheet the image lies; of
# two joined prints the first takes the lower half.
compare_with() {
  local sheet=$1 target=$2 area
  area=$(sed -n 's/.*image \([0-9]*\) x \([0-9]*\) at \([0-9]*\), \([0-9]*\),.*/\1 \2 \3 \4/p' \
    "$sheets/sheets.txt" | head -n 1)
  [ "$size" != RQ_5x15x2_2 ] || area='1852 616 0 616'
  # shellcheck disable=SC2086  # four numbers
  if "$build/compare-prints" "$photo" "$sheet" "$target" $area; then
    echo "Photo and sheet, beside each other, are in $target"
  else
    echo "Photo and sheet cannot be shown beside each other." >&2
  fi
}

# Moves the sheets to where the person wants them, under names that tell them apart.
keep_sheets() {
  local name number=0 sheet target
  name=$(basename "$photo")
  name="${name%.*}-${size#RQ_}"
  mkdir -p "$output" || fail "the folder $output cannot be made"
  for sheet in "$sheets"/sheet-*.png; do
    [ -f "$sheet" ] || continue
    number=$((number + 1))
    target="$output/$name$([ $number -eq 1 ] || echo "-$number").png"
    [ -z "$compare" ] || [ $number -gt 1 ] || compare_with "$sheet" "$output/$name-compare.png"
    mv -f "$sheet" "$target" || fail "$target cannot be written"
    echo "The sheet is in $target"
  done
  [ $number -gt 0 ]
}

# The sheet is shown through the profile that the filter prints with, unless the person wants it
# otherwise.
add_profile() {
  case " ${printer_options[*]} " in
    *' --profile'* | *' --device-values '*) ;;
    *) printer_options+=(--profile "${profile:-$build/tqr7.icc}") ;;
  esac
}

print_photo() {
  local request job
  sheets=$(mktemp -d /tmp/tqr7-sheets.XXXXXX) || fail "no room for the sheet in /tmp"
  add_profile
  printer_start "$build" "$sheets" "${printer_options[@]}" ||
    fail "no simulated printer"
  scheduler_start "$build" || fail "no private scheduler"
  if [ -n "$profile" ]; then
    install -m 644 "$profile" "$SCHEDULER_DIR/filter/tqr7.icc" || fail "no profile"
  fi
  # A job whose printer is lost is to end, and not to be tried again for hours.
  scheduler_add_queue TQR7 "$(printer_uri "$PRINTER_PORT")" \
    -o printer-error-policy=abort-job || fail "no queue"
  echo "Printing $photo on $size, ${finish,,} ..."
  request=$(lp -d TQR7 -o "PageSize=$size" -o "RQPrintFinish=$finish" "${lp_options[@]}" \
    -- "$photo") || fail "lp did not take the job"
  job=$(sed -n 's/^request id is \([^ ]*\) .*/\1/p' <<<"$request")
  follow_job "$job"
  if [ "$state" != completed ]; then
    explain_failure
    fail "the photo was not printed"
  fi
  keep_sheets || {
    explain_failure
    fail "the printer printed no sheet"
  }
}

read_arguments "$@"
[ -z "$photo" ] || check_photo
add_scaling
[ -n "$build" ] || build_all
photo=${photo:-$build/sample-photo.jpg}
trap stop_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
print_photo
