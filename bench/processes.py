"""What processes cost, read from /proc, and ending them."""

import os
import signal
import time
from pathlib import Path

PROC = Path("/proc")


def cpu_ms(pid):
    """Returns the CPU time of a process, ended threads included; 0 when it is gone."""
    # The number of a process's clock, as clock_getcpuclockid makes it; 2 asks for the exact one.
    clock = ~pid << 3 | 2
    try:
        return time.clock_gettime_ns(clock) / 1e6
    except OSError:
        return 0


def busy_ms(pid):
    """Returns the time that the threads of a process have run, or would have if they had been let."""
    total = 0
    for task in (PROC / str(pid) / "task").glob("*/schedstat"):
        ran, waited, _ = map(int, task.read_text().split())
        total += ran + waited
    return total / 1e6


def wait_for_rest(pid, stretch=0.6, most=0.08, patience=120):
    """Waits until a process is at work for at most that part of a stretch of so many seconds.

    Returns the moment of time.monotonic() at which the rest began.
    """
    looks = [(time.monotonic(), busy_ms(pid))]
    while looks[-1][0] - looks[0][0] < patience:
        time.sleep(0.03)
        now, busy = time.monotonic(), busy_ms(pid)
        former = [look for look in looks if now - look[0] >= stretch]
        if former and busy - former[-1][1] <= most * 1000 * (now - former[-1][0]):
            return former[-1][0]
        looks.append((now, busy))
    raise TimeoutError(f"process {pid} does not come to rest")


def anonymous_mib(pid):
    """Returns the memory that belongs to no file, which is what a program costs on its own."""
    for line in (PROC / str(pid) / "smaps_rollup").read_text().splitlines():
        if line.startswith("Anonymous:"):
            return int(line.split()[1]) / 1024
    raise ValueError(f"process {pid} tells no memory")


def wine_server():
    """Returns the process that serves the present Wine prefix."""
    prefix = os.stat(os.environ["WINEPREFIX"])
    folder = f"server-{prefix.st_dev:x}-{prefix.st_ino:x}"
    for entry in PROC.glob("[0-9]*"):
        try:
            comm = (entry / "comm").read_text()
            if comm.startswith("wineserver") and os.readlink(entry / "cwd").endswith(folder):
                return int(entry.name)
        except OSError:
            continue
    raise LookupError("no Wine session runs")


def is_alive(pid):
    """Tells whether the process runs; one that ended but was never asked how does not."""
    try:
        return (PROC / str(pid) / "stat").read_text().rsplit(")", 1)[1].split()[0] != "Z"
    except OSError:
        return False


def end(pid):
    """Ends a process that was started here and waits until it is gone."""
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        return
    while is_alive(pid):
        time.sleep(0.02)
