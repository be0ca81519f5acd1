#!/usr/bin/env bash
# Sets everything up, builds and starts the console. Arguments go to lumaris
# (a show file, --headless, --artnet-target ADDR, ...).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh -DLUMARIS_BUILD_BENCH=OFF >/dev/null
exec build/lumaris "$@"
