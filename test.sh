#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Arguments go on to ctest.
set -euo pipefail
cd "$(dirname "$0")"
. .ci/packages.sh

install_missing "${build_packages[@]}" "${show_packages[@]}" "${test_packages[@]}"
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev -j "$(nproc)" "$@"
