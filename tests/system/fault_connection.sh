#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What a person sees when the connection breaks or is slow, when the printer is off, when paper or
# ribbon run out or the cover is open, and what brings the job out. The rows of docs/faults.md.
# shellcheck source=tests/system/faults.sh
. "$(dirname "${BASH_SOURCE[0]}")/faults.sh"

fault_off
fault 'drop at byte 10 once'
for policy in retry-job retry-current-job stop-printer abort-job; do
  FAULT_POLICY=$policy FAULT_NAME="\`drop at byte 1000000 once\`, \`printer-error-policy=$policy\`" \
    fault 'drop at byte 1000000 once'
done
cut=("${fault_queues[@]}")
FAULT_NAME="\`drop at byte 10000000 once\`, the second sheet, \`printer-error-policy=abort-job\`" \
  FAULT_POLICY=abort-job fault 'drop at byte 10000000 once'
cut+=("${fault_queues[-1]}")
fault 'read 8000000 bytes/s'
fault 'paper 1 then 0x2100'
fault 'ribbon 1 then 0x2202'
fault 'cover 0x2390'
fault 'sheet 2: cover 0x2390 for 2 s'
run_faults
write_rows 3-connection

# A stream that broke off is no error of the filter's; nothing else may be wrong.
for queue in "${cut[@]}"; do
  sed -i '/ error: .*cut/d' "$work/$queue/printer.log"
done
expect_no_protocol_errors
finish
