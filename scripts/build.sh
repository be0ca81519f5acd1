#!/usr/bin/env bash
# Configures and builds into BUILD_DIR (default: build), everything or only
# BUILD_TARGET. Extra arguments go to CMake.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${BUILD_DIR:-build}
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=${BUILD_TYPE:-RelWithDebInfo} "$@"
cmake --build "$build_dir" -j "$(nproc)" ${BUILD_TARGET:+--target "$BUILD_TARGET"}
