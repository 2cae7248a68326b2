# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Shell functions that run simulated printers on free ports of this machine. Source it.
#
#   printer_start BUILD DIR …   PRINTER_PORT is its port; sheets go to DIR, its words to
#                               DIR/printer.log; more words go to tqr7-printer-sim
#   printer_uri PORT            the address that a queue prints to
#   printers_stop               ends every printer started

PRINTER_PIDS=()

printer_start() {
  local build=$1 dir=$2 tries
  shift 2
  mkdir -p "$dir"
  "$build/tqr7-printer-sim" --port 0 --output "$dir" "$@" >"$dir/printer.log" 2>&1 &
  PRINTER_PID=$!
  PRINTER_PIDS+=("$PRINTER_PID")
  for ((tries = 0; tries < 250; ++tries)); do
    PRINTER_PORT=$(sed -n 's/^listening on 127\.0\.0\.1 port \([0-9]*\)$/\1/p' \
      "$dir/printer.log" 2>/dev/null)
    [ -z "$PRINTER_PORT" ] || return 0
    kill -0 "$PRINTER_PID" 2>/dev/null || break
    sleep 0.02
  done
  echo "The simulated printer did not start:" >&2
  cat "$dir/printer.log" >&2
  return 1
}

printer_uri() {
  # A printer that is switched off ends the job after some seconds instead of waiting for a week.
  printf 'socket://127.0.0.1:%s/?contimeout=8\n' "$1"
}

printers_stop() {
  local pid
  for pid in "${PRINTER_PIDS[@]}"; do
    kill "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
  done
  PRINTER_PIDS=()
}
