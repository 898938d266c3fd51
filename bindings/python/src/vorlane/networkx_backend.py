"""networkx's own functions for cliques, done by this package without a change of the callers' code.

networkx loads this module by the entry point ``networkx.backends`` when it is told to try it, for
every call or for one:

    NETWORKX_BACKEND_PRIORITY=vorlane python script.py
    nx.community.k_clique_communities(G, 4, backend="vorlane")

Functions take and return what networkx's of the same names do (networkx 3.2 and later);
``number_of_cliques``, which networkx hands to no backend, gets its cliques from ``find_cliques``.
"""

from __future__ import annotations

from collections import defaultdict
from functools import cached_property
from numbers import Integral
from typing import Any, Iterable, Iterator, Sequence

import networkx as nx
import numpy as np
import numpy.typing as npt

from ._arrays import Nodes
from ._control import Control, run
from ._inputs import Wishes
from ._inputs.graphs import of_networkx
from ._links import Links
from ._network import Network, link_options
from .level import Level
from .results import Asked, Results, find_in

__all__ = [
    "Graph",
    "can_run",
    "convert_from_nx",
    "convert_to_nx",
    "find_cliques",
    "k_clique_communities",
    "node_clique_number",
    "should_run",
]

_LEAST_K = 3
_HUBS = 2  # nodes that are linked to all others
_BLOCK = 10_000  # cliques whose lists are made at a time

#: Cliques that there may be in a graph that is searched in the calling thread.
_MOST_CLIQUES_AT_ONCE = 10_000_000
#: Links times a node's links, about the steps of networkx's search: below so many it is done before
#: a graph is converted.
_WORTHWHILE_STEPS = 1800
#: Above so many nodes their links need not be counted.
_WORTHWHILE_NODES = 1000
#: A node's own neighbourhood is searched by networkx faster than this share of the graph is here.
_WORTHWHILE_SHARE = 0.02

_PARAMETERS = {
    "find_cliques": ("G", "nodes"),
    "k_clique_communities": ("G", "k", "cliques"),
    "node_clique_number": ("G", "nodes", "cliques", "separate_nodes"),
}


class Graph:
    """An undirected graph of networkx in the library's hands.

    networkx keeps it with the graph that it was made from, and drops it when that changes.
    """

    __networkx_backend__ = "vorlane"

    def __init__(self, links: Links, multigraph: bool = False) -> None:
        self._links = links
        self._multigraph = multigraph

    def __reduce__(self) -> tuple[Any, ...]:
        return Graph, (self._links, self._multigraph)

    def is_directed(self) -> bool:
        return self._links.directed

    def is_multigraph(self) -> bool:
        return self._multigraph

    @cached_property
    def nodes(self) -> list[Any]:
        return list(self._links.labels)

    def edges(self) -> Iterator[tuple[Any, Any]]:
        place = self.nodes.__getitem__
        ends = (map(place, (end - 1).tolist()) for end in (self._links.source, self._links.target))
        return zip(*ends)

    @cached_property
    def places(self) -> dict[Any, int]:
        """Node -> its place among the nodes."""
        return {node: place for place, node in enumerate(self.nodes)}

    def communities(self, k: int) -> Level | tuple[()]:
        if k > len(self.nodes):
            return ()
        found = self._found(self._network, k)
        return Level(found, k) if k in found.ks else ()

    def cliques(self) -> tuple[npt.NDArray[np.int64], Nodes]:
        """All maximal cliques, even of one or two nodes: where they start in an array of places of
        nodes, and this."""
        found = self._found(self._network_with_hubs, _LEAST_K)
        (starts, members), _ = found._clique_rows
        place = np.array(found._nodes_by_number[1:], np.uint32)[members - 1]
        each = np.arange(len(starts), dtype=np.int64)
        return starts.astype(np.int64) - _HUBS * each, place[place < len(self.nodes)]

    def _found(self, network: Network, k: int) -> Results:
        """On a thread of its own, so that Ctrl-C is heard, unless it would take longer to start."""
        control = Control()
        if self._is_searched_at_once:
            return find_in(network, Asked(k), control)
        return run(lambda: find_in(network, Asked(k), control), control)

    @cached_property
    def _is_searched_at_once(self) -> bool:
        """A graph of degeneracy d has no more than n * 3 ** (d / 3) maximal cliques (D. Eppstein,
        M. Löffler, D. Strash, 2010); d nodes or more then have d neighbours or more."""
        count = len(self.nodes)
        ends = np.concatenate((self._links.source, self._links.target))
        degrees = np.sort(np.bincount(ends, minlength=1))[::-1]
        most = np.count_nonzero(degrees > np.arange(len(degrees)))
        return bool(np.log(count + 1) + most / 3 * np.log(3) < np.log(_MOST_CLIQUES_AT_ONCE))

    @cached_property
    def _network(self) -> Network:
        network = _network_of(len(self.nodes), self._links.source, self._links.target)
        network.links = self._links
        return network

    @cached_property
    def _network_with_hubs(self) -> Network:
        """With two more nodes, which are linked to all and to each other. They are in every maximal
        clique, so that none has fewer than three nodes, which the library wouldn't look for; and all
        of them are one community, so that there are no overlaps to be counted."""
        count = len(self.nodes)
        hubs = np.arange(count + 1, count + 1 + _HUBS, dtype=np.uint32)
        every = np.arange(1, count + 1, dtype=np.uint32)
        source = [self._links.source, *[every] * _HUBS, hubs[:1]]
        target = [self._links.target, *(np.full(count, hub) for hub in hubs), hubs[1:]]
        return _network_of(count + _HUBS, np.concatenate(source), np.concatenate(target))


def _network_of(count: int, source: Nodes, target: Nodes) -> Network:
    """Whose nodes are called by their places: the names' order is nothing that networkx shows."""
    links = Links(np.arange(count, dtype=np.int64), source, target)
    return Network.of_links(links, link_options(False, False, None, None))


def convert_from_nx(graph: Any, **_: Any) -> Graph:
    """Attributes, of which networkx tells which ones it needs, are left behind: none are."""
    if hasattr(graph, "_graph"):
        # A view isn't told when the graph behind it changes, so networkx must not keep this one.
        graph.__networkx_cache__ = None
    return Graph(of_networkx(graph, Wishes()), graph.is_multigraph())


def convert_to_nx(result: Any, *, name: str | None = None) -> Any:
    if not isinstance(result, Graph):
        return result
    kinds = nx.Graph, nx.DiGraph, nx.MultiGraph, nx.MultiDiGraph
    graph = kinds[result.is_directed() + 2 * result.is_multigraph()]()
    graph.add_nodes_from(result.nodes)
    graph.add_edges_from(result.edges())
    return graph


def can_run(name: str, args: Sequence[Any], kwargs: dict[str, Any]) -> bool | str:
    """True, or why not."""
    given = _by_parameter(name, args, kwargs)
    if given["G"].is_directed():
        return "the graph is directed"
    if given.get("cliques") is not None:
        return "cliques are given, which are all that networkx needs"
    if name == "find_cliques" and given.get("nodes") is not None:
        return "networkx looks for cliques around given nodes among their neighbours only"
    k = given.get("k")
    if name == "k_clique_communities" and not (isinstance(k, Integral) and int(k) >= _LEAST_K):
        return f"k is {k!r}, not an integer of {_LEAST_K} or more"
    return True


def should_run(name: str, args: Sequence[Any], kwargs: dict[str, Any]) -> bool | str:
    """True, or why networkx is likely to be faster."""
    given = _by_parameter(name, args, kwargs)
    graph, nodes = given["G"], given.get("nodes")
    if isinstance(graph, Graph):
        return True
    if nodes is not None:
        count = 1 if nodes in graph or not hasattr(nodes, "__len__") else len(nodes)
        if count < _WORTHWHILE_SHARE * len(graph):
            return "few nodes are asked for"
    if len(graph) > _WORTHWHILE_NODES:
        return True
    ends = sum(map(len, graph._adj.values()))
    return ends * ends >= 2 * len(graph) * _WORTHWHILE_STEPS or "the graph is small"


def _by_parameter(name: str, args: Sequence[Any], kwargs: dict[str, Any]) -> dict[str, Any]:
    return {**dict(zip(_PARAMETERS[name], args)), **kwargs}


def _refuse_what_cannot_run(name: str, *args: Any) -> None:
    """networkx before 3.3 tries without asking can_run(), and goes on by itself then."""
    answer = can_run(name, args, {})
    if answer is not True:
        raise NotImplementedError(f"{name}: {answer}.")


def k_clique_communities(G: Graph, k: int, cliques: Any = None) -> Iterator[frozenset[Any]]:
    _refuse_what_cannot_run("k_clique_communities", G, k, cliques)

    def found() -> Iterator[frozenset[Any]]:
        yield from G.communities(int(k))

    return found()


def find_cliques(G: Graph, nodes: Any = None) -> Iterator[list[Any]]:
    _refuse_what_cannot_run("find_cliques", G, nodes)
    return _lists_of_cliques(G)


def _lists_of_cliques(graph: Graph) -> Iterator[list[Any]]:
    starts, members = graph.cliques()
    place = graph.nodes.__getitem__
    for first in range(0, len(starts) - 1, _BLOCK):
        ends = starts[first : first + _BLOCK + 1].tolist()
        block = list(map(place, members[ends[0] : ends[-1]].tolist()))
        for a, b in zip(ends, ends[1:]):
            yield block[a - ends[0] : b - ends[0]]


def node_clique_number(
    G: Graph, nodes: Any = None, cliques: Any = None, separate_nodes: bool = False
) -> int | dict[Any, int]:
    _refuse_what_cannot_run("node_clique_number", G, nodes, cliques)
    starts, members = G.cliques()
    sizes = np.diff(starts)
    largest = np.zeros(len(G.nodes), np.int64)
    np.maximum.at(largest, members, np.repeat(sizes, sizes))
    if nodes is None:
        return defaultdict(int, zip(G.nodes, largest.tolist()))
    if _is_node(G, nodes):
        return int(largest[G.places[nodes]])
    return _numbers_of(G, nodes, largest)


def _is_node(graph: Graph, node: Any) -> bool:
    try:
        return node in graph.places
    except TypeError:  # a list
        return False


def _numbers_of(graph: Graph, nodes: Iterable[Any], numbers: npt.NDArray[Any]) -> dict[Any, int]:
    found = {}
    for node in nodes:
        if not _is_node(graph, node):
            raise nx.NodeNotFound(f"Source {node} is not in G")
        found[node] = int(numbers[graph.places[node]])
    return found
