"""The steps of a run in parts, each a process of its own that is measured."""

import csv
import os
from concurrent.futures import ThreadPoolExecutor

from harness import PROGRAM, measure


def step(work, word, *switches):
    """What one step takes."""
    return measure([PROGRAM, "parts", word, "--work", work, *switches])


def parts_of(work, word, table):
    """The numbers of a step's parts, as its table has them, with their estimates."""
    with open(work / table, encoding="ascii") as file:
        rows = [row for row in csv.reader(file, delimiter="\t") if row[0] == word]
    return [(part, int(estimate)) for _, part, _, _, estimate, *_ in rows]


def do_parts(work, word, table, at_once=1):
    """Does all parts of a step that have work, the dearest first, so many at once. For each its
    estimate, and what it takes.
    """
    parts = [part for part in parts_of(work, word, table) if part[1] > 0]
    parts.sort(key=lambda part: -part[1])
    with ThreadPoolExecutor(at_once) as pool:
        usages = pool.map(lambda part: step(work, word, "--part", part[0]), parts)
        return [(estimate, usage) for (_, estimate), usage in zip(parts, usages)]


def wall_clock(work):
    """Seconds that it takes, with its processes, and its result."""
    start = os.times().elapsed
    result = work()
    return os.times().elapsed - start, result
