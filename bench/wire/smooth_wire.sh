#!/usr/bin/env bash
# Wire harness: the real program, headless, in a network namespace of its own,
# sends Art-Net to a capture in a second namespace joined to the first by a veth
# pair (10.78.0.1 and 10.78.0.2; the node holds port 6454 itself, so the capture
# cannot share its host). The capture prints the frame gaps and the figures of
# the first fade on slot 1. Nothing leaves the two namespaces. Not part of CI:
# it runs in real time.
#   bench/wire/smooth_wire.sh LUMARIS ARTDMX_CAPTURE SHOW [SECONDS] [lumaris options...]
# e.g. smooth_wire.sh build/lumaris build/bench/artdmx_capture show.xml 20 --smooth --refresh-ms 23
set -u
lumaris=$1
capture=$2
show=$3
seconds=${4:-20}
shift 4 2>/dev/null || shift $#
work=$(mktemp -d)
host=lumaris_smooth_a_$$
peer=lumaris_smooth_b_$$
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  ip netns del "$host" 2>/dev/null
  ip netns del "$peer" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT

if ! ip netns add "$host" 2>/dev/null || ! ip netns add "$peer" 2>/dev/null; then
  echo "SKIP: cannot make network namespaces"
  exit 77
fi
ip -n "$host" link add wire_a type veth peer name wire_b netns "$peer"
ip -n "$host" addr add 10.78.0.1/24 dev wire_a
ip -n "$peer" addr add 10.78.0.2/24 dev wire_b
for ns in "$host" "$peer"; do ip -n "$ns" link set lo up; done
ip -n "$host" link set wire_a up
ip -n "$peer" link set wire_b up

ip netns exec "$peer" "$capture" 10.78.0.2 6454 "$seconds" >"$work/capture.log" 2>&1 &
capture_pid=$!
pids+=("$capture_pid")
for _ in $(seq 50); do grep -qs listening "$work/capture.log" && break; sleep 0.1; done

mkdir -p "$work/home"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
  ip netns exec "$host" "$lumaris" --headless --artnet-target 10.78.0.2 "$@" "$show" \
  >"$work/lumaris.log" 2>&1 &
pids+=($!)

wait "$capture_pid"
echo "options: ${*:-none}"
grep -v listening "$work/capture.log"
grep -q "^frames 0 " "$work/capture.log" && { echo "lumaris said:"; cat "$work/lumaris.log"; }
