#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Holds a PPD against CUPS's conformance checker as whoever runs it in each of the languages: no
# failure, and no warning but of the page sizes' names.
# conformance.sh CUPSTESTPPD PPD LANGUAGE…
set -uo pipefail

checker=$1 ppd=$2
shift 2
papers=$(grep -c '^\*PageSize RQ_' "$ppd")
failures=0
unset LC_ALL LC_MESSAGES
for language in "$@"; do
  export LANG=$language.UTF-8
  if ! said=$("$checker" -v -W filters "$ppd"); then
    printf '%s: failed\n%s\n' "$language" "$said"
    failures=1
  fi
  # Without -v it names only what is not as it should be, in words of the language.
  told=$("$checker" -W filters "$ppd" | grep '^        ')
  sizes=$(grep -c 'RQ_[0-9x_WB]*.*[0-9.]*x[0-9.]*mm' <<<"$told")
  if [ "$sizes" -ne "$papers" ] || [ "$(grep -c . <<<"$told")" -ne "$papers" ]; then
    printf '%s: something else than the names of the page sizes\n%s\n' "$language" "$told"
    failures=1
  fi
done
exit $failures
