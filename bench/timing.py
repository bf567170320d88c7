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


def run(command, environment=None):
    """Runs `command` to its end. Its processor time and peak memory include its children's."""
    actions = [
        (os.POSIX_SPAWN_OPEN, 0, os.devnull, os.O_RDONLY, 0),
        (os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0),
        (os.POSIX_SPAWN_DUP2, 1, 2),
    ]
    words = [os.fspath(word) for word in command]
    start = time.monotonic()
    child = os.posix_spawnp(words[0], words, environment or os.environ, file_actions=actions)
    _, status, usage = os.wait4(child, 0)
    wall = time.monotonic() - start
    code = os.waitstatus_to_exitcode(status)
    if code != 0:
        raise Failed(words, code)
    return Run(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)


def in_turn(first, second, turns):
    """Calls `first` and `second` in turn (A B B A ...), so that a busy spell of the machine falls
    on both; returns the two lists of results."""
    results = [], []
    for turn in range(turns):
        order = (0, 1) if turn % 2 == 0 else (1, 0)
        for which in order:
            results[which].append((first, second)[which]())
    return results
