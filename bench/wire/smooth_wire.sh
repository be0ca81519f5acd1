#!/usr/bin/env bash
# Wire harness: the real program, headless, in a network namespace of its own,
# sends Art-Net to a capture in a second namespace joined to the first by a veth
# pair (10.78.0.1 and 10.78.0.2; the node holds port 6454 itself, so the capture
# cannot share its host). Nothing leaves the two namespaces. Not part of CI: it
# runs in real time.
#   smooth_wire.sh LUMARIS BENCH_DIR SHOW [SECONDS] [lumaris options...]
#     a show whose fade runs by itself: the frame gaps and the first fade on slot 1
#   smooth_wire.sh LUMARIS BENCH_DIR take [SECONDS] [lumaris options...]
#     a show the script writes (screen 1: channel 1 at 0; screen 2: at full with a
#     5 s fade), in run mode; 2 s in, the keypad line "C2" Enter takes screen 2
#   smooth_wire.sh LUMARIS BENCH_DIR latency [LINES] [lumaris options...]
#     key_latency types LINES lines (default 100) into the program's standard
#     input and times each Enter to the first frame that carries its level, with
#     a random 0-PAUSE_MS pause (default 50) between lines
# BENCH_DIR holds artdmx_capture and key_latency (build/bench). E.g.
#   smooth_wire.sh build/lumaris build/bench take 12 --smooth --refresh-ms 23
set -u
lumaris=$1
bench_dir=$2
mode=$3
count=${4:-}
shift 4 2>/dev/null || shift $#
# shellcheck source=../../tests/wire/two_hosts.sh
. "$(dirname "$0")/../../tests/wire/two_hosts.sh"
make_two_hosts smooth 10.78.0

# Art-Net universe 0 on; channel 1 on slot 1; screen 2 brings it to full over 5 s.
write_take_show() {
  cat >"$1" <<'EOF'
<Lumaris_XML>
  <Project><Name>Wire take</Name><Version>1</Version><Network><Universe>0</Universe></Network></Project>
  <Patch>0:1</Patch>
  <Screen><Num>1</Num><Name>Dark</Name><Next>2</Next><Preset_l>255</Preset_l><Time>0</Time></Screen>
  <Screen><Num>2</Num><Name>Full</Name><Next>1</Next><Preset_l>255</Preset_l><Time>5</Time><Preset>0:255</Preset></Screen>
</Lumaris_XML>
EOF
}

# The program on host a, its standard input from $1; its options follow.
start_lumaris() {
  local input=$1
  shift
  mkdir -p "$work/home"
  HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
    ip netns exec "$host_a" "$lumaris" --headless --artnet-target 10.78.0.2 "$@" \
    <"$input" >"$work/lumaris.log" 2>&1 &
  pids+=($!)
}

start_capture() {  # seconds [changes fifo]
  ip netns exec "$host_b" "$bench_dir/artdmx_capture" 10.78.0.2 6454 "$@" >"$work/capture.log" 2>&1 &
  capture_pid=$!
  pids+=("$capture_pid")
  wait_listening "$work/capture.log" || fail "the capture never listened"
}

report_capture() {
  echo "options: ${*:-none}"
  grep -v listening "$work/capture.log"
  grep -q "^frames 0 " "$work/capture.log" && { echo "lumaris said:"; cat "$work/lumaris.log"; }
}

case $mode in
  latency)
    lines=${count:-100}
    write_take_show "$work/show.xml"
    mkfifo "$work/keys" "$work/changes"
    start_capture 600 "$work/changes"
    "$bench_dir/key_latency" "$work/keys" "$work/changes" "$lines" "${PAUSE_MS:-50}" >"$work/latency.log" 2>&1 &
    driver_pid=$!
    pids+=("$driver_pid")
    start_lumaris "$work/keys" "$@" "$work/show.xml"
    wait "$driver_pid"
    kill -TERM "$capture_pid"
    wait "$capture_pid"
    echo "options: ${*:-none}, pauses 0-${PAUSE_MS:-50} ms"
    cat "$work/latency.log"
    grep "^frames" "$work/capture.log"
    ;;
  take)
    seconds=${count:-12}
    write_take_show "$work/show.xml"
    start_capture "$seconds"
    mkfifo "$work/keys"
    start_lumaris "$work/keys" --run "$@" "$work/show.xml"
    # The key line once the show runs; the pipe then stays open, as a terminal would.
    { sleep 2; printf 'C2\n'; exec sleep "$seconds"; } >"$work/keys" &
    pids+=($!)
    wait "$capture_pid"
    report_capture --run "$@"
    grep -q '^line: c 2' "$work/lumaris.log" || echo "the keypad did not answer C2: $(cat "$work/lumaris.log")"
    ;;
  *)
    seconds=${count:-20}
    start_capture "$seconds"
    start_lumaris /dev/null "$@" "$mode"
    wait "$capture_pid"
    report_capture "$@"
    ;;
esac
