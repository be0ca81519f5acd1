#!/usr/bin/env bash
# From the keypad to the wire: the real program, headless, reads a key line from
# a pipe and its ArtDmx reaches a receiver on another host. The two hosts are
# network namespaces this test makes, joined by a veth pair (10.77.1.1 and
# 10.77.1.2); nothing leaves them. Without the right to make namespaces the test
# is skipped.
set -u
lumaris=$1
receiver=$2
show_source=$3
work=$(mktemp -d)
host_a=lumaris_keys_a_$$
host_b=lumaris_keys_b_$$
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
ip -n "$host_a" link add keys_a type veth peer name keys_b netns "$host_b" || fail "veth pair"
ip -n "$host_a" link set lo up
ip -n "$host_b" link set lo up
ip -n "$host_a" addr add 10.77.1.1/24 dev keys_a
ip -n "$host_b" addr add 10.77.1.2/24 dev keys_b
ip -n "$host_a" link set keys_a up
ip -n "$host_b" link set keys_b up

sed 's#<Universe>0</Universe>#<Universe>9</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>9</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

# Ten slots lit: channels 1..8 and 12 at full, 9 at half.
ip netns exec "$host_b" "$receiver" 10.77.1.2 6454 20 10 12 >"$work/receiver.log" 2>&1 &
receiver_pid=$!
pids+=("$receiver_pid")
for _ in $(seq 50); do grep -qs listening "$work/receiver.log" && break; sleep 0.1; done

mkdir -p "$work/home"
printf '9.50\n1*8+12.000' |
  HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
  ip netns exec "$host_a" "$lumaris" --headless --artnet-target 10.77.1.2 "$work/show.xml" \
  >"$work/lumaris.log" 2>&1 &
pids+=($!)

wait "$receiver_pid" || fail "the keyed levels never reached the other host"
line=$(grep '^universe' "$work/receiver.log")
[ "$line" = "universe 9 length 512 levels 10 first 255 255 255 255 255 255 255 255 128 0 0 255" ] ||
  fail "received: $line"
grep -qx 'line: 9 @ 50 ' "$work/lumaris.log" || fail "the keypad did not answer the first line"
grep -qx 'lamp green' "$work/lumaris.log" || fail "no green lamp reported"
echo "keypad to wire OK: $line"
