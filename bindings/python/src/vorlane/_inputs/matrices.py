"""Adjacency matrices of scipy.sparse; the nodes are 0, 1, ..., n - 1."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any

import numpy as np

from .._links import Links, between, numbers
from ..errors import InputError

if TYPE_CHECKING:
    from . import Wishes


def is_matrix(data: Any) -> bool:
    return type(data).__module__.startswith("scipy.sparse")


def of_matrix(data: Any, wishes: Wishes) -> Links:
    """Zeros that are stored are no links. Without a direction, both halves must say the same, or
    one of them nothing."""
    if len(data.shape) != 2 or data.shape[0] != data.shape[1]:
        raise InputError(f"An adjacency matrix is square; this one has the shape {data.shape}.")
    entries = data.tocsr().tocoo()  # entries of one place are added up
    source, target, weight = entries.row, entries.col, entries.data
    kept = weight != 0
    source, target, weight = source[kept], target[kept], weight[kept]
    if wishes.weighted and not wishes.directed:
        weight = numbers(weight, len(weight), "entry")
        _check_halves(source, target, weight)
    if not wishes.directed:
        source, target = np.minimum(source, target), np.maximum(source, target)
        pairs = source.astype(np.int64) * data.shape[0] + target
        _, first = np.unique(pairs, return_index=True)
        source, target, weight = source[first], target[first], weight[first]
    return between(
        source,
        target,
        weight if wishes.weighted else None,
        directed=bool(wishes.directed),
        row="entry",
    )


def _check_halves(source: Any, target: Any, weight: Any) -> None:
    by_place = {(i, j): w for i, j, w in zip(source.tolist(), target.tolist(), weight.tolist())}
    for (i, j), w in by_place.items():
        other = by_place.get((j, i), w)
        if other != w:
            raise InputError(
                f"Entry ({i}, {j}) is {w} and entry ({j}, {i}) is {other}. Give A + A.T for the "
                "sums, or directed=True."
            )
