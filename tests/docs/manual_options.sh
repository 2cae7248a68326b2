#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The options of each program's --help are those of its page. The options and sizes of the printer's
# description are those of the filter's manual page and of docs/printing-photos.md. Every choice of an
# option on any page exists.
# manual_options.sh SOURCE-FOLDER BUILD-FOLDER
set -euo pipefail

cd "$1"
build=$2
failures=0 compared=0

# Two lists, a word a line: the page's and the program's.
expect_same() {
  local what=$1 differences
  compared=$((compared + $(grep -c . <<<"$3")))
  if ! differences=$(diff <(sort -u <<<"$2") <(sort -u <<<"$3")); then
    echo "$what: the page (<) and the program (>) differ:" >&2
    echo "$differences" >&2
    failures=$((failures + 1))
  fi
}

# The names of options at the beginning of lines of help, such as --output, and -o where it has one.
options_of_help() {
  sed -nE 's/^  ((-[a-zA-Z],)?--?[a-z-]+).*/\1/p' | tr ',' '\n' | grep -vxE -- '-h|--help'
}

# The options that a part of a manual page names.
options_of_manual() { grep -oE 'Fl (\\-)?[a-z-]+' | sed -e 's/^Fl //' -e 's/^\\-/--/' -e 's/^\([a-z]\)/-\1/'; }

# The lines of a section of a manual page, from .Sh or .Ss to the next.
section() {
  awk -v heading="$2" '
    /^\.S[hs] / { inside = ($0 == heading); next }
    inside' "$1"
}

# The lines of the synopsis that are about a subcommand.
synopsis_of() {
  section docs/tqr7.1 '.Sh SYNOPSIS' | awk -v wanted="$1" '
    /^\.Nm/ { inside = 0; first = 1; next }
    first { inside = ($0 == ".Cm " wanted); first = 0 }
    inside'
}

compare_tool() {
  local name help alias
  expect_same 'subcommands of tqr7' \
    "$(grep '^\.Ss tqr7 ' docs/tqr7.1 | cut -d ' ' -f 3)" \
    "$("$build/tqr7" --help | sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p')"
  for name in $("$build/tqr7" --help | sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p'); do
    help=$("$build/tqr7" "$name" --help | options_of_help)
    # An option with two names has the short one in the synopsis, and both in its description.
    alias=$("$build/tqr7" "$name" --help | sed -nE 's/^  -[a-z],(--[a-z]+).*/\1/p' | grep -vx -- --help || true)
    expect_same "options of tqr7 $name" "$(synopsis_of "$name" | options_of_manual)" \
      "$(grep -vxF -- "${alias:-none}" <<<"$help")"
    [ -z "$alias" ] || section docs/tqr7.1 ".Ss tqr7 $name" | options_of_manual | grep -xF -- "$alias" >/dev/null ||
      expect_same "options of tqr7 $name" '' "$alias"
  done
}

compare_simulator() {
  local page=docs/tqr7-printer-sim.1 help
  help=$("$build/tqr7-printer-sim" --help | options_of_help)
  expect_same 'the printer, synopsis' "$(section $page '.Sh SYNOPSIS' | options_of_manual)" \
    "$(grep -vx -- --version <<<"$help")"
  expect_same 'the printer, options' \
    "$(section $page '.Sh DESCRIPTION' | grep '^\.It Fl' | options_of_manual | grep -vx -- --help)" "$help"
}

# The first column of the page's table of options.
options_of_table() { sed -nE 's/^\| `(--?[a-z]+).*/\1/p' "$1" | grep -vx -- --help; }

compare_scripts() {
  expect_same ./demo.sh "$(options_of_table docs/demo.md)" "$(./demo.sh --help | options_of_help)"
  expect_same ./rehearse.sh "$(options_of_table docs/when-it-does-not-print.md)" \
    "$(./rehearse.sh --help | options_of_help)"
}

# What the printer's description calls its own options, and the choices of one.
choices_of_ppd() { sed -nE "s/^\*$1 ([^\/:]+)[\/:].*/\1/p" "$build/tqr7.ppd"; }

compare_options() {
  local options
  options=$(sed -nE 's/^\*OpenUI \*(RQ[A-Za-z_]+|PageSize)[\/:].*/\1/p' "$build/tqr7.ppd")
  # shellcheck disable=SC2016  # the page's own quotes
  expect_same 'options on the page' \
    "$(sed -n '/^## All options/,$p' docs/printing-photos.md | sed -nE 's/^\| ([^|]*`) \|.*/\1/p' |
      grep -oE '[A-Za-z_]{3,}')" "$options"
  expect_same 'options in the manual' "$(section docs/rastertoprinter.8 '.Ss Options' |
    sed -n 's/^\.It Cm //p' | sed 's/ , /\n/g')" "$options"
  # shellcheck disable=SC2016
  expect_same 'sizes on the page' "$(sed -nE 's/^\| `(RQ_[^`]*)` \|.*/\1/p' docs/printing-photos.md)" \
    "$(choices_of_ppd PageSize)"
  expect_same 'sizes in the manual' "$(section docs/rastertoprinter.8 '.Ss Options' |
    sed '/^\.It Cm RQPrintFinish/,$d' | grep -oE 'RQ_[0-9A-Za-z_]+')" "$(choices_of_ppd PageSize)"
}

# Every NAME=VALUE that any page writes. The scheduler would take others too, and do nothing.
compare_choices_written() {
  local written
  written=$(cat README.md docs/*.md docs/*.[1-8] | grep -oE '\b(RQ[A-Za-z_]+|PageSize)=[-A-Za-z0-9_]+' | sort -u)
  expect_same 'choices written on the pages' "$written" "$(while IFS='=' read -r option choice; do
    choices_of_ppd "$option" | grep -xF -- "$choice" | sed "s/^/$option=/"
  done <<<"$written")"
  written=$(cat README.md docs/*.md docs/*.[1-8] | grep -oE '\bprint-scaling=[a-z-]+' | sort -u)
  expect_same 'scalings written on the pages' "$written" \
    "$(grep -xE 'print-scaling=(auto|auto-fit|fill|fit|none)' <<<"$written")"
}

compare_tool
compare_simulator
compare_scripts
compare_options
compare_choices_written
echo "$compared names compared"
[ "$compared" -gt 80 ] || failures=1
[ "$failures" -eq 0 ]
