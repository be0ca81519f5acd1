#!/usr/bin/env bash
# Fails when a file includes a header from a layer above its own. The layer
# order, bottom up, is written once, here. Folders on one line form one layer;
# within the subsystem layer, a folder may use only the folders listed before it.
set -euo pipefail
cd "$(dirname "$0")/.."

layers=(
  "base platform"                    # basic types and the platform interfaces
  "core controls"                    # the store and the desks that only need it
  "output net sequence playback fixtures keypad surface"  # subsystems, in this order
  "console"                          # composition root, output cycle, show file
  "app"                              # the Qt windows and main
)
# platform/qt and platform/linux are real implementations of the seams: they
# may use only the seams themselves and the basic types.
subsystem_layer=2

declare -A layer_of rank_of
for i in "${!layers[@]}"; do
  rank=0
  for folder in ${layers[$i]}; do
    layer_of[$folder]=$i
    rank_of[$folder]=$rank
    rank=$((rank + 1))
  done
done

folder_of() {  # top folder of a path, or "" for files outside the layers
  local top=${1%%/*}
  [ -n "${layer_of[$top]+x}" ] && echo "$top" || echo ""
}

status=0
while IFS= read -r file; do
  from=$(folder_of "$file")
  [ -n "$from" ] || continue
  while IFS= read -r header; do
    to=$(folder_of "$header")
    [ -n "$to" ] || continue
    bad=""
    if [ "${layer_of[$to]}" -gt "${layer_of[$from]}" ]; then
      bad="a higher layer"
    elif [ "${layer_of[$from]}" -eq "$subsystem_layer" ] && [ "${layer_of[$to]}" -eq "$subsystem_layer" ] &&
         [ "${rank_of[$to]}" -gt "${rank_of[$from]}" ]; then
      bad="a later subsystem"
    elif [[ $file == platform/*/* ]] && [[ $header != platform/* && $header != base/* ]]; then
      bad="outside the seams (real platform parts get the rest from main)"
    fi
    if [ -n "$bad" ]; then
      echo "$file includes $header: $bad" >&2
      status=1
    fi
  done < <(sed -n 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"\([^"]*\)".*/\1/p' "$file")
done < <(find "${!layer_of[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) 2>/dev/null | sort)

[ $status -eq 0 ] && echo "layers: every include points down"
exit $status
