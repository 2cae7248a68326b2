#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# The package's version is that which the programs say, and a revision behind it: version.sh BUILD SOURCE
set -euo pipefail

build=$1 source=$2
program=$("$build/tqr7" --version)
package=$(sed -n '1s/^tqr7 (\(.*\)-[0-9]*) .*/tqr7 \1/p' "$source/packaging/debian/changelog")
if [ "$program" != "$package" ]; then
  echo "the program is \"$program\", the package \"$package\""
  exit 1
fi
