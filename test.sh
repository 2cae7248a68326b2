#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds and runs all tests, then each fuzz target for 5 seconds, or for FUZZ_SECONDS. ./test.sh
# Only some of the tests, or with the sanitizers, and no fuzz targets: ./test.sh [--asan] [what ctest
# takes, such as -L unit or -R Ppd]. Only the fuzz targets: ./test.sh --fuzz [seconds for each]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/prepare.sh
. "$here/scripts/prepare.sh"

run_tests() {
  local preset=$1
  shift
  install_packages "${TQR7_PACKAGES[@]}"
  build_preset "$preset" "$here"
  # The tests that wait for a printer or a scheduler leave room for others.
  ctest --test-dir "$here/build/$preset" -j $(($(nproc) + 2)) --output-on-failure \
    --no-tests=error "$@"
}

run_fuzz_targets() {
  install_packages "${TQR7_PACKAGES[@]}" "${TQR7_FUZZ_PACKAGES[@]}"
  build_preset fuzz "$here" fuzz_targets
  "$here/tests/fuzz/run" --seconds "$1"
}

case ${1:-} in
  --help | -h)
    sed -n '3,5s/^# //p' "${BASH_SOURCE[0]}"
    ;;
  --fuzz)
    run_fuzz_targets "${2:-${FUZZ_SECONDS:-5}}"
    ;;
  --asan)
    shift
    run_tests asan "$@"
    ;;
  '')
    run_tests release
    run_fuzz_targets "${FUZZ_SECONDS:-5}"
    ;;
  *)
    run_tests release "$@"
    ;;
esac
