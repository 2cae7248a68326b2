#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A printer of a class that refuses a sheet stops its queue after that one job; the other takes the rest.
# shellcheck source=tests/system/print_room.sh
. "$(dirname "${BASH_SOURCE[0]}")/print_room.sh"

add_printer good --device-values
add_printer strict --device-values --enable 0x0200
open_room good strict
send_photos 10 20 30 40
expect_all_end "${JOBS[@]}"
mapfile -t stopped < <(jobs_in_state stopped "${JOBS[@]}")
expect_equal 'jobs that stopped' 1 ${#stopped[@]}
expect_contains 'the queue of the printer that refuses' disabled "$(lpstat -p strict)"

lp -i "${stopped[0]}" -H restart
expect_all_completed "${JOBS[@]}"
expect_equal 'photos, each once' '10 20 30 40' "$(photos_printed_by good strict)"

expect_no_protocol_errors
finish
