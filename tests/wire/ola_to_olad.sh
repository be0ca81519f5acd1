#!/usr/bin/env bash
# The real program, headless with --ola-universe, sending to a private olad; OLA's
# own client reads the universe back (ola_recorder, which
# registers for the universe and records every frame olad hands it). olad runs as an unprivileged user, with a
# throwaway config folder, inside a network namespace this test makes (only its
# loopback is up), so nothing leaves it. Skipped where olad or namespaces are missing.
set -u
lumaris=$1
work=$(mktemp -d)
chmod 755 "$work"
cleanup() { rm -rf "$work"; }
trap cleanup EXIT

for tool in olad ola_recorder setpriv unshare; do
  command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed (Debian package ola)"; exit 77; }
done
if ! unshare -n true 2>/dev/null; then
  echo "SKIP: this machine does not let the test make a network namespace"
  exit 77
fi

cat >"$work/run.sh" <<'INNER'
set -u
lumaris=$1
work=$2
ip link set lo up || exit 77
mkdir -p "$work/ola" "$work/home"
chown nobody "$work/ola"
start_olad() {
  setpriv --reuid=nobody --regid=nogroup --clear-groups --reset-env \
    olad --config-dir "$work/ola" --no-http --log-level 1 >>"$work/olad.log" 2>&1 &
  olad_pid=$!
  for _ in $(seq 50); do
    (exec 3<>/dev/tcp/127.0.0.1/9010) 2>/dev/null && return 0
    sleep 0.1
  done
  return 1
}
if ! start_olad; then
  echo "SKIP: olad could not start here"; cat "$work/olad.log"; exit 77
fi
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" QT_QPA_PLATFORM=offscreen \
  "$lumaris" --headless --ola-universe 42 >"$work/lumaris.log" 2>&1 &
lumaris_pid=$!
status=1
# A recorded frame of universe 42 is a line "42 <levels>".
timeout -s INT 3 ola_recorder -u 42 -r "$work/fetch.log" >/dev/null 2>&1
grep -q "^42 " "$work/fetch.log" && status=0
# olad going away and coming back: the desk keeps running and reconnects.
kill "$olad_pid"; wait "$olad_pid" 2>/dev/null
sleep 1.5
kill -0 "$lumaris_pid" 2>/dev/null || { echo "FAIL: lumaris ended when olad went away"; status=1; }
back=1
start_olad
timeout -s INT 4 ola_recorder -u 42 -r "$work/fetch2.log" >/dev/null 2>&1
grep -q "^42 " "$work/fetch2.log" && back=0
[ $back -eq 0 ] || { echo "FAIL: no frame on universe 42 after olad came back"; status=1; }
kill "$lumaris_pid" "$olad_pid" 2>/dev/null
wait 2>/dev/null
exit $status
INNER

unshare -n bash ${OLA_TRACE:+-x} "$work/run.sh" "$lumaris" "$work"
code=$?
if [ $code -eq 77 ]; then exit 77; fi
if [ $code -ne 0 ]; then
  echo "FAIL: universe 42 was not read back from olad"
  cat "$work"/*.log 2>/dev/null
  exit 1
fi
echo "OLA to olad OK: $(head -c 120 "$work/fetch.log")"
