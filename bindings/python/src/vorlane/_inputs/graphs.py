"""Graphs of networkx, igraph, rustworkx and networkit."""

from __future__ import annotations

import math
from itertools import chain
from typing import TYPE_CHECKING, Any

import numpy as np
import numpy.typing as npt

from .._links import Links, between, numbers
from ..errors import InputError

if TYPE_CHECKING:
    from . import Wishes

_WEIGHT = "weight"  # the attribute that is looked for if none is told


def _has_base(data: Any, package: str, name: str) -> bool:
    return any(
        base.__module__.partition(".")[0] == package and base.__name__ == name
        for base in type(data).__mro__
    )


def is_networkx(data: Any) -> bool:
    return _has_base(data, "networkx", "Graph")


def is_igraph(data: Any) -> bool:
    return _has_base(data, "igraph", "Graph")


def is_rustworkx(data: Any) -> bool:
    return type(data).__module__.partition(".")[0] == "rustworkx" and hasattr(data, "edge_list")


def is_networkit(data: Any) -> bool:
    return _has_base(data, "networkit", "Graph")


def of_networkx(graph: Any, wishes: Wishes) -> Links:
    """Nodes are the graph's own. Of parallel edges each is a link, as thresholds look at each."""
    adjacency = graph._adj
    try:
        labels = list(adjacency)
        index = dict(zip(labels, range(1, len(labels) + 1)))
        degrees = np.fromiter(map(len, adjacency.values()), np.int64, len(labels))
        ends = chain.from_iterable(adjacency.values())
        # A list on the way takes a fifth less than np.fromiter().
        target = np.array(list(map(index.__getitem__, ends)), np.uint32)
        if len(target) != degrees.sum():
            raise RuntimeError("edges came or went")
        times, weight = _networkx_weights(graph, wishes) if wishes.weighted else (None, None)
    except (RuntimeError, KeyError, ValueError) as failure:
        if isinstance(failure, InputError):
            raise
        raise InputError(f"The graph changed while it was read ({failure}).") from failure
    source = np.repeat(np.arange(1, len(labels) + 1, dtype=np.uint32), degrees)
    if times is not None:
        source, target = np.repeat(source, times), np.repeat(target, times)
    directed = graph.is_directed() if wishes.directed is None else wishes.directed
    if not graph.is_directed():  # each link is met from both of its ends
        once = source <= target
        source, target = source[once], target[once]
        if weight is not None:
            weight = weight[once]
    return Links(labels, source, target, weight, directed)


def _networkx_weights(
    graph: Any, wishes: Wishes
) -> tuple[npt.NDArray[np.int64] | None, npt.NDArray[np.float64]]:
    """In the order of the adjacency, with the number of parallel edges of each pair."""
    key = wishes.weight or _WEIGHT
    pairs = ((u, v, data) for u, row in graph._adj.items() for v, data in row.items())
    if not graph.is_multigraph():
        return None, np.array([_weight_of(u, v, data, key) for u, v, data in pairs], np.float64)
    times: list[int] = []
    weights: list[float] = []
    for u, v, parallel in pairs:
        times.append(len(parallel))
        weights.extend(_weight_of(u, v, data, key) for data in parallel.values())
    return np.array(times, np.int64), np.array(weights, np.float64)


def _weight_of(u: Any, v: Any, data: Any, key: Any) -> float:
    if key not in data:
        raise InputError(
            f"The edge ({u!r}, {v!r}) has no attribute {key!r}; weight='NAME' tells another."
        )
    try:
        weight = float(data[key])
    except (TypeError, ValueError):
        raise InputError(
            f"The weight of the edge ({u!r}, {v!r}) is {data[key]!r}, no number."
        ) from None
    if not math.isfinite(weight):
        raise InputError(
            f"The weight of the edge ({u!r}, {v!r}) is {weight}; weights must be finite numbers."
        )
    return weight


def of_igraph(graph: Any, wishes: Wishes) -> Links:
    """Nodes are the vertices' names where they have distinct ones, else their indices."""
    edges = np.array(graph.get_edgelist(), np.int64).reshape(-1, 2)
    weight = None
    if wishes.weighted:
        key = wishes.weight or _WEIGHT
        if key not in graph.es.attributes():
            raise InputError(f"The edges have no attribute {key!r}; weight='NAME' tells another.")
        weight = np.array(graph.es[key], object)
    names = graph.vs["name"] if "name" in graph.vs.attributes() else None
    return _of_indices(edges, weight, names, graph.is_directed(), wishes)


def of_rustworkx(graph: Any, wishes: Wishes) -> Links:
    """Nodes are indices. Weights are the edges' payloads, or what ``weight``, a function, makes of
    them."""
    edges = np.array(graph.edge_list(), np.int64).reshape(-1, 2)
    weight = None
    if wishes.weighted:
        payloads = list(graph.edges())
        made = [wishes.weight(payload) for payload in payloads] if wishes.weight else payloads
        weight = np.array(made, object)
    return _of_indices(edges, weight, None, hasattr(graph, "successors"), wishes)


def of_networkit(graph: Any, wishes: Wishes) -> Links:
    """Nodes are numbers."""
    triples = np.array(list(graph.iterEdgesWeights()), np.float64).reshape(-1, 3)
    edges = triples[:, :2].astype(np.int64)
    weight = triples[:, 2] if wishes.weighted else None
    return _of_indices(edges, weight, None, graph.isDirected(), wishes)


def _of_indices(
    edges: npt.NDArray[np.int64],
    weight: npt.NDArray[Any] | None,
    names: list[Any] | None,
    directed: bool,
    wishes: Wishes,
) -> Links:
    if wishes.directed is not None:
        directed = wishes.directed
    if names is None or len(set(names)) < len(names):
        return between(edges[:, 0], edges[:, 1], weight, directed=directed, row="edge")
    source, target = (edges[:, end].astype(np.uint32) + 1 for end in (0, 1))
    weights = None if weight is None else numbers(weight, len(edges), "edge")
    return Links(names, source.astype(np.uint32), target.astype(np.uint32), weights, directed)
