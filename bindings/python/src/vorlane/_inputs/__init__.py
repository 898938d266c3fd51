"""What networks can be given as."""

from __future__ import annotations

import os
from typing import Any, Callable, NamedTuple, Union

from .._links import Links
from ..errors import InputError
from . import columns, frames, graphs, matrices


class Wishes(NamedTuple):
    """How the caller wants an input to be read."""

    source: Any = None
    target: Any = None
    weight: Any = None
    #: None: as the input says, or undirected where it doesn't.
    directed: bool | None = None
    #: Whether weights are needed.
    weighted: bool = False


Path = Union[str, "os.PathLike[str]"]


def links_of(data: Any, wishes: Wishes) -> Links | Path:
    """The links of what a caller gave, or the path of a file that the native library reads."""
    if isinstance(data, (str, os.PathLike)):
        return data
    for knows, read in _KINDS:
        if knows(data):
            return read(data, wishes)
    raise InputError(
        f"A {type(data).__module__}.{type(data).__qualname__} can't be read as a network. "
        "Give a path, a graph (networkx, igraph, rustworkx, networkit), a scipy sparse matrix, a "
        "data frame, columns (sources, targets) or (sources, targets, weights), or pairs of nodes."
    )


_KINDS: list[tuple[Callable[[Any], bool], Callable[[Any, Wishes], Links]]] = [
    (graphs.is_networkx, graphs.of_networkx),
    (graphs.is_igraph, graphs.of_igraph),
    (graphs.is_rustworkx, graphs.of_rustworkx),
    (graphs.is_networkit, graphs.of_networkit),
    (matrices.is_matrix, matrices.of_matrix),
    (frames.is_frame, frames.of_frame),
    (columns.is_columns, columns.of_columns),
    (columns.is_pairs, columns.of_pairs),
]