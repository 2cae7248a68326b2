#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Another computer prints on the shared queue, through a queue of its own that its scheduler made of what
# ours tells (lpadmin -m everywhere), without a driver.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"

add_printer photo --device-values
PATH=$PATH:/usr/sbin lpadmin -p photo "${plain[@]}" 2>"$work/lpadmin.said"
shared=$(queue_address photo)
our_scheduler=$SCHEDULER_DIR our_pid=$SCHEDULER_PID

# shellcheck disable=SC2317  # the trap calls it
stop_both() {
  local status=$?
  scheduler_stop
  SCHEDULER_DIR=$our_scheduler SCHEDULER_PID=$our_pid
  (exit "$status")
  stop_test
}
trap stop_both EXIT
scheduler_start "$TQR7_BUILD" || exit 1
PATH=$PATH:/usr/sbin lpadmin -p there -E -v "$shared" -m everywhere || fail 'lpadmin -m everywhere'

picture "$work/photo.jpg" 1852 1232
picture "$work/photo.pdf" 1852 1232
picture "$work/large.jpg" 1852 2434
queue=there sheets=0
# Prints there, and looks for so many sheets more here.
print_there() {
  local count=$1 pngs
  shift
  print_job "$queue" "$@"
  expect_completed "$JOB"
  sheets=$((sheets + count))
  sheet=$(printf '%s/photo/sheet-%04d.png' "$work" "$sheets")
  pngs=("$work"/photo/sheet-*.png)
  expect_equal "sheets after $*" "$sheets" "${#pngs[@]}"
  printed=$(sed -n 's/.* printed to [^ ]*: \(.*, mode [a-z]*\), .*/\1/p' "$work/photo/printer.log" |
    tail -n 1)
}

read -ra whole <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
whole+=(4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a)
default='1852 x 1232, gloss, image 1852 x 1232 at 0, 0, one print, mode auto'

# A photo is borderless, upright and in the queue's own size.
print_there 1 "$work/photo.jpg"
expect_equal 'a photo' "$default" "$printed"
expect_sheet "$sheet" 1852 1232 "${whole[@]}"
print_there 1 -o print-scaling=fill "$work/photo.jpg"
expect_sheet "$sheet" 1852 1232 "${whole[@]}"
print_there 1 "$work/photo.pdf"
expect_sheet "$sheet" 1852 1232 "${whole[@]}"
print_there 2 -n 2 "$work/photo.jpg"
expect_sheet "$sheet" 1852 1232 "${whole[@]}"

# Finish and quality come along.
print_there 1 -o finishings=15 "$work/photo.jpg"
expect_equal 'the matte coat' \
  '1852 x 1232, matte, image 1852 x 1232 at 0, 0, one print, mode auto' "$printed"
print_there 1 -o print-quality=3 "$work/photo.jpg"
expect_equal 'a draft' '1852 x 1232, gloss, image 1852 x 1232 at 0, 0, one print, mode fast' "$printed"

# To another CUPS a scheduler passes options on as they are: our names choose, its own do not.
print_there 1 -o PageSize=RQ_15x20 -o print-scaling=fill "$work/large.jpg"
expect_equal 'a size by our name' \
  '1852 x 2434, gloss, image 1852 x 2434 at 0, 0, one print, mode auto' "$printed"
read -ra large <<<"$(quarters_of 0 0 1852 2434 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$sheet" 1852 2434 "${large[@]}"
print_there 1 -o PageSize=156.8x206.08mm.Borderless "$work/photo.jpg"
expect_equal 'a size by the name there' "$default" "$printed"

# With our PPD, but for the filters, all of it does.
(
  cd "$work" && cp "$our_scheduler/etc/ppd/photo.ppd" photo.ppd || exit 1
  grep -v '^\*cups[A-Za-z]*Filter' photo.ppd >shared.ppd
  printf '*cupsFilter2: "%s %s 0 -"\n' application/pdf application/pdf image/jpeg image/jpeg \
    image/png image/png >>shared.ppd
) || fail 'our PPD without its filters'
PATH=$PATH:/usr/sbin lpadmin -p dialog -E -v "$shared" -P "$work/shared.ppd" 2>>"$work/lpadmin.said" ||
  fail 'lpadmin with our PPD'
queue=dialog
print_there 1 -o PageSize=RQ_15x20 -o RQPrintFinish=Matte -o print-scaling=fill "$work/large.jpg"
expect_equal 'a size and a finish of our PPD' \
  '1852 x 2434, matte, image 1852 x 2434 at 0, 0, one print, mode auto' "$printed"
print_there 2 -n 2 -o PageSize=RQ_10x15 "$work/photo.pdf"
expect_sheet "$sheet" 1852 1232 "${whole[@]}"
print_there 1 -o PageSize=RQ_10x15_WB -o RQPrintMode=Fast "$work/photo.jpg"
expect_equal 'a border and a mode of our PPD' \
  '1852 x 1232, gloss, image 1684 x 1084 at 84, 74, one print, mode fast' "$printed"

expect_no_protocol_errors
finish
