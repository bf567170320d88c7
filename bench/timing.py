"""Runs programs in turn and says what each run took."""

import os
import time
from dataclasses import dataclass


@dataclass(frozen=True)
class Run:
    """One run of a program: wall-clock and processor time in seconds, peak memory in MiB."""

    wall: float
    processor: float
    peak: float


class Failed(Exception):
    """A program that is measured did not do its work."""

    def __init__(self, words, status):
        super().__init__(f"This ended with status {status}: {' '.join(map(str, words))}")


def memory_of(process):
    """Resident memory of a process and its children in MiB, what they share counted once."""
    total = 0
    try:
        with open(f"/proc/{process}/smaps_rollup", encoding="ascii") as file:
            total = sum(int(line.split()[1]) for line in file if line.startswith("Pss:")) / 1024
        with open(f"/proc/{process}/task/{process}/children", encoding="ascii") as file:
            total += sum(memory_of(child) for child in file.read().split())
    except OSError:
        pass  # it has just ended
    return total


def watch(child):
    """Waits for the end of `child` and says the most memory that it and its children had. It looks
    seldom: each look at a process of some gigabytes holds that process up for milliseconds."""
    peak = 0
    while os.waitid(os.P_PID, child, os.WEXITED | os.WNOHANG | os.WNOWAIT) is None:
        peak = max(peak, memory_of(child))
        time.sleep(0.05)
    return peak


def run(command, environment=None, together=False):
    """Runs `command` to its end. Its processor time includes its children's; its peak memory is
    that of the largest of its processes, or of all of them together."""
    actions = [
        (os.POSIX_SPAWN_OPEN, 0, os.devnull, os.O_RDONLY, 0),
        (os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0),
        (os.POSIX_SPAWN_DUP2, 1, 2),
    ]
    words = [os.fspath(word) for word in command]
    start = time.monotonic()
    child = os.posix_spawnp(words[0], words, environment or os.environ, file_actions=actions)
    peak = watch(child) if together else 0
    _, status, usage = os.wait4(child, 0)
    wall = time.monotonic() - start
    code = os.waitstatus_to_exitcode(status)
    if code != 0:
        raise Failed(words, code)
    return Run(wall, usage.ru_utime + usage.ru_stime, peak or usage.ru_maxrss / 1024)


def in_turn(first, second, turns):
    """Calls `first` and `second` in turn (A B B A ...), so that a busy spell of the machine falls
    on both; returns the two lists of results."""
    results = [], []
    for turn in range(turns):
        order = (0, 1) if turn % 2 == 0 else (1, 0)
        for which in order:
            results[which].append((first, second)[which]())
    return results
