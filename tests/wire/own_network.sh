# The wire test's own network: the script runs again inside a network namespace
# made for it with `unshare -n` (nothing under /run/netns is needed), where only
# the loopback is up, so nothing it sends leaves that namespace. The program
# binds 127.0.0.1 and the receiver 127.0.0.2, both on port 6454. Any failure
# while setting this up skips the test (exit 77) with its reason.
# Sourced first thing by a wire test:  . own_network.sh "$@"
# Sets work; `pids+=(...)` processes are stopped on exit.
skip() { echo "SKIP: $*"; exit 77; }
if [ -z "${LUMARIS_OWN_NETWORK:-}" ]; then
  command -v unshare >/dev/null || skip "unshare is not installed"
  command -v ip >/dev/null || skip "ip (iproute2) is not installed"
  unshare -n true 2>/dev/null || skip "this machine does not let the test make a network namespace"
  LUMARIS_OWN_NETWORK=1 unshare -n bash "$0" "$@"
  exit $?
fi
ip link set lo up 2>/dev/null || skip "the loopback of the test's namespace cannot be brought up"
work=$(mktemp -d) || skip "no temporary folder"
pids=()
cleanup_own_network() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$work"
}
trap cleanup_own_network EXIT
fail() { echo "FAIL: $*"; cat "$work"/*.log 2>/dev/null; exit 1; }

# Starts the receiver on 127.0.0.2:6454 with its arguments; skips when it cannot listen.
start_receiver() {
  "$receiver" 127.0.0.2 6454 "$@" >"$work/receiver.log" 2>&1 &
  receiver_pid=$!
  pids+=("$receiver_pid")
  for _ in $(seq 50); do grep -qs listening "$work/receiver.log" && return 0; sleep 0.1; done
  skip "the receiver could not listen on 127.0.0.2:6454: $(cat "$work/receiver.log")"
}
