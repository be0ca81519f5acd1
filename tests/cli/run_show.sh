#!/usr/bin/env bash
# --headless --run: the example installation plays its Auto chain by itself,
# prints each take and completion with its screens, each line stamped with the
# time, in the order they happen, and ends cleanly on SIGTERM.
set -u
lumaris=$1
show=$(cd "$(dirname "$0")/../.." && pwd)/examples/installation_loop.xml
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; cat "$work/out" "$work/err" 2>/dev/null; exit 1; }

wait_for() {  # FILE TEXT SECONDS
  for _ in $(seq $(($3 * 10))); do grep -qsF -- "$2" "$1" && return 0; sleep 0.1; done
  return 1
}

"$lumaris" --headless --run "$show" >"$work/out" 2>"$work/err" &
pid=$!
wait_for "$work/out" ' Autotake Running 1 To 2 (from "Dawn" to "Noon")' 20 || { kill -9 $pid; fail "no automatic take"; }
wait_for "$work/out" ' Autotake Complete (now "Noon")' 20 || { kill -9 $pid; fail "take did not complete"; }
kill -s TERM $pid
wait $pid
code=$?
[ $code -eq 0 ] || fail "exit code $code after SIGTERM"
# A log: every line starts with the time of day, and events come in the order they happened.
grep -qvE '^[0-2][0-9]:[0-5][0-9]:[0-5][0-9]\.[0-9]{3} ' "$work/out" && fail "a line without its time"
first() { grep -nF -m1 -- "$1" "$work/out" | cut -d: -f1; }
selected=$(first " Run Mode Selected")
[ -n "$selected" ] || fail "run mode not entered"
[ "$selected" -lt "$(first " Autotake Complete ")" ] || fail "Run Mode Selected printed after the take it started"

"$lumaris" --headless --run >"$work/out" 2>"$work/err" &
pid=$!
wait_for "$work/err" "--run needs a show" 20 || { kill -9 $pid; fail "--run without a show must say so"; }
kill -s TERM $pid
wait $pid
echo "run mode show OK"
