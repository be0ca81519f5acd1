#!/usr/bin/env bash
# From show file to wire: the real program, headless, with a show that enables
# Art-Net universe 147, and a receiver on another host that gets its ArtDmx. The
# two hosts are network namespaces this test makes, joined by a veth pair
# (10.77.0.1 and 10.77.0.2); nothing leaves them. Without the right to make
# namespaces the test is skipped.
set -u
lumaris=$1
receiver=$2
show_source=$3
work=$(mktemp -d)
host_a=lumaris_wire_a_$$
host_b=lumaris_wire_b_$$
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  ip netns del "$host_a" 2>/dev/null
  ip netns del "$host_b" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*"; cat "$work"/*.log 2>/dev/null; exit 1; }

if ! ip netns add "$host_a" 2>/dev/null || ! ip netns add "$host_b" 2>/dev/null; then
  echo "SKIP: this machine does not let the test make network namespaces"
  exit 77
fi
ip -n "$host_a" link add wire_a type veth peer name wire_b netns "$host_b" || fail "veth pair"
ip -n "$host_a" link set lo up
ip -n "$host_b" link set lo up
ip -n "$host_a" addr add 10.77.0.1/24 dev wire_a
ip -n "$host_b" addr add 10.77.0.2/24 dev wire_b
ip -n "$host_a" link set wire_a up
ip -n "$host_b" link set wire_b up

sed 's#<Universe>0</Universe>#<Universe>147</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>147</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

ip netns exec "$host_b" "$receiver" 10.77.0.2 6454 20 >"$work/receiver.log" 2>&1 &
receiver_pid=$!
pids+=("$receiver_pid")
for _ in $(seq 50); do grep -qs listening "$work/receiver.log" && break; sleep 0.1; done

mkdir -p "$work/home"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
  ip netns exec "$host_a" "$lumaris" --headless --artnet-target 10.77.0.2 "$work/show.xml" \
  >"$work/lumaris.log" 2>&1 &
pids+=($!)

wait "$receiver_pid" || fail "no ArtDmx reached the other host"
line=$(grep '^universe' "$work/receiver.log")
# A fresh desk with a loaded show lights nothing until the operator acts.
[ "$line" = "universe 147 length 512 levels 0 first 0 0 0 0 0 0 0 0" ] || fail "received: $line"
echo "show to wire OK: $line"
