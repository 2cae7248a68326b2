#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The completion of tqr7 as bash calls it: what it offers behind some words of a command line.
# completion_test.sh COMPLETION TQR7
set -euo pipefail

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# The queues of this machine are nobody's business: lpstat is a stand-in.
# shellcheck disable=SC2016
printf '#!/bin/sh\n[ "$1" = -e ] && printf "photo\\nproof\\nlabel\\n\\$(exit)*\\n"\n' >"$folder/lpstat"
chmod 755 "$folder/lpstat"
PATH=$folder:$PATH

# shellcheck source=tools/completion/tqr7
. "$1"
complete -p tqr7 | grep -q -- '-F _tqr7 tqr7' || exit 1

failed=0
# expect WORDS… = OFFERED: what is offered in place of the last of the words.
expect() {
  local offered
  COMP_WORDS=()
  while [ "$1" != = ]; do
    COMP_WORDS+=("$1")
    shift
  done
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  COMPREPLY=()
  _tqr7
  offered="${COMPREPLY[*]}"
  if [ "$offered" != "$2" ]; then
    echo "${COMP_WORDS[*]}: offered \"$offered\", expected \"$2\"" >&2
    failed=1
  fi
}

expect tqr7 '' = 'inspect proof explain status resume check report --help --version'
expect tqr7 re = 'resume report'
expect tqr7 --v = '--version'
expect tqr7 inspect - = '--brief --json --help'
expect tqr7 inspect '' = ''
expect tqr7 proof --d = '--device-values'
expect tqr7 explain --a = '--all'
# shellcheck disable=SC2016
expect tqr7 status '' = 'photo proof label $(exit)*'
expect tqr7 resume p = 'photo proof'
expect tqr7 status --w = '--watch'
expect tqr7 check --s = '--size --scaling'
expect tqr7 check photo.jpg --scaling '' = 'fit fill'
expect tqr7 check --size RQ_10 = 'RQ_10x15 RQ_10x15_WB'
expect tqr7 check --size RQ_5 = 'RQ_5x15 RQ_5x15x2_1 RQ_5x15x2_2'
expect tqr7 check --size '' = "RQ_9x13 RQ_10x15 RQ_13x18 RQ_15x20 RQ_5x15 RQ_15x15 RQ_13x13 \
RQ_5x15x2_1 RQ_5x15x2_2 RQ_9x13_WB RQ_10x15_WB RQ_13x18_WB RQ_15x20_WB"

# All options that there are, and no other, in the words of the program's own help.
options_of_help() {
  "$tool" "$@" --help | sed -n 's/^  \(-[a-zA-Z],\)\{0,1\}\(--[a-z-]*\).*/\2/p' | sort | paste -sd ' '
}
options_offered() {
  _tqr7_options "$@" | tr ' ' '\n' | sort | paste -sd ' '
}
tool=$2
subcommands=$("$tool" --help | sed '1,/^Subcommands:/d' | awk 'NF { print $1 }')
for subcommand in '' $subcommands; do
  there_are=$(options_of_help ${subcommand:+"$subcommand"})
  offered=$(options_offered "$subcommand")
  if [ -z "$there_are" ] || [ "$there_are" != "$offered" ]; then
    echo "tqr7 $subcommand has \"$there_are\", offered is \"$offered\"" >&2
    failed=1
  fi
  COMP_WORDS=(tqr7 "$subcommand")
  COMP_CWORD=1
  _tqr7
  if [ -z "${COMPREPLY[*]}" ]; then
    echo "the subcommand $subcommand is not offered" >&2
    failed=1
  fi
done

exit $failed
