"""Communities as objects of other packages, each imported when it is asked for."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, Iterable, Sequence

import numpy as np

from ._arrays import row_of_each
from .errors import ParameterError

if TYPE_CHECKING:
    from .level import Level


def matrix(level: Level) -> Any:
    from scipy.sparse import csr_array

    shape = (len(level), len(level.results._nodes_by_number) - 1)
    index = np.int32 if len(level.members) < 2**31 else np.int64
    ones = np.ones(len(level.members), np.int8)
    columns = (level.members - 1).astype(index, copy=False)
    return csr_array((ones, columns, level.starts.astype(index)), shape=shape)


def frame(levels: Sequence[Level], shape: str) -> Any:
    if shape == "long":
        return _long_frame(levels)
    if shape == "wide":
        return _wide_frame(levels)
    raise ParameterError(f"A frame is 'long' or 'wide', not {shape!r}.")


def _long_frame(levels: Sequence[Level]) -> Any:
    import pandas as pd

    columns: dict[str, list[Any]] = {"k": [], "community": [], "node": [], "exact": []}
    for level in levels:
        number = row_of_each(level.starts)
        columns["k"].append(np.full(len(number), level.k))
        columns["community"].append(number)
        columns["node"].extend(map(level.results._nodes_by_number.__getitem__, level.members.tolist()))
        columns["exact"].append(number < level.exact_count)
    nodes = columns.pop("node")
    arrays: dict[str, Any] = {
        name: np.concatenate(parts) if parts else np.empty(0, np.int64)
        for name, parts in columns.items()
    }
    arrays["node"] = pd.Series(nodes, dtype=None if nodes else object)
    return pd.DataFrame(arrays)[["k", "community", "node", "exact"]]


def _wide_frame(levels: Sequence[Level]) -> Any:
    import pandas as pd

    columns = {
        f"k={level.k}": pd.Series(
            ["|".join(map(str, held)) for held in level.membership.values()],
            index=pd.Index(list(level.membership), tupleize_cols=False),
        )
        for level in levels
    }
    nodes = levels[0].results.nodes if levels else []
    made = pd.DataFrame(columns, index=pd.Index(nodes, name="node", tupleize_cols=False))
    return made.fillna("")


def graph_of_communities(level: Level) -> Any:
    import networkx as nx

    graph = nx.Graph()
    graph.add_nodes_from((i, {"size": size}) for i, size in enumerate(level.sizes.tolist()))
    graph.add_edges_from((i, j, {"shared": n}) for i, j, n in level.overlaps.tolist())
    return graph


def to_networkx(level: Level) -> Any:
    import networkx as nx

    network = level.results._network
    graph = nx.DiGraph() if network.directed else nx.Graph()
    nodes = level.results._nodes_by_number
    membership = level.membership
    graph.add_nodes_from((node, {"communities": membership.get(node, ())}) for node in nodes[1:])
    starts, ends = network.link_rows()
    begins = row_of_each(starts).tolist()
    pairs: Iterable[Any] = ((nodes[u], nodes[v]) for u, v in zip(begins, ends.tolist()))
    weights = network.weights()
    if weights is not None:
        pairs = ((u, v, {"weight": w}) for (u, v), w in zip(pairs, weights.tolist()))
    graph.add_edges_from(pairs)
    return graph


def to_igraph(level: Level, graph: Any) -> Any:
    import igraph

    count = graph.vcount()
    place = None
    if "name" in graph.vs.attributes() and len(set(graph.vs["name"])) == count:
        place = {name: i for i, name in enumerate(graph.vs["name"])}
    clusters = []
    for community in level:
        indices: list[Any] = [place.get(node) if place else node for node in community]
        if not all(isinstance(i, int) and 0 <= i < count for i in indices):
            raise ParameterError("The graph is not the one that was searched: it lacks nodes.")
        clusters.append(sorted(indices))
    return igraph.VertexCover(graph, clusters)


def to_cdlib(level: Level, graph: Any) -> Any:
    from cdlib import NodeClustering

    communities = [list(community) for community in level]
    for community in communities:
        for node in community:
            if str(node).startswith("\\"):
                raise ParameterError(f"cdlib can't hold the node {node!r}: it would read a number.")
    return NodeClustering(
        communities,
        graph=graph,
        method_name="vorlane",
        method_parameters={"k": level.k},
        overlap=True,
    )


def annotate(level: Level, graph: Any, key: str) -> None:
    membership = level.membership
    for node, attributes in graph.nodes.items():
        attributes[key] = membership.get(node, ())
