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
. "$(dirname "$0")/two_hosts.sh"
make_two_hosts keys 10.77.1

sed 's#<Universe>0</Universe>#<Universe>9</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>9</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

# Ten slots lit: channels 1..8 and 12 at full, 9 at half.
ip netns exec "$host_b" "$receiver" 10.77.1.2 6454 20 10 12 >"$work/receiver.log" 2>&1 &
receiver_pid=$!
pids+=("$receiver_pid")
wait_listening "$work/receiver.log"

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
