# Two hosts for a wire harness: network namespaces joined by a veth pair, the
# program's host at ${subnet}.1 and the receiver's at ${subnet}.2. Nothing leaves
# them. Sourced by harnesses that need a real wire between two hosts:
#   . two_hosts.sh; make_two_hosts NAME 10.77.0   (skips with 77 where namespaces cannot be made)
# Sets host_a, host_b and work; `pids+=(...)` processes are stopped on exit.
work=$(mktemp -d)
pids=()
host_a=""
host_b=""
cleanup_two_hosts() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  [ -n "$host_a" ] && ip netns del "$host_a" 2>/dev/null
  [ -n "$host_b" ] && ip netns del "$host_b" 2>/dev/null
  rm -rf "$work"
}
trap cleanup_two_hosts EXIT
fail() { echo "FAIL: $*"; cat "$work"/*.log 2>/dev/null; exit 1; }

make_two_hosts() {  # name subnet
  local name=$1 subnet=$2
  host_a=lumaris_${name}_a_$$
  host_b=lumaris_${name}_b_$$
  if ! ip netns add "$host_a" 2>/dev/null || ! ip netns add "$host_b" 2>/dev/null; then
    echo "SKIP: this machine does not let the test make network namespaces"
    exit 77
  fi
  # Any failure while making the wire is a skip with its reason, never a failure.
  { ip -n "$host_a" link add wire_a type veth peer name wire_b netns "$host_b" &&
    ip -n "$host_a" link set lo up && ip -n "$host_b" link set lo up &&
    ip -n "$host_a" addr add "$subnet.1/24" dev wire_a &&
    ip -n "$host_b" addr add "$subnet.2/24" dev wire_b &&
    ip -n "$host_a" link set wire_a up && ip -n "$host_b" link set wire_b up; } 2>"$work/setup.err" ||
    { echo "SKIP: the test's network could not be set up: $(cat "$work/setup.err")"; exit 77; }
}

# Waits until the receiver's log says it listens, at most 5 s.
wait_listening() {
  for _ in $(seq 50); do grep -qs listening "$1" && return 0; sleep 0.1; done
  return 1
}
