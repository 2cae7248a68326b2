# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# The commands on a page of the docs, and how each is tested by tests/docs/commands.list. Source it.
#
#   commands_of_page PAGE [md] a command a line: of Markdown those in blocks of code that have no language
#                              named, of a manual page those in its EXAMPLES
#   rows_of_page LIST PAGE     the page's rows of the list: how, a tab, the command
#
# A command of several lines becomes one line. Comments after commands are left out.

# The lines of code of a page. In a manual page a comment that says so keeps a block out.
code_of_page() {
  case ${2:-${1##*.}} in
    md) awk '
      /^ *```/ { inside = !inside && /^ *```$/ ? 1 : 0; open = !open; if (!open) inside = 0; next }
      inside { sub(/^ +/, ""); print }' "$1" ;;
    *) awk '
      /^\.Sh / { examples = /^\.Sh EXAMPLES/ }
      /^\.\\" A file, not commands\.$/ { skip = 1 }
      /^\.Bd / { inside = examples && !skip; skip = 0; next }
      /^\.Ed/ { inside = 0 }
      inside' "$1" | sed -e 's/\\e/\\/g' -e 's/\\-/-/g' -e 's/\\&//g' ;;
  esac
}

# A command is complete when the shell thinks so; it need not be asked of plain words.
is_complete() {
  case $1 in
    *[\'\"\`\|\(\{\&]* | while\ * | until\ * | for\ * | if\ *) bash -n <<<"$1" 2>/dev/null ;;
  esac
}

commands_of_page() {
  local line command=''
  while IFS= read -r line; do
    [[ $line != *'# '* ]] || line=$(sed -E 's/(^| +)# .*$//' <<<"$line")
    [ -n "$command$line" ] || continue
    case $line in
      *\\) command+="${line%\\} " && continue ;;
    esac
    command+=$line
    if is_complete "$command"; then
      one_line "$command"
      command=''
    else
      command+=$'\n'
    fi
  done < <(code_of_page "$@")
  [ -z "$command" ] || one_line "$command"
}

# Where a line's end parts two commands it becomes a semicolon.
one_line() {
  sed -E '$!{/(\bdo|\bthen|\belse|[;|&])$/!s/$/;/}' <<<"$1" | tr '\n' ' ' |
    sed -E 's/ +/ /g; s/ $//'
  echo
}

rows_of_page() {
  awk -v page="$2" '
    /^## / { here = ($2 == page); next }
    here && NF && !/^#/ {
      how = $0; sub(/  .*/, "", how)
      command = substr($0, length(how) + 1); sub(/^ +/, "", command)
      print how "\t" command
    }' "$1"
}
