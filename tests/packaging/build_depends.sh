#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What the scripts install to build and test is what the package's build depends on.
# build_depends.sh SOURCE
set -euo pipefail

source=$1
# shellcheck source=scripts/prepare.sh
. "$source/scripts/prepare.sh"

declared=$(sed -n '/^Build-Depends:/,/^$/s/^ \([a-z0-9+.-]*\).*,$/\1/p' \
  "$source/packaging/debian/control" | grep -vx debhelper-compat | sort)
# Whatever builds packages has a compiler.
installed=$(printf '%s\n' "${TQR7_PACKAGES[@]}" | grep -vx 'g++' | sort)
diff <(echo "$installed") <(echo "$declared")
