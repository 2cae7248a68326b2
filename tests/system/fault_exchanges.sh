#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What a person sees when the printer's answers come in pieces, late, short, behind stray bytes or
# never, and what brings the job out. The rows of docs/faults.md.
# shellcheck source=tests/system/faults.sh
. "$(dirname "${BASH_SOURCE[0]}")/faults.sh"

fault 'status pieces 4 7'
fault 'status late 0.3 s'
fault 'status late 3 s'
fault 'status short 10'
fault 'status stray 00 00'
fault 'status stray 11 22 33 44 26 65'
fault 'status 0x2665' 'status stray 00 00'
fault 'status silent'
fault 'enable pieces 2 3'
fault 'enable late 0.3 s'
fault 'enable late 3 s'
fault 'enable short 3'
fault 'enable stray 00 00'
fault 'enable stray 11 22 33 44 02 00'
fault 'enable silent'
fault 'sheet 2: enable silent'
run_faults
write_rows 2-exchanges

expect_no_protocol_errors
finish
