"""How alike the communities of two levels are."""

from __future__ import annotations

import ctypes
from typing import NamedTuple

import numpy as np
import numpy.typing as npt

from . import _capi
from ._arrays import Nodes, Starts, native_rows, row_of_each, view
from ._library import Owner, library
from .level import Level

_FATES = ("kept", "grown", "shrunk", "changed", "merged", "split", "died", "born")


class Change(NamedTuple):
    """What became of a community: ``fate`` is kept (the same nodes), grown, shrunk, changed (as
    many nodes, others), merged, split, died or born; ``before`` and ``after`` are its numbers."""

    fate: str
    before: int | None
    after: int | None
    #: Nodes in both over nodes in either.
    jaccard: float


class Comparison(NamedTuple):
    """Figures are 1 for equal communities and about 0 for unrelated ones."""

    #: Omega index (L. M. Collins, C. W. Dent, 1988).
    omega: float
    #: Normalised mutual information (A. F. McDaid, D. Greene, N. Hurley, 2011).
    nmi: float
    #: Of all communities of the first level, then of new ones of the second.
    changes: list[Change]


def compare(first: Level, second: Level) -> Comparison:
    """Compares two levels over the nodes of both networks; nodes are the same if they are equal.

    Two communities are the same one if each is the likest to the other, with a Jaccard index of at
    least 0.3 (D. Greene, D. Doyle, P. Cunningham, ASONAM 2010).

    >>> import vorlane as vl
    >>> before = vl.find([(1, 2), (2, 3), (3, 1)])
    >>> after = vl.find([(1, 2), (2, 3), (3, 1), (3, 4), (2, 4)])
    >>> vl.compare(before[3], after[3]).changes
    [Change(fate='grown', before=0, after=0, jaccard=0.75)]
    """
    number = dict(first.results._number_of_node)
    others = [number.setdefault(node, len(number) + 1) for node in second.results.nodes]
    renumbered = np.array([0, *others], np.uint32)[second.members]
    cover_a = native_rows(first.starts, first.members)
    sorted_members = _sorted_rows(second.starts, renumbered)
    cover_b = native_rows(second.starts, sorted_members)
    owner = Owner.made_by(
        "vorlane_compare",
        len(number),
        ctypes.byref(cover_a),
        ctypes.byref(cover_b),
        give_back="vorlane_comparison_free",
    )
    look = _capi.ComparisonView()
    library.vorlane_comparison_look(owner.pointer, ctypes.byref(look))
    changes: npt.NDArray[np.void] = view(look.changes, (look.change_count,), _capi.Change, owner)
    return Comparison(
        look.omega,
        look.nmi,
        [Change(_FATES[f], _known(b), _known(a), j) for f, b, a, j in changes.tolist()],
    )


def _known(number: int) -> int | None:
    return None if number < 0 else number


def _sorted_rows(starts: Starts, values: Nodes) -> Nodes:
    return values[np.lexsort((values, row_of_each(starts)))]
