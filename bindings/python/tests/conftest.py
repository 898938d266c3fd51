"""What the tests share: networks, the program, and what it writes."""

from __future__ import annotations

import os
import random
import shutil
import subprocess
import sys
from pathlib import Path
from typing import NamedTuple

import pytest

ROOT = Path(__file__).resolve().parents[3]
CHOIR = ROOT / "examples" / "choir.txt"


def program() -> str:
    """The program that came with the package."""
    beside = os.path.join(os.path.dirname(sys.executable), "vorlane")
    found = os.environ.get("VORLANE_PROGRAM") or shutil.which(beside)
    assert found, "the program is not installed; VORLANE_PROGRAM names another"
    return found


def contents(directory: Path) -> dict[str, list[str]]:
    """The lines of all files but for the headers, which name the input."""
    return {
        str(path.relative_to(directory)): [
            line for line in path.read_text().splitlines() if not line.startswith("#")
        ]
        for path in sorted(directory.rglob("*"))
        if path.is_file()
    }


class Sample(NamedTuple):
    """A network, how it is searched, and the switches of the program that mean the same."""

    name: str
    links: list[tuple[object, object, float]]
    options: dict[str, object]
    switches: list[str]

    def write(self, path: Path) -> Path:
        path.write_text("".join(f"{a} {b} {w!r}\n" for a, b, w in self.links))
        return path

    def told(self, folder: Path) -> dict[str, list[str]]:
        """What the program finds."""
        links, out = self.write(folder / "links.txt"), folder / "told"
        command = [program(), "-i", str(links), "-o", str(out), *self.switches]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        (directory,) = folder.glob("told*")  # thresholds stand in its name
        return contents(directory)


def random_links(nodes: int, links: int, seed: int) -> list[tuple[int, int, float]]:
    """Each pair once, from the smaller node to the greater."""
    chance = random.Random(seed)
    pairs = {tuple(sorted(chance.sample(range(nodes), 2))) for _ in range(links)}
    return [(a, b, chance.randint(1, 8) / 4) for a, b in sorted(pairs)]


def choir_links() -> list[tuple[str, str, float]]:
    lines = [line.split() for line in CHOIR.read_text().splitlines() if line[:1] not in ("", "#")]
    return [(line[0], line[1], i % 3 + 1.0) for i, line in enumerate(lines)]


def samples() -> list[Sample]:
    dense, sparse = random_links(40, 260, 1), random_links(120, 700, 2)
    both_ways = dense + [(b, a, 1.0) for a, b, _ in dense[::3]]
    return [
        Sample("choir", choir_links(), {}, []),
        Sample("numbers", sparse, {}, []),
        Sample("thresholds", dense, {"min_weight": 0.3, "max_weight": 1.9}, ["-w", "0.3", "-W", "1.9"]),
        Sample("directed", both_ways, {"directed": True}, ["-D"]),
        Sample("intensity", dense, {"intensity": 0.9}, ["-I", "0.9"]),
        Sample("one k", dense, {"k": 4}, ["-k", "4"]),
        Sample("empty", [(1, 2, 1.0), (2, 3, 1.0)], {}, []),
    ]


@pytest.fixture(params=samples(), ids=lambda sample: sample.name)
def sample(request: pytest.FixtureRequest) -> Sample:
    return request.param  # type: ignore[no-any-return]
