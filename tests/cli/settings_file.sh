#!/usr/bin/env bash
# A settings file that cannot be read (garbled, or not a file at all) is named
# on stderr at start-up with why, and left exactly as it was after the run.
set -u
lumaris=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; cat "$work/out" "$work/err" 2>/dev/null; exit 1; }
settings=$work/config/Lumaris/Lumaris.conf

wait_for() {  # FILE TEXT
  for _ in $(seq 200); do grep -qsF -- "$2" "$1" && return 0; sleep 0.1; done
  return 1
}

run() {  # the reason expected on stderr
  HOME="$work" XDG_CONFIG_HOME="$work/config" \
    "$lumaris" --headless --artnet-bind 127.0.0.1 --artnet-target 127.0.0.1 >"$work/out" 2>"$work/err" &
  local pid=$!
  wait_for "$work/out" " Main Desk Running " || { kill -9 $pid; fail "no status line"; }
  kill -s TERM $pid
  wait $pid || fail "exit code $? after SIGTERM"
  grep -qF "the settings file $settings cannot be read ($1)" "$work/err" || fail "not said: $1"
}

mkdir -p "$(dirname "$settings")"
printf '[General\nartnet/destination=10.0.0.7\n' >"$settings"
cp "$settings" "$work/before"
run "it is not in the settings format"
cmp -s "$settings" "$work/before" || fail "the unreadable settings file was written over"

rm "$settings" && mkdir "$settings"
run "it is not a regular file"
echo "unreadable settings OK"
