"""The communities at one k."""

from __future__ import annotations

import ctypes
from collections.abc import Sequence
from typing import TYPE_CHECKING, Any, Iterator, Tuple, overload

import numpy as np
import numpy.typing as npt

from . import _arrow, _capi, _outputs
from ._arrays import Nodes, Starts, row_of_each, rows, sizes_of, view
from ._library import call

if TYPE_CHECKING:
    from .results import Results


#: Starts by node, and communities.
Holders = Tuple[npt.NDArray[np.int64], npt.NDArray[np.uint32]]


class Level(Sequence[frozenset[Any]]):
    """The communities at one k: a sequence of frozensets of your own nodes.

    Position i is community i of the program on the same links; exact communities come first.

    >>> import vorlane as vl
    >>> r = vl.find([("ann", "bo"), ("bo", "cy"), ("cy", "ann"), ("cy", "di")])
    >>> len(r[3]), sorted(r[3][0])
    (1, ['ann', 'bo', 'cy'])

    The same without an object for each node: ``starts`` (uint64, ``len(level) + 1`` places) and
    ``members`` (uint32), where ``members[starts[i]:starts[i + 1]]`` are the nodes of community i,
    ascending; node v, counted from 1, is ``results.nodes[v - 1]``. These two are views of the
    library's own memory, read-only, which they keep alive.
    """

    def __init__(self, results: Results, k: int) -> None:
        native = _capi.Level()
        call("vorlane_results_level", results._owner.pointer, k, ctypes.byref(native))
        owner = results._owner
        self.results = results
        self.k = k
        self.starts: Starts
        self.members: Nodes
        self.starts, self.members = rows(native.members, owner)
        #: How many communities are exact; those behind hold an approximate clique.
        self.exact_count = int(native.exact_count)
        #: Pairs of communities that share nodes: first, second, number of shared nodes (uint32,
        #: one row a pair).
        self.overlaps: npt.NDArray[np.uint32] = view(
            native.overlaps, (native.overlap_count, 3), np.uint32, owner
        )
        self._cliques = rows(native.cliques, owner)
        self._k_cliques = rows(native.k_cliques, owner)

    def __len__(self) -> int:
        return len(self.starts) - 1

    @overload
    def __getitem__(self, index: int) -> frozenset[Any]: ...

    @overload
    def __getitem__(self, index: slice) -> list[frozenset[Any]]: ...

    def __getitem__(self, index: int | slice) -> frozenset[Any] | list[frozenset[Any]]:
        if isinstance(index, slice):
            return [self[i] for i in range(*index.indices(len(self)))]
        i = range(len(self))[index]  # as a list counts, and refuses
        place = self.results._nodes_by_number.__getitem__
        start, end = int(self.starts[i]), int(self.starts[i + 1])
        return frozenset(map(place, self.members[start:end].tolist()))

    def __iter__(self) -> Iterator[frozenset[Any]]:
        place = self.results._nodes_by_number.__getitem__
        members = list(map(place, self.members.tolist()))
        ends = self.starts.tolist()
        return (frozenset(members[a:b]) for a, b in zip(ends, ends[1:]))

    def __eq__(self, other: object) -> bool:
        """Whether the communities hold equal nodes, in the same order."""
        if not isinstance(other, Level):
            return NotImplemented
        return list(self) == list(other)

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        largest = int(self.sizes.max()) if len(self) else 0
        return f"<{len(self)} communities at k = {self.k}, the largest of {largest} nodes>"

    @property
    def sizes(self) -> npt.NDArray[np.int64]:
        """The number of nodes of each community."""
        return sizes_of(self.starts)

    @property
    def exact(self) -> npt.NDArray[np.bool_]:
        """For each community, whether no approximate clique is in it (``time_limit``)."""
        return np.arange(len(self)) < self.exact_count

    @property
    def cliques(self) -> list[list[int]]:
        """For each community, its cliques: positions in ``results.cliques``. With the intensity
        method there are none, but k-cliques."""
        return _lists(*self._cliques)

    @property
    def k_cliques(self) -> list[frozenset[Any]]:
        """With the intensity method, the k-cliques that are strong enough; else none."""
        place = self.results._nodes_by_number.__getitem__
        return [frozenset(map(place, row)) for row in _lists(*self._k_cliques)]

    def holders(self) -> Holders:
        """For nodes from 0 (no node) on, ``(starts, communities)``: node v is in the communities
        ``communities[starts[v]:starts[v + 1]]``, ascending."""
        kept = self.results._holders
        if self.k not in kept:
            number = row_of_each(self.starts)
            order = np.argsort(self.members, kind="stable")
            counts = np.bincount(self.members, minlength=len(self.results._nodes_by_number))
            kept[self.k] = np.concatenate([[0], np.cumsum(counts)]), number[order]
        return kept[self.k]

    @property
    def membership(self) -> dict[Any, tuple[int, ...]]:
        """Node -> its communities, ascending; nodes in none are left out.

        >>> import vorlane as vl
        >>> r = vl.find([(1, 2), (2, 3), (3, 1), (3, 4), (4, 5), (5, 3)])
        >>> r[3].membership[3]
        (0, 1)
        """
        starts, communities = self.holders()
        ends, values = starts.tolist(), communities.tolist()
        nodes = self.results._nodes_by_number
        return {
            nodes[v]: tuple(values[ends[v] : ends[v + 1]])
            for v in range(1, len(nodes))
            if ends[v] < ends[v + 1]
        }

    def matrix(self) -> Any:
        """Communities x nodes as a ``scipy.sparse.csr_array`` of ones (int8); column j is
        ``results.nodes[j]``."""
        return _outputs.matrix(self)

    def to_frame(self, shape: str = "long") -> Any:
        """A ``pandas.DataFrame``: "long" has the columns k, community, node, exact, with a row for
        each node of each community; "wide" a row for each node, with its communities as "0|3"."""
        return _outputs.frame([self], shape)

    @property
    def graph(self) -> Any:
        """The communities as a ``networkx.Graph``: nodes are their numbers, with a ``size``, and
        edges join those that share nodes, ``shared`` of them."""
        return _outputs.graph_of_communities(self)

    def to_networkx(self) -> Any:
        """The network itself as a ``networkx`` graph, directed if it is, with the communities of
        each node in the attribute ``communities``."""
        return _outputs.to_networkx(self)

    def to_igraph(self, graph: Any) -> Any:
        """An ``igraph.VertexCover`` of the graph that was searched."""
        return _outputs.to_igraph(self, graph)

    def to_cdlib(self, graph: Any) -> Any:
        """A ``cdlib.NodeClustering``, overlapping. cdlib sorts communities by size, so its
        numbers are others; nodes whose text begins with a backslash it would take for numbers, and
        these are refused."""
        return _outputs.to_cdlib(self, graph)

    def annotate(self, graph: Any, key: str | None = None) -> None:
        """Gives each node of a ``networkx`` graph its communities (a tuple) as an attribute,
        named ``communities_k4`` for k = 4 unless ``key`` is told."""
        _outputs.annotate(self, graph, key or f"communities_k{self.k}")

    @property
    def arrow(self) -> _arrow.Table:
        """A table for pyarrow, polars, duckdb, pandas and all that know Arrow's PyCapsules: the
        columns community (uint32), exact (bool) and members (large list of uint32, node numbers
        counted from 1). Members aren't copied."""
        return _arrow.Table(self.results._owner, self.k)

    def __reduce__(self) -> tuple[Any, ...]:
        return _level_of, (self.results, self.k)


def _level_of(results: Results, k: int) -> Level:
    return results[k]


def _lists(starts: Starts, values: Nodes) -> list[list[int]]:
    ends, items = starts.tolist(), values.tolist()
    return [items[a:b] for a, b in zip(ends, ends[1:])]
