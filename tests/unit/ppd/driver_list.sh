#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The scheduler's own program for its list of drivers lists the driver, and makes of its source the
# PPD of the build, in every language.
# driver_list.sh BUILD-FOLDER FILTER-FOLDER DATA-FOLDER, the folders as tqr7.drv names them
set -uo pipefail

build=$1 filter=$2 data=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
  echo "FAILED: $*"
  exit 1
}

# As it is installed, but below a folder of this test.
mkdir -p "$work/cups/drv" "$work/cache" "$work/root$data"
ln -s /usr/share/cups/ppdc "$work/cups/ppdc"
cp -r "$build/po" "$work/root$data/po"
sed "s|\"$data/po/|\"$work/root$data/po/|" "$build/tqr7.drv" >"$work/cups/drv/tqr7.drv"

driverd=${CUPS_SERVERBIN:-/usr/lib/cups}/daemon/cups-driverd
export CUPS_DATADIR=$work/cups CUPS_CACHEDIR=$work/cache LC_ALL=C
listed=$("$driverd" list 1 10 '' 2>"$work/words" | grep -a -o 'drv:///tqr7[^[:cntrl:]]*ppd' | head -n 1)
[ "$listed" = drv:///tqr7.drv/tqr7.ppd ] || fail "listed is \"$listed\": $(cat "$work/words")"

"$driverd" cat drv:///tqr7.drv/tqr7.ppd >"$work/tqr7.ppd" 2>"$work/words" ||
  fail "no PPD: $(cat "$work/words")"
sed -i "/^\*cups[A-Za-z]*Filter:/s| $filter/| $build/|" "$work/tqr7.ppd"
# The length at its end differs with the folder's.
diff <(grep -v '^\*% End of' "$build/tqr7.ppd") <(grep -v '^\*% End of' "$work/tqr7.ppd") ||
  fail 'it is another PPD than the build has'
