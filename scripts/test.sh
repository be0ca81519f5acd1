#!/usr/bin/env bash
# Sets everything up, builds with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/check_layers.sh
BUILD_DIR=${BUILD_DIR:-build} scripts/build.sh -DLUMARIS_WERROR=ON "$@"
ctest --test-dir "${BUILD_DIR:-build}" --output-on-failure -j "$(nproc)"
