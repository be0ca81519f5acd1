#!/usr/bin/env bash
# From the keypad to the wire: the real program, headless, reads a key line from
# a pipe and its ArtDmx reaches a receiver on the same loopback, in a network
# namespace this test makes (own_network.sh).
set -u
lumaris=$1
receiver=$2
show_source=$3
. "$(dirname "$0")/own_network.sh" "$@"

sed 's#<Universe>0</Universe>#<Universe>9</Universe>#' "$show_source" >"$work/show.xml"
grep -q '<Universe>9</Universe>' "$work/show.xml" || fail "the show has no Art-Net row"

# Ten slots lit: channels 1..8 and 12 at full, 9 at half.
start_receiver 20 10 12
mkdir -p "$work/home"
printf '9.50\n1*8+12.000' |
  HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
  "$lumaris" --headless --artnet-bind 127.0.0.1 --artnet-target 127.0.0.2 "$work/show.xml" \
  >"$work/lumaris.log" 2>&1 &
pids+=($!)

wait "$receiver_pid" || fail "the keyed levels never reached the receiver"
line=$(grep '^universe' "$work/receiver.log")
[ "$line" = "universe 9 length 512 levels 10 first 255 255 255 255 255 255 255 255 128 0 0 255" ] ||
  fail "received: $line"
# The log stamps each line with the time of day.
grep -qE '^[0-9:.]{12} line: 9 @ 50 $' "$work/lumaris.log" || fail "the keypad did not answer the first line"
grep -qE '^[0-9:.]{12} lamp green$' "$work/lumaris.log" || fail "no green lamp reported"
echo "keypad to wire OK: $line"
