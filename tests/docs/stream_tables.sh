#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The tables of the settings block and of the image header in docs/command-stream.md have the offsets of the
# fields that the filter sets, and no others. stream_tables.sh SOURCE-FOLDER
set -euo pipefail

cd "$1"
failures=0

# The first byte of each row of a chapter's table, without the command's code and the zero after it.
rows_of() {
  awk -v heading="## $1" '/^## / { inside = ($0 == heading); next } inside' docs/command-stream.md |
    sed -nE 's/^\| ([0-9]+)(–[0-9]+)? \| .*/\1/p' | awk '$1 > 4'
}

# The offsets that a source names, but for those of other commands.
offsets_in() { sed -nE '/Printout/!s/^constexpr std::size_t kOffset[A-Za-z0-9]+ = ([0-9]+);/\1/p' "$1"; }

compare() {
  local chapter=$1 source=$2
  if [ -z "$(offsets_in "$source")" ] || ! diff <(rows_of "$chapter") <(offsets_in "$source"); then
    echo "$chapter: the page (<) and $source (>) differ" >&2
    failures=1
  fi
}

compare 'Settings block' protocol/job_header.cpp
compare 'Image header, 512 bytes' protocol/image_header.cpp
exit "$failures"
