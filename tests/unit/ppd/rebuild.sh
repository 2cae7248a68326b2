#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# A change of what the PPD is made from is in the PPD after the next build.
# rebuild.sh SOURCE-FOLDER CMAKE GENERATOR
set -euo pipefail

cd "$1"
source=$1 cmake=$2 generator=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ppd=$work/build/tqr7.ppd

# The folder by itself and the lists that it reads, with one language.
cp -r "$source/ppd" "$work"
cp --parents -t "$work" -- job/paper_list.def scripts/papers status/reason_list.def
cat >"$work/CMakeLists.txt" <<'PROJECT'
cmake_minimum_required(VERSION 3.25)
project(printer_description NONE)
set(TQR7_LANGUAGES de)
set(TQR7_FILTER_DIR /filters)
set(TQR7_DATA_DIR /data)
add_subdirectory(ppd)
PROJECT
"$cmake" -S "$work" -B "$work/build" -G "$generator" >"$work/words"

# expect_rebuilt FILE SCRIPT TEXT: the text comes into the PPD with the change of the file.
expect_rebuilt() {
  local file=$work/$1 script=$2 text=$3
  "$cmake" --build "$work/build" >"$work/words"
  if grep -qF "$text" "$ppd"; then
    echo "FAILED: \"$text\" is in the PPD before $1 is changed"
    exit 1
  fi
  sed -i "$script" "$file"
  "$cmake" --build "$work/build" >"$work/words"
  if ! grep -qF "$text" "$ppd"; then
    echo "FAILED: $1 is changed, and \"$text\" is not in the PPD"
    exit 1
  fi
}

expect_rebuilt ppd/tqr7.drv 's|"Gloss/Gloss"|"Gloss/Glossy"|' '*RQPrintFinish Gloss/Glossy:'
expect_rebuilt ppd/po/de.po 's|"Matt"|"Stumpf"|' '*de.RQPrintFinish Matte/Stumpf:'
expect_rebuilt status/reason_list.def \
  's|^REASON(7552,.*|&\nREASON(7553, 0018, "com.corvantiel-error0018_7553", kErrorText)|' \
  '*cupsIPPReason com.corvantiel-error0018_7553/Printer error 7553 (class 0018). '
expect_rebuilt job/paper_list.def 's|"10 x 15 cm"|"4 x 6 inches"|' '*PageSize RQ_10x15/4 x 6 inches:'
expect_rebuilt status/reason_list.def 's|"Printer error {number} (class|"Error {number} (class|' \
  '*cupsIPPReason com.corvantiel-error0008_2665/Error 2665 (class 0008). '
