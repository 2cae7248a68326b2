#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The rehearsal that the docs tell: an error is found, understood, cleared, and the photo printed,
# by the commands as they stand there.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
scheduler_stop

root=$tests/../..

# The block of docs/when-it-does-not-print.md that is marked with the name.
block() {
  awk -v mark="<!-- test: $1 -->" '
    $0 == mark { marked = 1; next }
    marked && /^```/ { if (inside) exit; inside = 1; next }
    inside' "$root/docs/when-it-does-not-print.md"
}

# A person waits until something has happened before going on.
commands=$(block rehearse | sed -e "s/^exit$//" \
  -e '/^lp /a until lpstat -l -o photo | grep -q completed-with-errors; do sleep 0.2; done' \
  -e '/^tqr7 resume/a until lpstat -W completed -o | grep -q photo-1; do sleep 0.2; done')
start=$(block start)
expect_equal 'how the page starts' "./rehearse.sh --fault 'status 0x2665'" "$start"
said=$(cd "$work" && export SCHEDULER_FILTER_PRELOAD &&
  timeout 60 "$root/rehearse.sh" --fault 'status 0x2665' -c "$commands" 2>&1) ||
  fail "the rehearsal ends with $?"

expect_contains 'found' 'photo: not good, idle' "$said"
expect_contains 'found' '1 job is stopped' "$said"
expect_contains 'understood' 'its class is 0008' "$said"
expect_contains 'resumed' 'photo: job 1 started again from its beginning' "$said"
expect_contains 'good in the end' 'photo: good, idle' "$said"
expect_sheet "$work/prints/sheet-0001.png" 1852 1232
[ "$failures" -eq 0 ] || echo "$said"
finish
