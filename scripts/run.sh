#!/usr/bin/env bash
# Sets everything up, builds the program (only the program: no tests) and starts
# the console. Arguments go to lumaris (a show file, --headless, --artnet-target ADDR, ...).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
build_dir=${BUILD_DIR:-build}
mkdir -p "$build_dir"
if ! cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=${BUILD_TYPE:-RelWithDebInfo} \
     -DLUMARIS_BUILD_BENCH=OFF >"$build_dir/configure.log" 2>&1; then
  cat "$build_dir/configure.log"
  echo "run.sh: configuring the build failed; the log above says why" >&2
  exit 1
fi
echo "Building Lumaris in $build_dir/ (the first build takes a few minutes, later ones seconds)"
cmake --build "$build_dir" --target lumaris -j "$(nproc)"
exec "$build_dir/lumaris" "$@"
