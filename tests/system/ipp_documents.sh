#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Documents as phones and computers without our PPD send them: JPEG, PDF, PWG raster and URF, with and
# without a border, filled and fitted, in copies. Each sheet shows the picture upright, in its place.
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
# shellcheck source=tests/system/ipp_client.sh
. "$tests/ipp_client.sh"

# A raster of the picture in a PDF, as a phone makes it: 300 dots an inch, sRGB.
raster() {
  gs -q -dBATCH -dNOPAUSE -dSAFER -r300 -dcupsColorSpace=19 -dcupsBitsPerColor=8 -dcupsBitsPerPixel=24 \
    -dcupsColorOrder=0 "-sDEVICE=$1" "-sOutputFile=$3" "$2" >"$work/gs.said" 2>&1 ||
    fail "gs: $(cat "$work/gs.said")"
}

# A sheet of 10 x 15, two prints on one, a photo of 4 x 6 inches upright, and one of 6 x 5.
picture "$work/photo.jpg" 1852 1232
picture "$work/photo.pdf" 1852 1232
picture "$work/half.jpg" 1852 616
picture "$work/upright.jpg" 800 1200
picture "$work/upright.pdf" 1200 1800
picture "$work/broad.pdf" 1440 1200
picture "$work/broad.jpg" 1440 1200
raster pwgraster "$work/photo.pdf" "$work/photo.pwg"
raster urf "$work/photo.pdf" "$work/photo.urf"
raster pwgraster "$work/upright.pdf" "$work/upright.pwg"
raster urf "$work/broad.pdf" "$work/broad.urf"

borderless=$(media_col 15680 10431 0 0 0 0)
bordered=$(media_col 15680 10431 711 627 711 627)
two_pages=$(media_col 15768 5215 44 0 44 0)
fill='keyword print-scaling fill'
fit='keyword print-scaling fit'
auto='keyword print-scaling auto'

declare -A format=([jpg]=image/jpeg [pdf]=application/pdf [pwg]=image/pwg-raster [urf]=image/urf)
jobs=() queue_options=()
# Prints a file on a queue of its own, in the picture's own colours.
print_on() {
  local queue=$1 file=$2
  shift 2
  # No attributes at all would not be a group of them.
  [ $# -gt 0 ] || set -- 'enum finishings 3'
  add_printer "$queue" --device-values
  PATH=$PATH:/usr/sbin lpadmin -p "$queue" "${plain[@]}" "${queue_options[@]}" 2>>"$work/lpadmin.said"
  "$send" "$queue" "$work/$file" "${format[${file##*.}]}" "$@"
  jobs+=("$JOB")
}

send=ipp_print
print_on jpeg_borderless photo.jpg "$borderless" "$fill"
print_on jpeg_bordered photo.jpg "$bordered" "$fill"
print_on jpeg_upright upright.jpg "$borderless" "$fill"
print_on jpeg_copies photo.jpg "$borderless" 'integer copies 2'
print_on jpeg_two_prints half.jpg "$two_pages" "$fill" 'integer copies 2'
print_on jpeg_fitted broad.jpg "$borderless" "$fit"
print_on jpeg_auto broad.jpg "$borderless" "$auto"
print_on jpeg_auto_bordered photo.jpg "$bordered" "$auto"
print_on pdf_borderless photo.pdf "$borderless"
print_on pwg_borderless photo.pwg "$borderless"
print_on pwg_bordered photo.pwg "$bordered"
print_on pwg_auto photo.pwg "$borderless" "$auto"
print_on pwg_filled upright.pwg "$borderless" "$fill"
print_on urf_borderless photo.urf "$borderless"
print_on urf_bordered photo.urf "$bordered"
print_on urf_filled broad.urf "$borderless" "$fill"
print_on urf_fitted broad.urf "$borderless" "$fit"
grey='keyword print-color-mode monochrome'
print_on jpeg_grey photo.jpg "$borderless" "$fill" "$grey"
print_on pdf_grey photo.pdf "$borderless" "$grey"
print_on urf_grey photo.urf "$borderless" 'keyword print-color-mode auto-monochrome'
queue_options=(-o print-scaling-default=fill)
print_on pwg_by_default upright.pwg
print_on jpeg_by_default upright.jpg "$borderless"
queue_options=()
send=ipp_create_and_send
print_on in_two_requests photo.jpg "$borderless" "$fill"

for job in "${jobs[@]}"; do
  expect_completed "$job"
done

read -ra whole <<<"$(quarters_of 0 0 1852 1232 c85a50 50965a 465a96 d2b45a)"
# Ghostscript leaves the first row of a full-bleed sheet white, and scaling up to three columns.
corners=(4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a)
for queue in jpeg_borderless jpeg_copies pdf_borderless pwg_borderless pwg_auto urf_borderless \
  in_two_requests; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 "${whole[@]}" "${corners[@]}"
done
expect_sheet "$work/jpeg_copies/sheet-0002.png" 1852 1232 "${whole[@]}" "${corners[@]}"

# Black and white: each colour is a grey that looks as bright.
read -ra greys <<<"$(quarters_of 0 0 1852 1232 717171 838383 5a5a5a b4b4b4)"
for queue in jpeg_grey pdf_grey urf_grey; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 "${greys[@]}" \
    4 4 717171 1847 4 838383 4 1227 5a5a5a 1847 1227 b4b4b4
done

# The border is white to its inmost dot.
read -ra within <<<"$(quarters_of 84 74 1684 1084 c85a50 50965a 465a96 d2b45a)"
border=(82 300 ffffff 300 72 ffffff 1770 300 ffffff 300 1160 ffffff)
for queue in jpeg_bordered jpeg_auto_bordered pwg_bordered urf_bordered; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 "${within[@]}" "${border[@]}"
done

# A photo upright lies on the sheet with its top at the left.
read -ra turned <<<"$(quarters_of 0 0 1852 1232 50965a d2b45a c85a50 465a96)"
turned+=(4 4 50965a 1847 4 d2b45a 4 1227 c85a50 1847 1227 465a96)
for queue in jpeg_upright pwg_filled pwg_by_default jpeg_by_default; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 "${turned[@]}"
done

# A picture of 6 x 5 covers the sheet when it fills it, and fitted stands in its middle, 1478 dots wide.
for queue in urf_filled jpeg_auto; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 "${whole[@]}" "${corners[@]}"
done
for queue in urf_fitted jpeg_fitted; do
  expect_sheet "$work/$queue/sheet-0001.png" 1852 1232 \
    182 300 ffffff 1670 300 ffffff 194 10 c85a50 1658 10 50965a 194 1220 465a96 1658 1220 d2b45a
done

read -ra lower <<<"$(quarters_of 0 616 1852 616 c85a50 50965a 465a96 d2b45a)"
read -ra upper <<<"$(quarters_of 0 0 1852 616 c85a50 50965a 465a96 d2b45a)"
expect_sheet "$work/jpeg_two_prints/sheet-0001.png" 1852 1232 "${upper[@]}" "${lower[@]}" \
  4 4 c85a50 1847 4 50965a 4 1227 465a96 1847 1227 d2b45a
[ ! -e "$work/jpeg_two_prints/sheet-0002.png" ] || fail 'two prints came on two sheets'

expect_no_protocol_errors
finish
