"""What the benchmarks share: networks, whole-process measurements, tables."""

import gzip
import math
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parent.parent
PROGRAM = ROOT / "build" / "vorlane"
TOOLS = ROOT / "build-bench"
PYTHON = "/usr/bin/python3"  # the one that Debian's python3-networkx belongs to
ABOVE_EVERY_CLIQUE = "1000000"  # a k at which a run writes graph, cliques and empty files


class Usage(NamedTuple):
    """Cost of one process: processor and wall clock seconds, peak memory in MB."""

    cpu: float
    wall: float
    peak: float
    exit_code: int
    output: str


class Network(NamedTuple):
    name: str
    path: Path
    links: int
    whole_numbers: bool


def succeed(*command):
    """Runs a command whose failure, which it has told about itself, ends the benchmark."""
    run = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=False)
    if run.returncode != 0:
        sys.exit(run.returncode)
    return run.stdout


def build_program():
    """Builds the program and the tool that measures it, installing what they need."""
    succeed(ROOT / "scripts" / "setup", "--run")
    succeed(ROOT / "scripts" / "run", "--version")
    TOOLS.mkdir(exist_ok=True)
    succeed("gcc", "-O3", "-o", TOOLS / "measure", ROOT / "bench" / "measure.c")


def build_tools():
    """Builds the program and its rival too."""
    succeed(ROOT / "scripts" / "setup", "--bench")
    build_program()
    igraph = succeed("pkg-config", "--cflags", "--libs", "igraph").split()
    succeed("gcc", "-O3", "-o", TOOLS / "maximal_cliques",
            ROOT / "bench" / "rivals" / "maximal_cliques.c", *igraph)


def build_on_library(name):
    """Builds a program of this folder that uses the library."""
    includes = (f"-I{ROOT / folder}" for folder in ("include", "src"))
    pc = (ROOT / "build" / "packaging" / "vorlane.pc").read_text()
    linked = re.search(r"^Libs.private: (.*)$", pc, re.MULTILINE).group(1).split()
    succeed("g++", "-std=c++20", "-O3", *includes, "-o", TOOLS / name,
            ROOT / "bench" / f"{name}.cpp", ROOT / "build" / "libvorlane.a", *linked)


def measure(command, accepted=(0,)):
    """Runs a command to its end; any exit code that is not accepted ends the benchmark."""
    with tempfile.NamedTemporaryFile(mode="r") as report:
        run = subprocess.run([TOOLS / "measure", report.name, *command], stdin=subprocess.DEVNULL,
                             capture_output=True, text=True, check=False)
        if run.returncode not in accepted:
            sys.exit(f"failed ({run.returncode}): {' '.join(map(str, command))}\n{run.stderr}")
        cpu, wall, peak = report.read().split()
    return Usage(float(cpu), float(wall), int(peak) / 1024, run.returncode, run.stdout)


def measure_program(network, folder, *switches):
    """Runs the program into a directory under folder, which stays until the folder goes: some file
    systems are slow to make files where many have just been deleted."""
    results = Path(tempfile.mkdtemp(dir=folder)) / "results"
    usage = measure([PROGRAM, "-i", network.path, "-o", results, *switches])
    return usage


def median(usages):
    """The median of each figure."""
    return Usage(*(statistics.median(figures) for figures in list(zip(*usages))[:3]),
                 usages[0].exit_code, usages[0].output)


def geometric_mean(ratios):
    return math.exp(statistics.fmean(map(math.log, ratios)))


@contextmanager
def working_folder():
    """A folder for prepared networks and results, deleted at the end (TMPDIR chooses the disk)."""
    folder = Path(tempfile.mkdtemp(prefix="vorlane-bench."))
    try:
        yield folder
    finally:
        shutil.rmtree(folder)


def prepare(source, folder):
    """Writes the names of a link file in two columns, without comments: every rival can read that."""
    name = re.sub(r"(\.txt)?(\.gz)?$", "", source.name)
    path = folder / f"{name}.txt"
    whole_number = re.compile(rb"0|[1-9]\d{0,6}").fullmatch
    links, whole_numbers = 0, True
    opened = gzip.open if source.suffix == ".gz" else open
    with opened(source, "rb") as lines, open(path, "wb") as out:
        for line in lines:
            names = line.split(maxsplit=2)[:2]
            if len(names) == 2 and not names[0].startswith(b"#"):
                links += 1
                whole_numbers = whole_numbers and all(map(whole_number, names))
                out.write(b"%s %s\n" % tuple(names))
    return Network(name, path, links, whole_numbers)


def add_network_options(parser):
    """The options by which a benchmark over several networks is told which."""
    named = os.environ.get("VORLANE_NETWORKS")
    parser.add_argument("networks", nargs="*", type=Path, default=[Path(named)] if named else [],
                        help="link files (.gz too) or directories of them; without: the directory "
                        "in VORLANE_NETWORKS")
    parser.add_argument("--more-than", type=int, default=10_000, metavar="LINKS",
                        help="leave out networks of so many links or fewer (default: %(default)s)")
    parser.add_argument("--skip", nargs="*", default=["facebook_combined"], metavar="NAME",
                        help="networks to leave out (default: %(default)s)")


def named_files(options):
    """The link files that the options name."""
    files = []
    for source in options.networks:
        files += sorted(source.glob("*.txt*")) if source.is_dir() else [source]
    return [file for file in files if not any(name in file.name for name in options.skip)]


def end_without(networks):
    """Ends the benchmark if there are none."""
    if not networks:
        sys.exit("No networks: name link files or a directory of them, or set VORLANE_NETWORKS.")


def prepared_networks(options, folder):
    """The networks that the options name, ready in folder, the smallest first."""
    networks = [prepare(file, folder) for file in named_files(options)]
    networks = [network for network in networks if network.links > options.more_than]
    end_without(networks)
    return sorted(networks, key=lambda network: network.links)


def number(value):
    """Three significant digits, never in powers of ten."""
    digits = 2 if value == 0 else max(0, 2 - math.floor(math.log10(abs(value))))
    return f"{value:.{digits}f}"


def print_row(*cells):
    """One row of a Markdown table, shown at once."""
    texts = (cell if isinstance(cell, str) else number(cell) for cell in cells)
    print("| " + " | ".join(texts) + " |", flush=True)


def print_head(*titles):
    print_row(*titles)
    print("|" + " --- |" + " ---: |" * (len(titles) - 1), flush=True)


def tell(goal, at_most, figure):
    """One row of a table of goals."""
    print_row(goal, f"{at_most:g}", figure, "yes" if figure <= at_most else "no")
