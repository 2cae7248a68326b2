#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Compares the commands of all pages of the docs with tests/docs/commands.list, row by row. If the list says
# that another file has a command, that file has it, and a test or continuous integration runs that file.
# listed_commands.sh SOURCE-FOLDER BUILD-FOLDER
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tests/docs/page_commands.sh
. "$here/page_commands.sh"
cd "$1"
build=$2 list=$here/commands.list

# Where pipes have to fail with their first program, "grep -q" is of no use: it would end that by SIGPIPE.
failures=0
fail() {
  echo "$*" >&2
  failures=$((failures + 1))
}

# Scripts of ctest's tests.
scripts=$(ctest --test-dir "$build" --show-only=json-v1 | grep -oE '"[^"]*\.sh"' | sort -u)

# Whether a test, continuous integration or a packager runs this file.
file_is_run() {
  case $1 in
    .ci/* | packaging/*) [ -x "$1" ] ;;
    *) grep -qF "/$1\"" <<<"$scripts" ;;
  esac
}

# The file's text without its comments, all its white space made one space.
plain_text() { sed -e 's/^ *#.*//' -e 's/\\$//' "$1" | tr -s ' \n' ' '; }

check_row() {
  local page=$1 how=$2 command=$3 file name
  case $how in
    'in '*)
      file=${how#in }
      if [ ! -f "$file" ] || ! file_is_run "$file"; then
        fail "$page: $file is no file that a test or continuous integration runs"
      elif ! plain_text "$file" | grep -F -- "$command" >/dev/null; then
        fail "$page: $file does not contain: $command"
      fi
      ;;
    'block '*)
      name=$(cut -d ' ' -f 2 <<<"$how") file=$(cut -d ' ' -f 4 <<<"$how")
      file_is_run "$file" || fail "$page: no test runs $file"
      grep -qE "(run|block|commands_of) $name\b" "$file" || fail "$page: $file does not run the block $name"
      part_has block_of "$page" "$name" "$command" ||
        fail "$page: the block $name does not have: $command"
      ;;
    'section '*)
      file=${how##* in } name=${how#section } name=${name% in *}
      file_is_run "$file" || fail "$page: no test and no continuous integration runs $file"
      if ! grep -qF "$page" "$file" || ! grep -qE "'${name}['#]" "$file"; then
        fail "$page: $file does not run what stands below \"$name\""
      fi
      part_has section_of "$page" "$name" "$command" ||
        fail "$page: below \"$name\" there is not: $command"
      ;;
    'as in '*)
      commands_of_page "${how#as in }" | grep -xF -- "$command" >/dev/null ||
        fail "$page: ${how#as in } does not have: $command"
      ;;
    ci) [ -x "${command#sudo }" ] || fail "$page: no $command" ;;
    'nowhere: '*) nowhere=$((nowhere + 1)) ;;
  esac
}

# The commands below a heading, and those of the block that is marked so.
section_of() { awk -v heading="## $2" '/^## / { inside = ($0 == heading) } inside' "$1"; }
block_of() {
  awk -v mark="<!-- test: $2 -->" '
    $0 == mark { marked = 1; next }
    marked { print }
    marked && /^```$/ && ++fences == 2 { exit }' "$1"
}

# part_has PART PAGE NAME COMMAND, where PART is one of these two. Each part is read once.
declare -A parts=()
part_has() {
  local key="$1 $2 $3"
  [ -n "${parts[$key]:-}" ] || parts[$key]=$(commands_of_page <("$1" "$2" "$3") md)
  grep -qxF -- "$4" <<<"${parts[$key]}"
}

# Blocks that have a language named, such as text, are no commands: no line of theirs may begin as one.
check_other_blocks() {
  local hidden
  hidden=$(awk '
    /^ *```/ { open = !open; other = open && !/^ *```$/; next }
    other { sub(/^ +/, ""); print }' "$1" |
    grep -E "^(sudo |\./|lp |lp[a-z]+ -|cups[a-z]+ -|tqr7|cmake |ctest |apt|man |git |bench/|\.ci/)" || true)
  [ -z "$hidden" ] || fail "$1: commands in a block that is none of commands: $hidden"
}

commands=0 nowhere=0
mapfile -t pages < <(ls README.md docs/*.md docs/*.[1-8])
for page in "${pages[@]}"; do
  rows=$(rows_of_page "$list" "$page" | grep -vE $'^(printer|meanwhile)\t' || true)
  if ! differences=$(diff <(commands_of_page "$page") <(cut -f 2- <<<"$rows" | sed '/^$/d')); then
    fail "$page (<) and its rows in tests/docs/commands.list (>) differ:"
    echo "$differences" >&2
  fi
  [[ $page != *.md ]] || check_other_blocks "$page"
  [ -n "$rows" ] || continue
  commands=$((commands + $(wc -l <<<"$rows")))
  while IFS=$'\t' read -r how command; do
    check_row "$page" "$how" "$command"
  done <<<"$rows"
done
unknown=$(sed -n 's/^## //p' "$list" | grep -vxFf <(printf '%s\n' "${pages[@]}") || true)
[ -z "$unknown" ] || fail "The list has pages that are not there: $unknown"

echo "$commands commands, $nowhere of them run nowhere"
[ "$commands" -gt 50 ] || fail "There must be more: this reads the pages wrongly"
[ "$failures" -eq 0 ]
