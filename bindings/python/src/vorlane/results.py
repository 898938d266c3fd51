"""What was found in a network."""

from __future__ import annotations

import ctypes
import os
import shutil
import weakref
from collections.abc import Mapping
from functools import cached_property
from typing import Any, Iterator, NamedTuple

import numpy as np
import numpy.typing as npt

from . import _capi, _html, _outputs
from ._arrays import Nodes, Starts, native_rows, rows, view
from ._control import Control, run
from ._library import Owner, call, library
from ._links import Links
from ._network import Network, link_options, optional
from .errors import OutputError, ParameterError
from .level import Holders, Level

_METHODS = ("undirected", "directed", "intensity")
_FIGURES = ("tree", "graph", "distributions")


class LevelSummary(NamedTuple):
    """The figures of one k by which it is judged."""

    k: int
    communities: int
    #: Of the communities, those with an approximate clique.
    approximate: int
    #: Nodes of the largest community.
    largest: int
    second_largest: int
    #: Nodes in at least one community.
    covered: int
    #: Nodes in two or more.
    overlapping: int
    #: Pairs of communities that share nodes.
    overlaps: int


class TreeNode(NamedTuple):
    """A community, and the one at the next lower k that holds it (None: there is none)."""

    k: int
    community: int
    parent: int | None


class WhichK(NamedTuple):
    """A k to begin with (None: there are no communities), and why."""

    k: int | None
    reason: str


class Distributions(NamedTuple):
    """Value -> how often it occurs."""

    #: Communities of a node -> nodes.
    membership: dict[int, int]
    #: Nodes of a community -> communities.
    size: dict[int, int]
    #: Nodes that two communities share -> pairs of communities.
    overlap: dict[int, int]
    #: Communities that one overlaps with -> communities.
    degree: dict[int, int]


class Asked(NamedTuple):
    """The options of a run, as :func:`vorlane.find` takes them."""

    k: int | None = None
    min_weight: float | None = None
    max_weight: float | None = None
    intensity: float | None = None
    time_limit: float | None = None


class Results(Mapping[int, Level]):
    """The communities of a network at every k: a mapping from k, descending, to a :class:`Level`.

    >>> import vorlane as vl
    >>> r = vl.find([(1, 2), (2, 3), (3, 1), (1, 4), (2, 4), (3, 4), (4, 5), (5, 3)])
    >>> r.ks, [sorted(community) for community in r[4]]
    ([4, 3], [[1, 2, 3, 4]])
    >>> r.memberships(3)
    {4: (0,), 3: (0,)}

    It can be pickled and used by several threads.
    """

    def __init__(
        self, owner: Owner, network: Network | None, asked: Asked, directory: str | None = None
    ) -> None:
        self._owner = owner
        self._asked = asked
        self._directory = directory
        self._goes_with_directory = False
        # A level refers to its results: these must not refer back, or both would wait for the
        # collector of cycles with all their native memory.
        self._levels: weakref.WeakValueDictionary[int, Level] = weakref.WeakValueDictionary()
        self._holders: dict[int, Holders] = {}
        if network is not None:
            self.__dict__["_network"] = network
        look = _capi.ResultsView()
        library.vorlane_results_look(owner.pointer, ctypes.byref(look))
        #: "undirected", "directed" or "intensity".
        self.method = _METHODS[look.method]
        #: False for a directory of a run that goes on, was stopped or failed.
        self.finished = bool(look.finished)
        #: The k with communities, descending.
        self.ks: list[int] = view(look.ks, (look.k_count,), np.uint32, owner).tolist()

    @cached_property
    def _network(self) -> Network:
        made = Owner.made_by(
            "vorlane_results_network", self._owner.pointer, give_back="vorlane_network_free"
        )
        return Network(made)

    @cached_property
    def _nodes_by_number(self) -> list[Any]:
        return self._network.nodes()

    @property
    def nodes(self) -> list[Any]:
        """Your own nodes, or the names in the file, of all nodes with links to others."""
        return self._nodes_by_number[1:]

    @cached_property
    def _clique_rows(self) -> tuple[tuple[Starts, Nodes], int]:
        native, exact = _capi.Rows(), ctypes.c_size_t()
        call(
            "vorlane_results_cliques",
            self._owner.pointer,
            ctypes.byref(native),
            ctypes.byref(exact),
        )
        return rows(native, self._owner), exact.value

    @property
    def cliques(self) -> list[frozenset[Any]]:
        """The maximal cliques of three nodes or more; with one ``k`` asked for, of ``k`` or more.
        Approximate ones (``time_limit``), perhaps not maximal, come last."""
        (starts, values), _ = self._clique_rows
        place = self._nodes_by_number.__getitem__
        members = list(map(place, values.tolist()))
        ends = starts.tolist()
        return [frozenset(members[a:b]) for a, b in zip(ends, ends[1:])]

    def __getitem__(self, k: int) -> Level:
        level = self._levels.get(k)
        if level is None:
            self._refuse_unknown(k)
            level = self._levels[k] = Level(self, k)
        return level

    def __iter__(self) -> Iterator[int]:
        return iter(self.ks)

    def __len__(self) -> int:
        return len(self.ks)

    def __repr__(self) -> str:
        ks = f"k = {self.ks[0]} to {self.ks[-1]}" if self.ks else "no communities"
        state = "" if self.finished else ", unfinished"
        return f"<{self.method} communities of {len(self._network)} nodes, {ks}{state}>"

    def _repr_html_(self) -> str:
        return _html.table(self)

    def memberships(self, node: Any) -> dict[int, tuple[int, ...]]:
        """The communities of a node: k -> their numbers, for each k where it is in some."""
        try:
            number = self._number_of_node[node]
        except KeyError:
            raise ParameterError(
                f"{node!r} is no node of the network, or it has no links to others."
            ) from None
        found = {}
        for k in self.ks:
            starts, communities = self[k].holders()
            held = communities[starts[number] : starts[number + 1]]
            if len(held):
                found[k] = tuple(held.tolist())
        return found

    @cached_property
    def _number_of_node(self) -> dict[Any, int]:
        return {node: v for v, node in enumerate(self._nodes_by_number) if v > 0}

    def summary(self) -> list[LevelSummary]:
        """The figures of each k, descending."""
        array = self._handed_out("vorlane_results_summary", _capi.Summary)
        return [LevelSummary(*map(int, level)) for level in array.tolist()]

    def which_k(self) -> WhichK:
        """A k to begin with: the most that can be covered before a giant community swallows the
        others (G. Palla, I. Derényi, I. Farkas, T. Vicsek, Nature 435, 2005)."""
        k, reason = ctypes.c_uint32(), ctypes.c_char_p()
        call("vorlane_results_which_k", self._owner.pointer, ctypes.byref(k), ctypes.byref(reason))
        return WhichK(k.value or None, (reason.value or b"").decode())

    def tree(self) -> list[TreeNode]:
        """All communities of all k, k ascending, each with its parent at the next lower k.

        >>> import vorlane as vl
        >>> r = vl.find([(1, 2), (2, 3), (3, 1), (1, 4), (2, 4), (3, 4)])
        >>> r.tree()
        [TreeNode(k=3, community=0, parent=None), TreeNode(k=4, community=0, parent=0)]
        """
        array = self._handed_out("vorlane_results_tree", _capi.TreeNode)
        return [TreeNode(k, c, None if p < 0 else p) for k, c, p in array.tolist()]

    def distributions(self, k: int) -> Distributions:
        """Of memberships, sizes, overlaps and degrees of the communities at a k."""
        self._refuse_unknown(k)

        def pairs(which: int) -> dict[int, int]:
            address, count = ctypes.c_void_p(), ctypes.c_size_t()
            call(
                "vorlane_results_distribution",
                self._owner.pointer,
                k,
                which,
                ctypes.byref(address),
                ctypes.byref(count),
            )
            return dict(view(address.value, (count.value, 2), np.uint32, self._owner).tolist())

        return Distributions(*map(pairs, range(4)))

    def _refuse_unknown(self, k: int) -> None:
        if k not in self.ks:
            there = f"there are {self.ks}" if self.ks else "there are none"
            raise UnknownK(f"There are no communities at k = {k!r}; {there}.")

    def _handed_out(self, name: str, struct: type[ctypes.Structure]) -> npt.NDArray[Any]:
        address, count = ctypes.c_void_p(), ctypes.c_size_t()
        call(name, self._owner.pointer, ctypes.byref(address), ctypes.byref(count))
        return view(address.value, (count.value,), struct, self._owner)

    def to_frame(self, shape: str = "long") -> Any:
        """A ``pandas.DataFrame`` over all k: "long" has the columns k, community, node, exact;
        "wide" a row for each node and a column for each k, with communities as "0|3"."""
        return _outputs.frame(list(self.values()), shape)

    def save(self, directory: str | os.PathLike[str]) -> None:
        """Writes the files that the program would write; the directory must be missing or empty.
        Levels are found once more for it. Ctrl-C leaves a directory that tells it is unfinished."""
        if self._directory is not None:
            self._copy_to(os.fspath(directory))
            return
        control = Control()
        run(
            lambda: call(
                "vorlane_results_write",
                self._owner.pointer,
                os.fsencode(directory),
                os.fsencode(self._network.source),
                control.pointer,
            ),
            control,
        )

    def _keep(self, folder: str) -> None:
        """Its files stand in a folder that goes when it goes."""
        self._goes_with_directory = True
        weakref.finalize(self, shutil.rmtree, folder, True)

    def _copy_to(self, directory: str) -> None:
        assert self._directory is not None
        if os.path.isdir(directory) and os.listdir(directory):
            raise OutputError(f"The directory {directory!r} is not empty.")
        shutil.copytree(self._directory, directory, dirs_exist_ok=True)

    def export(
        self,
        path: str | os.PathLike[str],
        format: str | None = None,
        k: int | None = None,
        overwrite: bool = False,
    ) -> None:
        """Writes a file for another program: gexf (Gephi), graphml, cx2 (Cytoscape), csv, tsv,
        json, and the other formats of ``vorlane export``; told by the ending unless named.
        A format of several files puts their endings behind ``path``."""
        if format is None:
            format = os.path.splitext(os.fspath(path))[1].lstrip(".")
        call(
            "vorlane_results_export",
            self._owner.pointer,
            format.encode(),
            self._known_or_0(k),
            os.fsencode(path),
            overwrite,
        )

    def report(
        self,
        path: str | os.PathLike[str],
        title: str | None = None,
        k: int | None = None,
        overwrite: bool = False,
    ) -> None:
        """Writes one html page that needs nothing else: communities at every k as pictures and
        tables, to open, send and print. ``k`` is shown first, else the recommended one."""
        control = Control()
        name = None if title is None else title.encode()
        arguments = os.fsencode(path), name, self._known_or_0(k), overwrite, control.pointer
        run(lambda: call("vorlane_results_report", self._owner.pointer, *arguments), control)

    def figure(self, which: str = "tree", k: int | None = None) -> str:
        """A picture for print as an SVG document: the "tree" of communities over all k, the "graph"
        at a k, or the "distributions" of a k."""
        if which not in _FIGURES:
            raise ParameterError(f"A figure is one of {_FIGURES}, not {which!r}.")
        control, svg = Control(), ctypes.c_char_p()
        arguments = _FIGURES.index(which), self._known_or_0(k), control.pointer, ctypes.byref(svg)
        run(lambda: call("vorlane_results_figure", self._owner.pointer, *arguments), control)
        return (svg.value or b"").decode()

    def _known_or_0(self, k: int | None) -> int:
        if k is not None:
            self._refuse_unknown(k)
        return k or 0

    def __reduce__(self) -> tuple[Any, ...]:
        if self._directory is not None and not self._goes_with_directory:
            return _load, (os.path.abspath(self._directory),)
        (starts, values), exact = self._clique_rows
        return _found_again, (
            self._network.given_links(),
            self._asked,
            np.array(starts),
            np.array(values),
            exact,
        )


class UnknownK(ParameterError, KeyError):
    """A k at which there are no communities."""

    __str__ = ParameterError.__str__


def _found_again(
    links: Links, asked: Asked, starts: Starts, values: Nodes, exact_count: int
) -> Results:
    """The results of cliques that were found before."""
    thresholds = asked.min_weight, asked.max_weight
    options = link_options(links.directed, links.weight is not None, *thresholds)
    network = Network.of_links(links, options)
    return find_in(network, asked, Control(), cliques=(starts, values), exact_count=exact_count)


def _load(directory: str) -> Results:
    owner = Owner.made_by(
        "vorlane_results_open", os.fsencode(directory), give_back="vorlane_results_free"
    )
    return Results(owner, None, Asked(), directory)


def native_options(asked: Asked) -> _capi.Options:
    return _capi.Options(optional(asked.intensity), optional(asked.time_limit), asked.k or 0)


def find_in(
    network: Network,
    asked: Asked,
    control: Control,
    *,
    cliques: tuple[Starts, Nodes] | None = None,
    exact_count: int = 0,
    save: str | os.PathLike[str] | None = None,
    source: str | os.PathLike[str] = "memory",
    jobs: int = 1,
) -> Results:
    """Finds in this thread, and as many as ``jobs`` asks for."""
    options = native_options(asked)
    options.jobs = jobs if jobs > 0 else -1
    if cliques is not None:
        known = native_rows(*cliques)
        options.cliques = ctypes.pointer(known)
        options.exact_clique_count = exact_count
    if save is not None:
        options.directory = os.fsencode(save)
        options.source = os.fsencode(source)
    owner = Owner.made_by(
        "vorlane_find",
        network.owner.pointer,
        ctypes.byref(options),
        control.pointer,
        give_back="vorlane_results_free",
    )
    return Results(owner, network, asked)
