"""From whatever a network is given as to its communities."""

from __future__ import annotations

import os
import warnings
from typing import Any, Sequence

from ._control import Control, run
from ._executor import Executor, Workshop, find_by_executor
from ._inputs import Path, Wishes, links_of
from ._links import Links
from ._network import Network, link_options
from ._progress import ProgressOption, Watch
from .errors import InputWarning, ParameterError
from .results import Asked, Results, _load, find_in

_LEAST_K = 3
_MOST_JOBS = 1024


def find(
    data: Any,
    *,
    source: Any = None,
    target: Any = None,
    weight: Any = None,
    directed: bool | None = None,
    k: int | None = None,
    min_weight: float | None = None,
    max_weight: float | None = None,
    intensity: float | None = None,
    time_limit: float | None = None,
    format: str | None = None,
    columns: Sequence[Any] | None = None,
    save: str | os.PathLike[str] | None = None,
    progress: ProgressOption = "auto",
    memory_limit: int | None = None,
    jobs: int = 1,
    executor: Executor | None = None,
    parts: int = 32,
    work: str | os.PathLike[str] | None = None,
    control: Control | None = None,
) -> Results:
    """Finds the overlapping communities of a network by clique percolation, exactly.

    Cliques that share k - 1 nodes are adjacent, and a community at k is a connected group of
    cliques of k nodes or more (G. Palla, I. Derényi, I. Farkas, T. Vicsek, Nature 435, 2005). A
    node may be in several. Seconds on networks of millions of links; some 20 to 40 bytes for each
    node of each clique, of which dense networks (votes, proteins, friends) have millions.

    ``data`` is one of

    - the path of a file: two names on each line, or csv, GraphML, Pajek, ..., also compressed;
    - a graph of networkx, igraph, rustworkx or networkit;
    - a ``scipy.sparse`` matrix;
    - a data frame with a row for each link (pandas, polars, pyarrow, duckdb);
    - columns ``(sources, targets)`` or ``(sources, targets, weights)``, an array of two or three
      columns, or pairs of nodes.

    Self-links are dropped; links between the same nodes count once, and their weights add up.

    >>> import vorlane as vl
    >>> r = vl.find(([1, 2, 3, 3], [2, 3, 1, 4]))
    >>> [sorted(community) for community in r[3]]
    [[1, 2, 3]]

    Args:
        source, target: of a frame: the columns of the nodes; else known names, or the first two.
        weight: of a frame, the column of the weights; of a graph, the attribute ("weight"). It is
            used with thresholds and ``intensity`` only.
        directed: directed communities; None: as a graph is, else undirected.
        k: this k only, 3 or more. In undirected networks this is faster.
        min_weight, max_weight: links at or below, at or above it are left out.
        intensity: only k-cliques whose weights have a geometric mean above it count (I. Farkas,
            D. Ábel, G. Palla, T. Vicsek, New Journal of Physics 9, 2007). Best with one ``k``.
        time_limit: seconds that the search may spend on a node; what it leaves is covered by
            approximate cliques.
        format, columns: of a file, what the program's ``--format`` and ``--columns`` take.
        save: a directory to which the files of the program are written on the way.
        progress: "auto" shows a bar (tqdm) in terminals and notebooks; True, False, or a function
            that is called with a :class:`Progress` some times a second.
        memory_limit: bytes that the process may hold; over it the run ends.
        jobs: cores to work with; 0: those at hand (of the machine, the job of a scheduler, the control
            group). Results are the same. Each more takes about half the memory of the first.
        executor: does the run in ``parts`` elsewhere: an executor of concurrent.futures (with
            processes) or a client of Dask. All see the folder ``work``; without it a temporary one
            of this machine is made. Not with ``time_limit``, ``memory_limit`` and ``jobs``.
        control: to stop and watch the run from another thread.

    Raises:
        InputError: the input can't be read; the text tells the row, edge, or place in the file.
        ParameterError: options don't go together.
        OutputError: the directory can't be written.
        MemoryExceeded, Stopped: the run had to end.
        InputWarning: a file is read, but can't have been meant as it stands.
        KeyboardInterrupt: by Ctrl-C, within half a second; the next run is not disturbed.
    """
    if k is not None and k < _LEAST_K:
        raise ParameterError(f"k must be {_LEAST_K} or more, not {k!r}.")
    if not 0 <= jobs <= _MOST_JOBS:
        raise ParameterError(f"jobs must be 0 to {_MOST_JOBS}, not {jobs!r}.")
    if executor is not None and memory_limit is not None:
        raise ParameterError("memory_limit is for this process, the executor works in others.")
    if executor is not None and jobs != 1:
        raise ParameterError("jobs are cores of this process, the executor works in others.")
    if parts < 1:
        raise ParameterError(f"parts must be 1 or more, not {parts!r}.")
    asked = Asked(k, min_weight, max_weight, intensity, time_limit)
    for name, value in asked._asdict().items():
        if value != value:
            raise ParameterError(f"{name} is not a number.")
    weighted = any(value is not None for value in (min_weight, max_weight, intensity))
    links = links_of(data, Wishes(source, target, weight, directed, weighted))
    control = control or Control()

    def find_here() -> Results:
        network = _network_of(links, asked, bool(directed), weighted, format, columns, control)
        origin = "memory" if isinstance(links, Links) else links
        network.source = os.fspath(origin)
        return find_in(network, asked, control, save=save, source=origin, jobs=jobs)

    def find_elsewhere() -> Results:
        assert executor is not None
        return find_by_executor(
            links,
            asked,
            directed=bool(directed),
            weighted=weighted,
            format=format,
            columns=columns,
            save=save,
            shop=Workshop(executor, parts, None if work is None else os.fspath(work)),
            control=control,
        )

    with Watch(progress) as watch:
        results = run(find_here if executor is None else find_elsewhere, control, watch.call, memory_limit)
    for text in results._network.warnings():
        warnings.warn(text, InputWarning, stacklevel=2)
    return results


def _network_of(
    links: Links | Path,
    asked: Asked,
    directed: bool,
    weighted: bool,
    format: str | None,
    columns: Sequence[Any] | None,
    control: Control,
) -> Network:
    thresholds = asked.min_weight, asked.max_weight
    if not isinstance(links, Links):
        options = link_options(directed, weighted, *thresholds, format, columns)
        return Network.read(links, options, control)
    return Network.of_links(links, link_options(links.directed, weighted, *thresholds))


def load(directory: str | os.PathLike[str]) -> Results:
    """Opens a results directory of the program or of :meth:`Results.save`; each part is read when
    it is asked for. Nodes are names. Raises InputError if it is no such directory."""
    return _load(os.fspath(directory))
