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
. "$(dirname "$0")/two_hosts.sh"
make_two_hosts wire 10.77.0

sed 's#<Universe>0</Universe>#<Universe>147</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>147</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

ip netns exec "$host_b" "$receiver" 10.77.0.2 6454 20 >"$work/receiver.log" 2>&1 &
receiver_pid=$!
pids+=("$receiver_pid")
wait_listening "$work/receiver.log"

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
