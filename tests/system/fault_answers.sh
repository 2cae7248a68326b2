#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What a person sees when the printer reports an error, refuses a sheet or is busy, and what brings
# the job out. The rows of docs/faults.md.
# shellcheck source=tests/system/faults.sh
. "$(dirname "${BASH_SOURCE[0]}")/faults.sh"

fault 'status 0x2665'
fault 'sheet 2: status 0x2665'
fault 'sheet 2: status 0x2665 once'
fault 'status 0x1234'
fault 'enable 0x0001'
fault 'enable 0x0101'
fault 'enable 0x0200'
fault 'enable 0x0201'
fault 'enable 0xFFFF'
fault 'enable 0x1234'
fault 'sheet 2: enable 0x0200'
fault 'busy 3'
fault 'busy 100'
run_faults
write_rows 1-answers

expect_no_protocol_errors
finish
