#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds and runs all tests. ./test.sh [--asan] [what ctest takes, such as -L unit or -R Ppd]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/prepare.sh
. "$here/scripts/prepare.sh"

preset=release
case ${1:-} in
  --asan)
    preset=asan
    shift
    ;;
  --help | -h)
    sed -n 's/^# \(Builds.*\)/\1/p' "${BASH_SOURCE[0]}"
    exit 0
    ;;
esac

install_packages "${TQR7_PACKAGES[@]}"
build_preset "$preset" "$here"
exec ctest --test-dir "$here/build/$preset" -j 2 --output-on-failure --no-tests=error "$@"
