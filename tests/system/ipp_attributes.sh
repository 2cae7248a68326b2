#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What the queue tells clients that have no PPD, and what it does with what they ask for: sizes with and
# without a border, finish, quality; and that they see what the printer reports.
# shellcheck disable=SC2034  # system_test.sh uses it
SCHEDULER_DIRECTIVES='ReadyPaperSizes RQ_10x15,RQ_10x15_WB'
# shellcheck source=tests/system/system_test.sh
. "$(dirname "${BASH_SOURCE[0]}")/system_test.sh"
# shellcheck source=tests/system/ipp_client.sh
. "$tests/ipp_client.sh"

add_printer photo
queue_attributes photo >"$work/told"

expect_told() {
  expect_equal "$1" "$2" "$(values_of "$1" <"$work/told")"
}

# One of several values of a list.
expect_listed() {
  expect_contains "$1" ",$2," ",$(values_of "$1" <"$work/told"),"
}

expect_told printer-make-and-model 'CORVANTIEL TQR7'
expect_contains printer-device-id 'MFG:CORVANTIEL;MDL:TQR7;' \
  "$(values_of printer-device-id <"$work/told")"
expect_told color-supported true
expect_told print-color-mode-default color
expect_told print-quality-supported draft,normal,high
expect_told print-quality-default normal
expect_told finishings-supported none,coat
expect_told finishings-default none
expect_told sides-supported one-sided
expect_told printer-resolution-supported 300dpi
expect_told printer-resolution-default 300dpi
expect_told pwg-raster-document-resolution-supported 300dpi
expect_told urf-supported V1.4,CP1,W8,PQ3-4-5,SRGB24,RS300,FN15
expect_told copies-supported 1-9999
expect_told media-type-supported photographic
expect_told media-source-supported auto
expect_told print-scaling-supported auto,auto-fit,fill,fit,none
for format in image/jpeg image/png image/pwg-raster image/urf application/pdf; do
  expect_listed document-format-supported "$format"
done
expect_listed pwg-raster-document-type-supported srgb_8

# The sizes in hundredths of a millimetre, a dot being 8.4667 of them; then left and top margin, which
# are right and bottom margin too.
sizes='
13123  9161   0   0
15680 10431   0   0
13123 18068   0   0
15680 20608   0   0
15680  5342   0   0
15680 15519   0   0
13123 12979   0   0
15768 10431  44   0
15768  5215  44   0
13123  9161 711 627
15680 10431 711 627
13123 18068 711 627
15680 20608 711 627
'
# One medium as ipptool writes it.
medium() {
  echo "{media-size={x-dimension=$1 y-dimension=$2} media-bottom-margin=$4 media-left-margin=$3" \
    "media-right-margin=$3 media-top-margin=$4}"
}
media='' media_sizes=''
while read -r width height left top; do
  [ -n "$width" ] || continue
  media+=,$(medium "$width" "$height" "$left" "$top")
  media_sizes+=",{x-dimension=$width y-dimension=$height}"
done <<<"$sizes"
expect_told media-col-database "${media#,}"
expect_told media-size-supported "${media_sizes#,}"
expect_told media-col-default "$(medium 15680 10431 0 0)"
expect_told media-col-ready "$(medium 15680 10431 0 0),$(medium 15680 10431 711 627)"
expect_told media-default custom_156.8x104.31mm_156.8x104.31mm
expect_told media-ready custom_156.8x104.31mm_156.8x104.31mm,om_rq-10x-15-wb_156.8x104.31mm
expect_told media-left-margin-supported 0,44,711
expect_told media-right-margin-supported 0,44,711
expect_told media-top-margin-supported 0,627
expect_told media-bottom-margin-supported 0,627

picture "$work/photo.jpg" 1852 1232
none='enum finishings 3'

# Printed meanwhile on several queues: which sheet of which queue is for what, and what it must be.
queues=(north east south west)
for queue in "${queues[@]}"; do
  add_printer "$queue"
done
asked=() jobs=() expected=()
# Prints with the attributes behind; the sheet as the printer's log names it must be the one said, from
# its size to its mode.
expect_sheet_of() {
  local queue=${queues[${#jobs[@]} % ${#queues[@]}]}
  expected+=("$1")
  shift
  asked+=("$*")
  ipp_print "$queue" "$work/photo.jpg" image/jpeg "$@"
  jobs+=("$JOB")
}

check_sheets() {
  local i queue number
  for ((i = 0; i < ${#jobs[@]}; ++i)); do
    queue=${queues[i % ${#queues[@]}]}
    number=$(printf %04d $((i / ${#queues[@]} + 1)))
    expect_completed "${jobs[i]}"
    expect_equal "the sheet for ${asked[i]}" "${expected[i]}" \
      "$(sed -n "s/.*sheet-$number.png: \(.*, mode [a-z]*\), .*/\1/p" "$work/$queue/printer.log")"
  done
}

default='1852 x 1232, gloss, image 1852 x 1232 at 0, 0, one print, mode auto'
expect_sheet_of "$default" "$none"
# Margins choose between the sheet with a border and the one without.
expect_sheet_of '1550 x 2134, gloss, image 1550 x 2134 at 0, 0, one print, mode auto' \
  "$(media_col 13123 18068 0 0 0 0)"
expect_sheet_of '1550 x 2134, gloss, image 1382 x 1986 at 84, 74, one print, mode auto' \
  "$(media_col 13123 18068 711 627 711 627)"
expect_sheet_of '1852 x 1232, gloss, image 1684 x 1084 at 84, 74, one print, mode auto' \
  'collection media-col { MEMBER collection media-size
    { MEMBER integer x-dimension 15680 MEMBER integer y-dimension 10431 }
    MEMBER integer media-left-margin 711 MEMBER integer media-right-margin 711
    MEMBER integer media-top-margin 627 MEMBER integer media-bottom-margin 627
    MEMBER keyword media-type photographic MEMBER keyword media-source auto }'
# Other margins choose the nearer of the two, and none the sheet without a border.
expect_sheet_of '1550 x 2134, gloss, image 1382 x 1986 at 84, 74, one print, mode auto' \
  "$(media_col 13123 18068 500 500 500 500)"
expect_sheet_of '1550 x 2134, gloss, image 1550 x 2134 at 0, 0, one print, mode auto' \
  "$(media_col 13123 18068)"
# A millimetre more or less is the same paper.
expect_sheet_of '1550 x 2134, gloss, image 1550 x 2134 at 0, 0, one print, mode auto' \
  "$(media_col 13023 18168 0 0 0 0)"
# Each by the name that the queue gave it.
expect_sheet_of '1852 x 631, gloss, image 1852 x 631 at 0, 0, one print, mode auto' \
  'keyword media custom_156.8x53.42mm_156.8x53.42mm'
expect_sheet_of '1852 x 1232, gloss, image 1684 x 1084 at 84, 74, one print, mode auto' \
  'keyword media om_rq-10x-15-wb_156.8x104.31mm'
# Two prints on a sheet are told from the sheets of their size by their margins.
two='1852 x 1232, gloss, image 1852 x 1232 at 0, 0, two prints, split at line 616, mode auto'
expect_sheet_of "$two" "$(media_col 15768 10431 44 0 44 0)"
expect_sheet_of "$two" "$(media_col 15768 5215 44 0 44 0)" 'integer copies 2'
expect_sheet_of '1852 x 631, gloss, image 1852 x 631 at 0, 0, one print, mode auto' \
  "$(media_col 15680 5342 0 0 0 0)"
# Papers that the printer does not have become the queue's own size.
expect_sheet_of "$default" 'keyword media na_index-4x6_4x6in'
expect_sheet_of "$default" 'keyword media iso_a4_210x297mm'
expect_sheet_of "$default" "$(media_col 10000 14800 0 0 0 0)"
# Finish and quality.
expect_sheet_of '1852 x 1232, matte, image 1852 x 1232 at 0, 0, one print, mode auto' \
  'enum finishings 15'
expect_sheet_of '1852 x 1232, gloss, image 1852 x 1232 at 0, 0, one print, mode fast' \
  'enum print-quality 3'
expect_sheet_of "$default" 'enum print-quality 4'
expect_sheet_of '1852 x 1232, matte, image 1852 x 1232 at 0, 0, one print, mode auto' \
  'enum print-quality 5' 'enum finishings 15'
check_sheets
expect_no_protocol_errors

# A queue that is set to a size and to matte stays so for clients that name neither, and for those that
# name a paper which the printer does not have.
add_printer kiosk
PATH=$PATH:/usr/sbin lpadmin -p kiosk -o PageSize=RQ_15x20 -o RQPrintFinish=Matte 2>"$work/lpadmin.said"
queue_attributes kiosk >"$work/told"
expect_told media-col-default "$(medium 15680 20608 0 0)"
queues=(kiosk) asked=() jobs=() expected=()
kiosk='1852 x 2434, matte, image 1852 x 2434 at 0, 0, one print, mode auto'
expect_sheet_of "$kiosk" "$none"
expect_sheet_of "$kiosk" 'keyword media na_index-4x6_4x6in' 'enum print-quality 5'
expect_sheet_of '1852 x 2434, gloss, image 1852 x 2434 at 0, 0, one print, mode auto' \
  'keyword RQPrintFinish Gloss'
check_sheets

# A printer in error: what is wrong is a reason that clients see, and the job is not lost.
add_printer broken --status 0x2665
ipp_print broken "$work/photo.jpg" image/jpeg "$none"
expect_job_ends "$JOB" stopped
queue_attributes broken >"$work/told"
expect_listed printer-state-reasons com.corvantiel-error0008_2665
job_attributes broken "${JOB##*-}" >"$work/told"
expect_told job-state processing-stopped
expect_told job-state-reasons job-completed-with-errors
expect_told job-printer-state-reasons com.corvantiel-error0008_2665
finish
