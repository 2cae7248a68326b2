#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What every way to raster makes of a photo, for each paper size, with this driver's programs and
# without: the tables of docs/raster-routes.md.
#
#   raster_routes.sh           compares the tables with the page, and fails when they differ
#   raster_routes.sh --write   writes the page anew
#   raster_routes.sh --print   prints the tables
#
# Needs TQR7_BUILD, the build folder. The filters run by hand, in the scheduler's order, so that a
# cell takes a fraction of a second.
# The tables are Markdown: backquotes there are no commands.
# shellcheck disable=SC2016
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
page=$here/../../docs/raster-routes.md
tools=$TQR7_BUILD/tests
filters=${CUPS_SERVERBIN:-/usr/lib/cups}/filter
work=$(mktemp -d /tmp/tqr7-raster-routes.XXXXXX)
trap 'rm -rf "$work"' EXIT
export PPD=$TQR7_BUILD/tqr7.ppd LC_ALL=C PRINTER=TQR7 TMPDIR=$work HOME=$work
export FINAL_CONTENT_TYPE=application/vnd.cups-raster

# Name and image area in dots.
mapfile -t sizes < <("$here/../../scripts/papers" | cut -d ' ' -f 1,4,5)

# Runs a filter of the job: PROGRAM OPTIONS [FILE].
run() {
  local program=$1
  shift
  "$program" 1 anna Beach 1 "$@" 2>>"$work/log"
}

# The page of a raster file in words; with a second word, after rastertopage.
marks() {
  "$tools/page-marks" "$width" "$height" <"$1" || true
}
marks_of_page() {
  run "$TQR7_BUILD/rastertopage" "$options" "$1" >"$work/page.ras"
  marks "$work/page.ras"
}

# The cells of one size, a file each, named ROUTE.
cells() {
  local name=$1 scaling=$2
  options="PageSize=$name print-scaling=$scaling"
  export CONTENT_TYPE=image/jpeg
  run "$TQR7_BUILD/phototopage" "$options" "$work/photo.jpg" >"$work/raster"
  marks "$work/raster" >"$work/photo"
  CONTENT_TYPE=image/x-portable-anymap
  run "$filters/imagetoraster" "$options" "$work/photo.ppm" >"$work/raster"
  marks "$work/raster" >"$work/picture-before"
  marks_of_page "$work/raster" >"$work/picture"
  CONTENT_TYPE=application/pdf
  run "$filters/pdftopdf" "$options" "$work/photo.pdf" >"$work/job.pdf"
  run "$filters/gstoraster" "$options" "$work/job.pdf" >"$work/raster"
  marks "$work/raster" >"$work/gs-before"
  marks_of_page "$work/raster" >"$work/gs"
  run "$filters/pdftoraster" "$options" "$work/job.pdf" >"$work/raster"
  marks "$work/raster" >"$work/poppler-before"
  marks_of_page "$work/raster" >"$work/poppler"
}

# A row of a table with the cells named.
table_row() {
  local route
  printf '| `%s` | %s x %s |' "$name" "$width" "$height"
  for route in "$@"; do
    printf ' %s |' "$(<"$work/$route")"
  done
  printf '\n'
}

# Pictures and PDFs, filled and fitted.
size_tables() {
  local scaling row name
  for scaling in fill fit; do
    for row in "${sizes[@]}"; do
      read -r name width height <<<"$row"
      cells "$name" "$scaling"
      table_row picture-before photo picture >>"$work/pictures-$scaling.rows"
      table_row gs-before gs poppler-before poppler >>"$work/pdf-$scaling.rows"
    done
  done
  for scaling in fill fit; do
    printf '\n### Pictures, `print-scaling=%s`\n\n' "$scaling"
    printf '| Size | Page | `imagetoraster` alone | JPEG, PNG: `phototopage` | others: then `rastertopage` |\n'
    printf '|---|---|---|---|---|\n'
    cat "$work/pictures-$scaling.rows"
  done
  for scaling in fill fit; do
    printf '\n### PDF, `print-scaling=%s`\n\n' "$scaling"
    printf '| Size | Page | `gstoraster` alone | then `rastertopage` '
    printf '| `pdftoraster` alone | then `rastertopage` |\n|---|---|---|---|---|---|\n'
    cat "$work/pdf-$scaling.rows"
  done
}

# What a photo's file says, on RQ_10x15, filled.
file_table() {
  local row file what width=1852 height=1232
  options='PageSize=RQ_10x15 print-scaling=fill'
  printf '\n### What a photo'\''s file says of it\n\n'
  printf '| The file | `imagetoraster` | `phototopage` |\n|---|---|---|\n'
  while IFS='|' read -r file what; do
    "$tools/make-photo" "$work/$file" 1852 1232 "${file%.*}"
    export CONTENT_TYPE=image/jpeg
    run "$filters/imagetoraster" "$options" "$work/$file" >"$work/before.ras"
    run "$TQR7_BUILD/phototopage" "$options" "$work/$file" >"$work/now.ras"
    printf '| %s | %s | %s |\n' "$what" "$(marks "$work/before.ras")" "$(marks "$work/now.ras")"
  done <<'ROWS'
exif-1.jpg|JPEG, Exif orientation 1
exif-2.jpg|JPEG, Exif orientation 2
exif-3.jpg|JPEG, Exif orientation 3
exif-4.jpg|JPEG, Exif orientation 4
exif-5.jpg|JPEG, Exif orientation 5
exif-6.jpg|JPEG, Exif orientation 6
exif-7.jpg|JPEG, Exif orientation 7
exif-8.jpg|JPEG, Exif orientation 8
adobe-rgb.jpg|JPEG, profile Adobe RGB
adobe-mark.jpg|JPEG, Adobe RGB by the camera's mark
display-p3.jpg|JPEG, profile Display P3
adobe-rgb.png|PNG, profile Adobe RGB
display-p3.png|PNG, profile Display P3
wide-gamma.png|PNG, profile with gamma 1.8
gamma-1.png|PNG, `gAMA` of 1
ROWS
}

# Documents of other sizes than the page, drawn by Ghostscript.
document_table() {
  local name what scaling width=1852 height=1232
  export CONTENT_TYPE=application/pdf
  printf '\n### Documents on RQ_10x15: what `print-scaling` does\n\n'
  printf '| The page of the document | without | `fill` | `fit` | `auto` | `none` |\n'
  printf '|---|---|---|---|---|---|\n'
  while IFS='|' read -r name what; do
    printf '| %s |' "$what"
    for scaling in '' fill fit auto none; do
      options="PageSize=RQ_10x15${scaling:+ print-scaling=$scaling}"
      run "$filters/pdftopdf" "$options" "$work/$name.pdf" >"$work/job.pdf"
      run "$filters/gstoraster" "$options" "$work/job.pdf" >"$work/raster"
      printf ' %s |' "$(marks_of_page "$work/raster")"
    done
    printf '\n'
  done <<'ROWS'
photo|6 x 4 inches
portrait|4 x 6 inches
a4|A4
ROWS
}

"$tools/make-photo" "$work/photo.jpg" 900 600 plain
"$tools/make-photo" "$work/photo.ppm" 900 600 plain
"$tools/make-test-picture" "$work/photo.pdf" 1800 1200
"$tools/make-test-picture" "$work/portrait.pdf" 1200 1800
"$tools/make-test-picture" "$work/a4.pdf" 2480 3508
{
  size_tables
  file_table
  document_table
  echo
} >"$work/tables"

if [ "${1:-}" = --print ]; then
  cat "$work/tables"
  exit
fi
awk -v tables="$work/tables" '
  /^<!-- tables end -->$/ { skipping = 0 }
  !skipping { print }
  /^<!-- tables -->$/ {
    skipping = 1
    while ((getline line < tables) > 0) print line
  }' "$page" >"$work/made"
if [ "${1:-}" = --write ]; then
  cat "$work/made" >"$page"
elif ! diff -u "$page" "$work/made"; then
  echo "docs/raster-routes.md is not what the filters do. If the new tables are right:"
  echo "  TQR7_BUILD=$TQR7_BUILD tests/system/raster_routes.sh --write"
  exit 1
fi
