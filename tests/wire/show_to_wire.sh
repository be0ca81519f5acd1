#!/usr/bin/env bash
# From show file to wire: the real program, headless, with a show that enables
# Art-Net universe 147, and a receiver on the same loopback that gets its ArtDmx,
# in a network namespace this test makes (own_network.sh).
set -u
lumaris=$1
receiver=$2
show_source=$3
. "$(dirname "$0")/own_network.sh" "$@"

sed 's#<Universe>0</Universe>#<Universe>147</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>147</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

start_receiver 20
mkdir -p "$work/home"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
  "$lumaris" --headless --artnet-bind 127.0.0.1 --artnet-target 127.0.0.2 "$work/show.xml" \
  >"$work/lumaris.log" 2>&1 &
pids+=($!)

wait "$receiver_pid" || fail "no ArtDmx reached the receiver"
line=$(grep '^universe' "$work/receiver.log")
# A fresh desk with a loaded show lights nothing until the operator acts.
[ "$line" = "universe 147 length 512 levels 0 first 0 0 0 0 0 0 0 0" ] || fail "received: $line"
echo "show to wire OK: $line"
