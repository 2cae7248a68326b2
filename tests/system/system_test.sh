# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# What every system test begins with: a private scheduler, and words to say what is expected.
# Needs TQR7_BUILD, the build folder. A test ends with finish. The filter does not sleep for long, unless
# the test has set SCHEDULER_FILTER_PRELOAD to nothing before.
set -u

tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/private-scheduler.sh
. "$tests/../../scripts/private-scheduler.sh"
# shellcheck source=scripts/simulated-printer.sh
. "$tests/../../scripts/simulated-printer.sh"

tools=$TQR7_BUILD/tests
failures=0
# Colours that reach the printer as they are in the picture. A printer with --device-values shows them
# so; others show what they look like on paper.
# shellcheck disable=SC2034  # the tests use it
plain=(-o RQColorConversion=Disabled -o RQSharpness_Common=None)

stop_test() {
  local status=$?
  if [ $status -ne 0 ]; then
    echo "--- the scheduler's log:"
    grep -av 'STATE: -\|envp\|argv\[' "$SCHEDULER_DIR/log/error_log" | tail -n 120
    echo "--- the printers' words:"
    tail -n 30 "$work"/*/printer.log
  fi
  scheduler_stop
  printers_stop
  rm -rf "$work"
}

fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# What is expected comes before what there is.
expect_equal() {
  [ "$2" = "$3" ] || fail "$1: expected \"$2\", there is \"$3\""
}

expect_contains() {
  case $3 in
    *"$2"*) ;;
    *) fail "$1: \"$2\" is not in \"$3\"" ;;
  esac
}

expect_sheet() {
  local said
  said=$("$tools/check-sheet" "$@" 2>&1) || fail "$said"
}

# The sheet is as large as said, and none of the dots has the colour given.
expect_other_colours() {
  local sheet=$1 width=$2 height=$3
  shift 3
  expect_sheet "$sheet" "$width" "$height"
  while [ $# -ge 3 ]; do
    "$tools/check-sheet" "$sheet" "$width" "$height" "$1" "$2" "$3" >/dev/null &&
      fail "$sheet: at $1, $2 there is $3"
    shift 3
  done
}

# The middles of the quarters of an area of the sheet, as check-sheet takes them.
quarters_of() {
  local left=$1 top=$2 width=$3 height=$4
  shift 4
  local x1=$((left + width / 4)) x2=$((left + width * 3 / 4))
  local y1=$((top + height / 4)) y2=$((top + height * 3 / 4))
  echo "$x1 $y1 $1 $x2 $y1 $2 $x1 $y2 $3 $x2 $y2 $4"
}

# Prints on a queue; the job's name goes to JOB.
print_job() {
  local queue=$1 said
  shift
  said=$(lp -d "$queue" "$@") || fail "lp: $said"
  # shellcheck disable=SC2034  # the tests use it
  JOB=$(sed -n 's/^request id is \([^ ]*\) .*/\1/p' <<<"$said")
}

# Runs a command until it succeeds, for two minutes at most.
wait_until() {
  local what=$1 tries
  shift
  for ((tries = 0; tries < 1200; ++tries)); do
    if "$@"; then
      return 0
    fi
    sleep 0.1
  done
  fail "waited two minutes for this: $what"
  return 1
}

# Whether the job has come to an end, a good one or another.
job_ended() {
  case $(scheduler_job_state "$1") in
    completed | canceled | aborted | stopped) ;;
    *) return 1 ;;
  esac
}

expect_job_ends() {
  wait_until "$1 has ended" job_ended "$1"
  expect_equal "$1" "$2" "$(scheduler_job_state "$1")"
}

expect_completed() {
  expect_job_ends "$1" completed
}

log_holds() {
  grep -aqF -- "$1" "$SCHEDULER_DIR/log/error_log"
}

# How often the log holds the text.
log_count() {
  grep -acF -- "$1" "$SCHEDULER_DIR/log/error_log"
}

# A queue named as the printer's folder, with a simulated printer of its own.
add_printer() {
  local name=$1
  shift
  printer_start "$TQR7_BUILD" "$work/$name" "$@" || exit 1
  scheduler_add_queue "$name" "$(printer_uri "$PRINTER_PORT")" || exit 1
}

# A queue as a client of IPP addresses it: through the scheduler's socket, whose path stands in the
# place of a host's name.
queue_address() {
  echo "ipp://${CUPS_SERVER//\//%2F}/printers/$1"
}

# A cable to the printer at a port that fails as told: its end for queues is RELAY_PORT. A second one
# needs a RELAY_LOG of its own.
relay_start() {
  local log=${RELAY_LOG:-$work/relay.log}
  "$tools/relay" "$@" >"$log" 2>&1 &
  RELAY_PID=$!
  # So that it ends with the printers.
  PRINTER_PIDS+=("$RELAY_PID")
  wait_until 'the relay listens' grep -q listening "$log"
  # shellcheck disable=SC2034  # the tests use it
  RELAY_PORT=$(sed -n 's/^listening on 127\.0\.0\.1 port //p' "$log")
}

picture() {
  "$tools/make-test-picture" "$@" || exit 1
}

# The simulated printers hold every byte against the protocol, and count what is wrong.
expect_no_protocol_errors() {
  local wrong
  wrong=$(grep -h ' error: \|failure: ' "$work"/*/printer.log)
  expect_equal 'errors that the printers found' '' "$wrong"
}

finish() {
  if [ "$failures" -gt 0 ]; then
    echo "$failures expectations failed"
    exit 1
  fi
  exit 0
}

work=$(mktemp -d /tmp/tqr7-system-test.XXXXXX)
trap stop_test EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0"
SCHEDULER_FILTER_PRELOAD=${SCHEDULER_FILTER_PRELOAD-$tools/quick-sleep.so}
scheduler_start "$TQR7_BUILD" || exit 1
