#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Every link of a Markdown file that does not lead to the web leads to a file that is there, and to a
# heading in it; and every file of this tree that the text names is there. links.sh SOURCE-FOLDER
set -euo pipefail

cd "$1"

# Files below a build folder are no pages.
mapfile -t pages < <(find . -name build -prune -o -name '.git' -prune -o -name '*.md' -print | sort)
top_folders=$(find . -mindepth 1 -maxdepth 1 -type d ! -name build ! -name .git -printf '%P|')

# The lines of a page outside its blocks of code.
text_of() { awk '/^ *```/ { fenced = !fenced; next } !fenced' "$1"; }

# The targets of its links and pictures, a line each.
targets_of() { text_of "$1" | grep -oE '\]\([^)]+\)' | sed -e 's/^](//' -e 's/)$//' || true; }

# The anchors of its headings: small letters and digits, hyphens for spaces, and a number after an anchor
# that was there before.
anchors_of() {
  text_of "$1" | sed -nE 's/^#{1,6} +//p' |
    sed -E 's/\[([^]]*)\]\([^)]*\)/\1/g; s/[`*]//g' | LC_ALL=C.UTF-8 awk '{
      anchor = tolower($0)
      gsub(/[^[:alnum:] _-]/, "", anchor)
      gsub(/ /, "-", anchor)
      print anchor (seen[anchor]++ ? "-" (seen[anchor] - 1) : "")
    }'
}

# Words in code that are a path from the top of this tree, wildcards included; not those with a name
# to be put in, which is in capitals.
paths_of() {
  # shellcheck disable=SC2016  # the pages' own quotes
  text_of "$1" | { grep -oE '`[^`]+`' || true; } | tr -d '`' | awk '{ print $1 }' |
    { grep -E "^(${top_folders%|})/[a-z0-9_.*/-]*$" || true; } | sort -u
}

failures=0 links=0 paths=0
fail() {
  echo "$*" >&2
  failures=$((failures + 1))
}

for page in "${pages[@]}"; do
  while read -r target; do
    case $target in http:* | https:* | mailto:*) continue ;; esac
    links=$((links + 1))
    file=${target%%#*}
    file=${file:+$(dirname "$page")/$file}
    file=${file:-$page}
    if [ ! -e "$file" ]; then
      fail "$page: no file $target"
    elif [[ $target = *#* ]] && ! anchors_of "$file" | grep -xF -- "${target#*#}" >/dev/null; then
      fail "$page: no heading for $target"
    fi
  done < <(targets_of "$page")
  while read -r path; do
    paths=$((paths + 1))
    compgen -G "$path" >/dev/null || fail "$page: no $path in this tree"
  done < <(paths_of "$page")
done

echo "${#pages[@]} pages, $links links, $paths paths"
if [ "$links" -lt 50 ] || [ "$paths" -lt 50 ]; then
  fail "There must be more of them: this reads the pages wrongly"
fi
[ "$failures" -eq 0 ]
