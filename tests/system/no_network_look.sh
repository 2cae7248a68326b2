#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The filter asks the scheduler which reasons it lists, and libcups does not look for printers on the
# network for it: that takes a quarter of a second before each sheet where Avahi runs.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer good
# The bus on which libcups would look for Avahi: another printer, which tells of every caller and
# drops it.
add_printer bus --fault 'drop at byte 1'
sed -i "s|^LD_PRELOAD|DBUS_SYSTEM_BUS_ADDRESS=tcp:host=127.0.0.1,port=$PRINTER_PORT &|" \
  "$SCHEDULER_DIR/filter/rastertoprinter"
picture "$work/photo.png" 1852 1232
print_job good "${plain[@]}" "$work/photo.png"
expect_completed "$JOB"
expect_equal 'withdrawn' 2 "$(log_count 'clean_printer_state() END')"
expect_equal 'callers on the bus' "listening on 127.0.0.1 port $PRINTER_PORT" \
  "$(cat "$work/bus/printer.log")"

expect_no_protocol_errors

# A queue called "lp" is no default that the scheduler names: then libcups looks for one everywhere.
add_printer lp
print_job lp "${plain[@]}" "$work/photo.png"
expect_completed "$JOB"
expect_contains 'callers on the bus' 'connection 1: dropped' "$(cat "$work/bus/printer.log")"
expect_equal 'errors that the printer found' '' "$(grep ' error: ' "$work/lp/printer.log")"

finish
