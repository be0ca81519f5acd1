#!/usr/bin/env bash
# The program's entry points beside the desktop window: --help, --version, a
# headless run that prints its status line and ends cleanly on SIGINT/SIGTERM,
# and a start without a display, which says so and runs headless.
set -u
lumaris=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

"$lumaris" --help | grep -q -- '--headless' || fail "--help does not list --headless"
"$lumaris" --version | grep -qE '^Lumaris [0-9]' || fail "--version"
"$lumaris" --bogus >/dev/null 2>&1 && fail "an unknown option must fail"

# Waits until FILE holds TEXT (the program is starting up), at most 20 s.
wait_for() {
  for _ in $(seq 200); do grep -qsF -- "$2" "$1" && return 0; sleep 0.1; done
  return 1
}

run_and_stop() {  # signal, extra env/args...
  local signal=$1; shift
  rm -f "$work/out" "$work/err"
  env "$@" >"$work/out" 2>"$work/err" &
  local pid=$!
  wait_for "$work/out" " Main Desk Running " || { kill -9 $pid; cat "$work/out" "$work/err"; fail "no status line"; }
  kill -s "$signal" $pid
  wait $pid
  local code=$?
  [ $code -eq 0 ] || { cat "$work/err"; fail "exit code $code after SIG$signal"; }
}

run_and_stop TERM "$lumaris" --headless
run_and_stop INT "$lumaris" --headless

# No display and no --headless: one line saying so, then the headless console.
run_and_stop INT -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$lumaris"
grep -q "no display available" "$work/out" || fail "no-display notice missing"
echo "headless entry points OK"
