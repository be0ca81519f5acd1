#!/usr/bin/env bash
# What a newcomer meets at start: a display that cannot be opened, a show that
# cannot be read, and --artnet-target, which holds for that run only.
set -u
lumaris=$1
data=$2
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; cat "$work/out" "$work/err" 2>/dev/null; exit 1; }

# The settings of this computer live here for the test, not in the user's home.
export XDG_CONFIG_HOME=$work/config
conf=$XDG_CONFIG_HOME/Lumaris/Lumaris.conf

wait_for() {  # FILE TEXT: at most 20 s
  for _ in $(seq 200); do grep -qsF -- "$2" "$1" && return 0; sleep 0.1; done
  return 1
}

# Runs the program in the background until its status line shows, then ends it.
run_until_running() {
  rm -f "$work/out" "$work/err"
  env "$@" >"$work/out" 2>"$work/err" &
  local pid=$!
  wait_for "$work/out" " Main Desk Running " || { kill -9 $pid; fail "no status line: $*"; }
  kill -s TERM $pid
  wait $pid
  local code=$?
  [ $code -eq 0 ] || fail "exit code $code after SIGTERM: $*"
}

# Finishes within 20 s with the exit code wanted.
expect_exit() {  # CODE command...
  local want=$1; shift
  rm -f "$work/out" "$work/err"
  timeout 20 env "$@" >"$work/out" 2>"$work/err"
  local code=$?
  [ $code -eq "$want" ] || fail "exit code $code, wanted $want: $*"
}

# A display that is named but cannot be opened (closed X server, stale SSH
# DISPLAY): one line, then the headless console; Qt never gets to abort.
gone=":$((7000 + RANDOM % 900))"
run_until_running -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY="$gone" "$lumaris"
grep -qxF "lumaris: no display available (cannot open display \"$gone\"), running headless" \
  "$work/out" || fail "broken display not reported in one line"
run_until_running -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb DISPLAY="$gone" "$lumaris"
grep -qF "no display available" "$work/out" || fail "QT_QPA_PLATFORM=xcb with a broken display"

# A show that cannot be read ends a headless run with a message and code 2.
printf 'not a show\n' >"$work/notes.txt"
for show in "$work/missing.xml" "$work/notes.txt"; do
  expect_exit 2 "$lumaris" --headless "$show"
  grep -qF "could not be loaded" "$work/err" || fail "no reason given for $show"
  expect_exit 2 "$lumaris" --headless --run "$show"
  expect_exit 2 -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$lumaris" "$show"
done
# A damaged show that loads in part keeps running, as it does on the desktop.
head -c 300 "$data/full_show.xml" >"$work/cut.xml"
run_until_running "$lumaris" --headless "$work/cut.xml"

# --artnet-target is for this run: it never reaches the computer's settings,
# and a destination kept there survives the run unchanged.
run_until_running "$lumaris" --headless --verbose --artnet-target 127.0.0.1 \
  "$root/examples/artnet_demo_show.xml"
grep -qF "Art-Net destination: 127.0.0.1" "$work/err" || fail "--artnet-target not used"
if grep -qs "127.0.0.1" "$conf"; then fail "--artnet-target was saved"; fi
mkdir -p "$(dirname "$conf")"
printf '[artnet]\ndestination=127.0.0.2\n' >"$conf"
run_until_running "$lumaris" --headless --artnet-target 127.0.0.1
grep -qx "destination=127.0.0.2" "$conf" || fail "the kept destination changed"
if grep -qs "127.0.0.1" "$conf"; then fail "--artnet-target was saved over the kept one"; fi

# --smooth and --refresh-ms are for this run too: nothing of them is kept.
run_until_running "$lumaris" --headless --smooth --refresh-ms 23
if grep -qs "smooth" "$conf"; then fail "--smooth was saved"; fi

# A broadcast address is one no node answers on: refused before anything is sent.
for broadcast in 255.255.255.255 10.255.255.255 2.255.255.255; do
  expect_exit 2 "$lumaris" --headless --artnet-target "$broadcast"
  grep -qF "is a broadcast address, not one node" "$work/err" || fail "$broadcast not explained"
done
# The broadcast address of one of this computer's networks, if it has one.
brd=$(ip -4 -o addr show 2>/dev/null | sed -n 's/.* brd \([0-9.]*\) .*/\1/p' | head -n 1)
if [ -n "$brd" ]; then
  expect_exit 2 "$lumaris" --headless --artnet-target "$brd"
  grep -qF "$brd is a broadcast address" "$work/err" || fail "$brd (this network's) accepted"
fi
echo "start-up OK"
