"""The steps of a run in parts, each a process of its own that is measured."""

import csv

from harness import PROGRAM, measure


def step(work, word, *switches):
    """What one step takes."""
    return measure([PROGRAM, "parts", word, "--work", work, *switches])


def parts_of(work, word, table):
    """The numbers of a step's parts, as its table has them, with their estimates."""
    with open(work / table, encoding="ascii") as file:
        rows = [row for row in csv.reader(file, delimiter="\t") if row[0] == word]
    return [(part, int(estimate)) for _, part, _, _, estimate, *_ in rows]
