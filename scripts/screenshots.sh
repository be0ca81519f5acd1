#!/usr/bin/env bash
# Renders every window of the console offscreen into DIR (default: screenshots/),
# optionally with a show file loaded: scripts/screenshots.sh DIR [SHOW]
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-screenshots}
shift || true
[ -x build/lumaris ] || BUILD_TARGET=lumaris scripts/build.sh
build/lumaris --screenshot "$dir" "$@"
