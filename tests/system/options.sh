#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The print options that a person chooses arrive in the header that the printer reads.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

# Sent ahead of the job header: two status requests of 8 bytes, a readiness query of 512.
job_header=528

add_printer chosen --record "$work/chosen.stream"
add_printer default --record "$work/default.stream"
picture "$work/photo.png" 1852 1232
print_job chosen -o RQPrintFinish=Matte -o RQPrintMode=Fast -o RQMarginCutOff=True \
  -o RQWaitTime=30 "$work/photo.png" && chosen=$JOB
print_job default "$work/photo.png" && default=$JOB
expect_completed "$chosen"
expect_completed "$default"

# COUNT bytes of a recorded stream from OFFSET on, in hexadecimal.
bytes_at() {
  od -An -v -tx1 -j "$2" -N "$3" "$work/$1.stream" | xargs
}

# Command, two zero-led numbers, then the sheet's width and length and the wait byte.
expect_equal 'chosen: the header starts' '1b 53 50 30 00 33 07 3c 04 d0 1e' \
  "$(bytes_at chosen $job_header 11)"
expect_equal 'chosen: margin cut-off' '01' "$(bytes_at chosen $((job_header + 14)) 1)"
expect_equal 'chosen: finish and mode' '03 05' "$(bytes_at chosen $((job_header + 48)) 2)"
expect_equal 'chosen: size of the matte plane' '07 3c 04 dc' \
  "$(bytes_at chosen $((job_header + 512 + 20)) 4)"
expect_equal 'default: the header starts' '1b 53 50 30 00 33 07 3c 04 d0 05' \
  "$(bytes_at default $job_header 11)"
expect_equal 'default: margin cut-off' '00' "$(bytes_at default $((job_header + 14)) 1)"
expect_equal 'default: finish and mode' '00 00' "$(bytes_at default $((job_header + 48)) 2)"
expect_equal 'default: size of the matte plane' '00 00 00 00' \
  "$(bytes_at default $((job_header + 512 + 20)) 4)"

# The print-out command carries the wait byte once more; no waiting at all is 255.
expect_equal 'chosen: the stream ends' '1b 42 51 31 00 1e' \
  "$(tail -c 6 "$work/chosen.stream" | od -An -tx1 | xargs)"
print_job default -o RQWaitingNextImage=False -o RQWaitTime=30 "$work/photo.png"
expect_completed "$JOB"
expect_equal 'not waiting: the stream ends' '1b 42 51 31 00 ff' \
  "$(tail -c 6 "$work/default.stream" | od -An -tx1 | xargs)"

# Tone and sharpness are the conversion's: its parameters are in the log.
print_job default "${plain[@]}" -o RQGammaR=5 -o RQGammaG=-5 -o RQGammaB=1 \
  -o RQContrastR=16 -o RQContrastG=-16 -o RQContrastB=128 \
  -o RQBrightnessR=-128 -o RQBrightnessG=32 -o RQBrightnessB=112 "$work/photo.png"
expect_completed "$JOB"
expect_equal 'the conversion without colour and sharpness' 1 \
  "$(log_count 'Params=0x00010002 (5:-5:1, 16:-16:128, -128:32:112) (0,0,5,0) 0')"
expect_equal 'the conversion by default, each of three times' 3 \
  "$(log_count 'Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3')"

expect_no_protocol_errors
finish
