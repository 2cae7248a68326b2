#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A shell in which a queue on a simulated TQR7 is yours to break and mend; the system's own printing
# is not touched.
set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/prepare.sh
. "$here/scripts/prepare.sh"
# shellcheck source=scripts/private-scheduler.sh
. "$here/scripts/private-scheduler.sh"
# shellcheck source=scripts/simulated-printer.sh
. "$here/scripts/simulated-printer.sh"

output=$PWD/prints
printer_options=() commands=''
# A build folder that is up to date, if there is one; otherwise this builds.
build=${TQR7_BUILD:-}

usage() {
  cat <<HELP
usage: ./rehearse.sh [options]

Installs what is missing, builds, starts a private CUPS scheduler with a queue "photo" on a
simulated TQR7, and gives you a shell: print with lp, look with lpstat and tqr7, and mend with
tqr7 resume, as you would on a real printer. "exit" ends it all.

  --fault RULE       what goes wrong, as tqr7-printer-sim takes it; as often as you like:
                       --fault 'status 0x2665'           the printer reports error 2665
                       --fault 'sheet 2: enable 0x0201'  refuses the second sheet
                       --fault 'paper 3 then 0x2200'     has paper for three sheets
  --printer WORDS    other options for the simulated printer
  --output DIR       folder for the sheets' PNGs (./prints)
  -c COMMANDS        runs these in the shell instead of you, and ends with their exit status
  --help             this text

In the shell:
  \$SAMPLE            a photo to print
  printer-log        what the printer has said
  see-to-printer     somebody sees to the printer: errors cleared, paper and ribbon filled
HELP
}

fail() {
  echo "rehearse.sh: $*" >&2
  exit 1
}

read_arguments() {
  while [ $# -gt 0 ]; do
    case $1 in
      --help | -h) usage && exit 0 ;;
      --fault | --printer | --output | -c)
        [ $# -ge 2 ] || fail "$1 needs a value (--help shows how)"
        case $1 in
          --fault) printer_options+=(--fault "$2") ;;
          --printer)
            local words
            read -ra words <<<"$2"
            printer_options+=("${words[@]}")
            ;;
          --output) output=$2 ;;
          -c) commands=$2 ;;
        esac
        shift
        ;;
      *) fail "no option \"$1\" (--help shows those there are)" ;;
    esac
    shift
  done
}

build_all() {
  build=$here/build/release
  build_quietly "$here" rehearse-build.log tqr7_module tqr7-printer-sim tqr7.ppd tqr7 \
    sample-photo job-state || exit 1
}

stop_all() {
  scheduler_stop
  printers_stop
}

printer-log() {
  cat "$PRINTER_LOG"
}

see-to-printer() {
  kill -USR1 "$PRINTER_PID"
}

open_shell() {
  export PATH=$build:$PATH SAMPLE=$build/sample-photo.jpg
  export PRINTER_LOG=$output/printer.log PRINTER_PID
  export -f printer-log see-to-printer
  if [ -n "$commands" ]; then
    bash -c "$commands"
    return
  fi
  echo "The queue is photo; sheets come to $output. A photo to try: \$SAMPLE"
  echo "  lp -d photo -o print-scaling=fill \$SAMPLE"
  echo "  tqr7 status"
  echo "see-to-printer mends the printer, printer-log shows what it said, exit ends all."
  local settings
  settings=$(mktemp "$SCHEDULER_DIR/rc.XXXXXX") || fail "no room in $SCHEDULER_DIR"
  printf '%s\n' "PS1='rehearsal\$ '" ". '$build/completion/tqr7'" >"$settings"
  bash --rcfile "$settings" -i
}

read_arguments "$@"
[ -n "$build" ] || build_all
trap stop_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
printer_start "$build" "$output" "${printer_options[@]}" ||
  fail "no simulated printer"
scheduler_start "$build" || fail "no private scheduler"
scheduler_add_queue photo "$(printer_uri "$PRINTER_PORT")" || fail "no queue"
open_shell
