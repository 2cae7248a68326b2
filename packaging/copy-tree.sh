# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# A shell function for the scripts that build somewhere else than in this tree. Source it.

# Copies what git tracks (everything, where there is no git) from the current folder to the folder $1,
# with debian/ where Debian's tools look for it.
copy_tree() {
  local target=$1
  mkdir -p "$target"
  if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git ls-files -z | tar -c --null --files-from=- | tar -x -C "$target"
  else
    tar -c --exclude=./build --exclude=./prints . | tar -x -C "$target"
  fi
  cp -r "$target/packaging/debian" "$target/debian"
}
