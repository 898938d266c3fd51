"""Columns (sources, targets[, weights]), an array of two or three columns, or pairs."""

from __future__ import annotations

from collections.abc import Iterable, Mapping
from typing import TYPE_CHECKING, Any

import numpy as np

from .._links import Links, between, column
from ..errors import InputError

if TYPE_CHECKING:
    from . import Wishes


def _is_column(value: Any) -> bool:
    return not isinstance(value, (str, bytes, tuple)) and hasattr(value, "__len__")


def is_columns(data: Any) -> bool:
    if isinstance(data, np.ndarray):
        return True
    return isinstance(data, tuple) and len(data) in (2, 3) and all(map(_is_column, data))


def of_columns(data: Any, wishes: Wishes) -> Links:
    if isinstance(data, np.ndarray):
        if data.ndim != 2 or data.shape[1] not in (2, 3):
            raise InputError(
                f"An array of links must have two or three columns, not the shape {data.shape}. "
                "A square matrix can be given as scipy.sparse.csr_array(matrix)."
            )
        data = tuple(data.T)
    source, target = column(data[0], "sources"), column(data[1], "targets")
    weight = None
    if wishes.weighted:
        if len(data) < 3:
            raise InputError("Weights are needed: give (sources, targets, weights).")
        weight = column(data[2], "weights")
    return between(source, target, weight, directed=bool(wishes.directed), row="link")


def is_pairs(data: Any) -> bool:
    return isinstance(data, Iterable) and not isinstance(data, (bytes, Mapping))


def of_pairs(data: Any, wishes: Wishes) -> Links:
    rows = list(data)
    count = 3 if wishes.weighted else 2
    for i, row in enumerate(rows):
        if isinstance(row, (str, bytes)) or not hasattr(row, "__len__") or len(row) not in (2, 3):
            raise InputError(
                f"Link {i} is {row!r}: it must be a pair of nodes, or two nodes and a weight."
            )
        if len(row) < count:
            raise InputError(f"Link {i} is {row!r}: it has no weight, which is needed here.")
    parts = [[row[place] for row in rows] for place in range(count)]
    return of_columns(tuple(parts), wishes)
