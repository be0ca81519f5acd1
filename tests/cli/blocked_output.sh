#!/usr/bin/env bash
# --headless --run with standard output a full pipe that nobody reads: the
# console keeps running its show (Art-Net to the loopback only) and SIGTERM
# still ends it cleanly within a few seconds.
set -u
lumaris=$1
command -v python3 >/dev/null || { echo "SKIP: no python3"; exit 0; }
show=$(cd "$(dirname "$0")/../.." && pwd)/examples/installation_loop.xml
exec python3 - "$lumaris" "$show" <<'EOF_PY'
import atexit, fcntl, os, shutil, signal, subprocess, sys, tempfile, time

lumaris, show = sys.argv[1], sys.argv[2]
home = tempfile.mkdtemp()
atexit.register(shutil.rmtree, home, True)
read_end, write_end = os.pipe()
fcntl.fcntl(write_end, 1031, 4096)  # F_SETPIPE_SZ: the smallest pipe there is
os.set_blocking(write_end, False)
try:
    while True:
        os.write(write_end, b"x" * 512)
except BlockingIOError:
    pass
os.set_blocking(write_end, True)

env = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home + "/.config")
proc = subprocess.Popen([lumaris, "--headless", "--artnet-bind", "127.0.0.1", "--artnet-target",
                         "127.0.0.1", "--run", show], stdout=write_end, stderr=subprocess.DEVNULL, env=env)
os.close(write_end)
time.sleep(3)  # starting up and printing into the full pipe
if proc.poll() is not None:
    print("FAIL: the console ended by itself with", proc.returncode)
    sys.exit(1)
proc.send_signal(signal.SIGTERM)
try:
    code = proc.wait(timeout=8)
except subprocess.TimeoutExpired:
    proc.kill()
    print("FAIL: SIGTERM did not end the console while its output was blocked")
    sys.exit(1)
if code != 0:
    print("FAIL: exit code", code, "after SIGTERM")
    sys.exit(1)
print("blocked output OK")
EOF_PY
