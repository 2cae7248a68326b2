#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The pages of the two-print sizes reach beyond the sheet; each of CUPS's filters makes a raster of the
# sheet's dots of them all the same.
set -u

filters=${CUPS_SERVERBIN:-/usr/lib/cups}/filter
work=$(mktemp -d /tmp/tqr7-rasters.XXXXXX)
trap 'rm -rf "$work"' EXIT
export PPD=$TQR7_BUILD/tqr7.ppd
failures=0

# Filter, page size, file, and the raster's width and height as they stand in its first page header.
expect_raster() {
  local made
  "$filters/$1" 1 user title 1 "PageSize=$2 print-scaling=fill" "$work/$3" \
    >"$work/raster" 2>"$work/said"
  made=$(od -An -t u4 -j 376 -N 8 "$work/raster" | xargs)
  if [ "$made" != "$4" ]; then
    echo "FAILED: $1, $2: expected a raster of $4, there is one of $made"
    tail -n 20 "$work/said"
    failures=$((failures + 1))
  fi
}

picture() {
  "$TQR7_BUILD/tests/make-test-picture" "$work/$1" "$2" "$3" || exit 1
}

picture sheet.pdf 1852 1232
picture sheet.png 1852 1232
picture half.pdf 1852 616
picture half.png 1852 616
for filter in gstoraster pdftoraster; do
  expect_raster $filter RQ_5x15x2_1 sheet.pdf '1852 1232'
  expect_raster $filter RQ_5x15x2_2 half.pdf '1852 616'
done
expect_raster imagetoraster RQ_5x15x2_1 sheet.png '1852 1232'
expect_raster imagetoraster RQ_5x15x2_2 half.png '1852 616'
exit "$failures"
