#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# cmake --install below a folder of one's own: what lies where, who may change it, and the folder that
# the PPD names. installed_files.sh BUILD PREFIX MODULE-DIRECTORY
set -u

build=$1 prefix=$2 module=$3
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
failures=0

fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

expect_file() {
  [ "$(stat -c %a "$root$2" 2>&1)" = "$1" ] || fail "$2 is not there with mode $1"
}

# A careless umask must not open the filter's folder.
umask 000
DESTDIR=$root cmake --install "$build" >"$root.log" || {
  cat "$root.log"
  fail 'cmake --install failed'
}
rm -f "$root.log"

# The module directory has what the list says, programs with their mode, and nothing else.
diff <(sort "$build/module-files") <(find "$root$module" -mindepth 1 -printf '%f\n' | sort) ||
  fail 'the module directory is another than the list'
expect_file 755 "$module"
for program in rastertoprinter commandtoprinter; do
  expect_file 755 "$module/$program"
done
expect_file 644 "$module/tqr7.icc"
expect_file 755 "$prefix/bin/tqr7"
expect_file 755 "$prefix/bin/tqr7-printer-sim"
expect_file 644 "$prefix/share/man/man8/rastertoprinter.8"
expect_file 644 "$prefix/share/man/man1/tqr7.1"
expect_file 644 "$prefix/share/bash-completion/completions/tqr7"

# The filter finds its library in the installed folder, not in the one it was built in.
grep -qF "$root$module/libTQR7mervale.so.1" <(ldd "$root$module/rastertoprinter") ||
  fail 'the filter does not take the library beside it'
drv=$(find "$root" -name tqr7.drv)
# Catalogues lie where they are found once all of this is in its place; here they are not.
while read -r catalogue; do
  expect_file 644 "$catalogue"
done < <(sed -n 's/^#po [^ ]* "\(.*\)"$/\1/p' "$drv")
ppdc -d "$root/ppd" "$drv" 2>/dev/null || fail 'tqr7.drv does not compile'
grep -qF "\"application/vnd.cups-raster 0 $module/rastertoprinter\"" "$root/ppd/tqr7.ppd" ||
  fail "the PPD does not name $module/rastertoprinter"
grep -qF "\"application/vnd.cups-command 0 $module/commandtoprinter\"" "$root/ppd/tqr7.ppd" ||
  fail "the PPD does not name $module/commandtoprinter"
if grep -n '\$' "$root/ppd/tqr7.ppd"; then
  fail 'the PPD has a name in it that was not replaced'
fi

DESTDIR=$root cmake --install "$build" --prefix "$prefix/elsewhere" >/dev/null 2>&1 &&
  fail 'a prefix that the PPD does not know is taken'
exit $((failures > 0))
