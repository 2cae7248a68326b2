#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# One more row in the list of papers, and the PPD, the completion, the demonstration and the docs' tables
# have one more paper.
# one_more_paper.sh SOURCE-FOLDER LIST-WITH-RQ_7x10
# shellcheck disable=SC2016  # Markdown
set -euo pipefail

cd "$1"
list=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r demo.sh docs ppd scripts status "$work"
cp --parents -t "$work" -- tests/docs/paper_tables.sh tools/completion/{tqr7,write}
mkdir "$work/job"
cp "$list" "$work/job/paper_list.def"
cd "$work"
failures=0

# expect_in TEXT COMMAND…: the command writes the text.
expect_in() {
  local text=$1 written
  shift
  written=$("$@")
  if [[ $written != *"$text"* ]]; then
    echo "FAILED: \"$text\" is not in what $* writes"
    failures=$((failures + 1))
  fi
}

expect_in 'CustomMedia "RQ_7x10/7 x 10 cm" 216 288 0 0 0 0' ppd/whole-drv
expect_in ' RQ_7x10' tools/completion/write
expect_in ' 7x10 ' ./demo.sh --help
if tests/docs/paper_tables.sh >/dev/null 2>words; then
  echo "FAILED: the docs lack the paper, and nothing was said"
  failures=$((failures + 1))
fi
expect_in 'docs/printing-photos.md (<) is not' cat words
expect_in 'docs/command-stream.md (<) is not' cat words
expect_in 'docs/driverless.md (<) is not' cat words
expect_in 'docs/rastertoprinter.8: RQ_7x10 is not named' cat words
sed -i 's/^\.Cm RQ_9x13 ,/.Cm RQ_7x10 , RQ_9x13 ,/' docs/rastertoprinter.8
tests/docs/paper_tables.sh --write
expect_in '| `RQ_7x10` | 70 × 100 | 3 × 4 | 76 × 102 | 900 × 1200 | 900 × 1200 | |' cat docs/printing-photos.md
tests/docs/paper_tables.sh || failures=$((failures + 1))
exit "$failures"
