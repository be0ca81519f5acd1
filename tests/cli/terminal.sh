#!/usr/bin/env bash
# The headless console on a terminal of its own (a pseudo-terminal it controls):
# keys are read raw with flow control off, raw again after Ctrl-Z and fg, the end
# of input (Ctrl-D) is said, and Ctrl-\ or a hang-up end the console cleanly with
# the terminal's own settings given back.
set -u
lumaris=$1
command -v python3 >/dev/null || { echo "SKIP: no python3"; exit 0; }
exec python3 - "$lumaris" <<'EOF'
import os, pty, signal, subprocess, sys, termios, time, fcntl

lumaris = sys.argv[1]

def fail(why):
    print("FAIL:", why)
    sys.exit(1)

def run(stop_signal):
    master, slave = pty.openpty()
    def own_terminal():
        os.setsid()
        fcntl.ioctl(0, termios.TIOCSCTTY, 0)
    proc = subprocess.Popen([lumaris, "--headless"], stdin=slave, stdout=slave, stderr=subprocess.DEVNULL,
                            preexec_fn=own_terminal)
    os.set_blocking(master, False)
    seen = b""
    def wait_for(text, what):
        nonlocal seen
        deadline = time.monotonic() + 20
        while text not in seen:
            if time.monotonic() > deadline:
                proc.kill()
                fail(what + ": " + seen.decode(errors="replace")[-300:])
            try:
                seen += os.read(master, 4096)
            except BlockingIOError:
                time.sleep(0.05)
    def lflag():
        return termios.tcgetattr(slave)[3]
    def raw_soon(what):
        deadline = time.monotonic() + 10
        while lflag() & termios.ICANON:
            if time.monotonic() > deadline:
                proc.kill()
                fail(what)
            time.sleep(0.05)

    wait_for(b" Main Desk Running ", "no status line")
    raw_soon("keys are not read raw")
    if termios.tcgetattr(slave)[0] & termios.IXON:
        fail("Ctrl-S would stop the console's printing")
    # What a shell leaves after Ctrl-Z: the terminal line by line again.
    cooked = termios.tcgetattr(slave)
    cooked[3] |= termios.ICANON | termios.ECHO
    termios.tcsetattr(slave, termios.TCSANOW, cooked)
    os.kill(proc.pid, signal.SIGCONT)
    raw_soon("still line by line after fg")
    if stop_signal is None:
        os.write(master, b"\x04")
        wait_for(b"Keypad input has ended", "Ctrl-D not said")
        stop_signal = signal.SIGTERM
    os.kill(proc.pid, stop_signal)
    try:
        code = proc.wait(timeout=20)
    except subprocess.TimeoutExpired:
        proc.kill()
        fail("no end after signal %d" % stop_signal)
    if code != 0:
        fail("exit code %d after signal %d" % (code, stop_signal))
    if not lflag() & termios.ICANON:
        fail("terminal left raw after signal %d" % stop_signal)
    os.close(master)
    os.close(slave)

run(None)
run(signal.SIGQUIT)
run(signal.SIGHUP)
print("terminal keypad OK")
EOF
