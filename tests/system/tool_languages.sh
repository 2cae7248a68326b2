#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# On a German desktop: the scheduler's programs speak German with the job, and the tool with the
# person; what stopped a queue is seen all the same.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

in_german() {
  LOCPATH=$TQR7_BUILD/tests/unit/language/locales LC_ALL=de_DE.UTF-8 "$@"
}

# What the tool says goes to SAID, both streams; then its exit status is held against the first word.
expect_tool() {
  local expected=$1 status=0
  shift
  SAID=$(in_german "$TQR7_BUILD/tqr7" "$@" 2>&1) || status=$?
  expect_equal "the exit status of $*" "$expected" "$status"
}

picture "$work/photo.png" 1852 1232

add_printer strict --fault 'sheet 1: enable 0x0200 once'
job=strict-$(in_german lp -d strict "${plain[@]}" "$work/photo.png" | grep -o 'strict-[0-9]*' |
  sed 's/.*-//')
expect_job_ends "$job" stopped
log_holds '"Verbinde zum Drucker."' || fail 'the backend did not speak German'
number=${job#strict-}

# The driver's own word is lost where another program of the job complains after it.
expect_tool 1 status strict
expect_contains 'a refused sheet' 'strict: nicht gut, angehalten, nimmt Aufträge an
  Grund paused
' "$SAID"
expect_contains 'who stopped it' \
  "    Der Treiber hat die Warteschlange bei Auftrag $number angehalten: " "$SAID"
expect_contains 'the job' "  1 Auftrag ist angehalten ($number)
    Der Treiber hat aufgegeben, und der Druckdienst beginnt nicht von selbst von vorn.
    Zu tun: Nach dem Drucker sehen, dann \`tqr7 resume strict\`; oder einen Auftrag mit \
\`cancel NUMBER\` aufgeben.
  bidirektionale Verbindung: ja (socket)" "$SAID"

expect_tool 1 status --json strict
german=$SAID
expect_equal 'JSON in German' "$("$TQR7_BUILD/tqr7" status --json strict)" "$german"

expect_tool 0 resume strict
expect_equal 'resuming' "strict: Auftrag $number von vorn neu gestartet
strict: Warteschlange wieder gestartet (der Treiber hatte sie angehalten: driver-setting-unmuch)" \
  "${SAID/angehalten: abgelehntes Blatt/angehalten: driver-setting-unmuch}"
expect_completed "$job"

expect_tool 2 status missing
expect_equal 'no such queue' 'tqr7 status: es gibt keine Warteschlange missing' "$SAID"

finish
