"""Links between numbered nodes, and the nodes that the numbers stand for."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Sequence

import numpy as np
import numpy.typing as npt

from ._arrays import Nodes
from .errors import InputError

Weights = npt.NDArray[np.float64]


@dataclass
class Links:
    """Link i leads from node ``source[i]`` to node ``target[i]``; nodes are numbered from 1.

    ``labels`` are the caller's nodes: node v is ``labels[v - 1]``. As an array of int64 they are
    numbers, and otherwise any objects.
    """

    labels: Sequence[Any] | npt.NDArray[np.int64]
    source: Nodes
    target: Nodes
    weight: Weights | None = None
    directed: bool = False


def column(values: Any, what: str) -> npt.NDArray[Any]:
    """A column as an array of one dimension."""
    if isinstance(values, list):
        array = _of_list(values)
    else:
        array = np.asarray(values)
    if array.ndim != 1:
        raise InputError(f"The {what} must be one column, not an array of shape {array.shape}.")
    return array


def _of_list(values: list[Any]) -> npt.NDArray[Any]:
    """As numbers or as they are: of mixed types numpy would make texts, of tuples a table."""
    try:
        array = np.asarray(values)
    except ValueError:
        return _as_objects(values)
    return array if array.ndim == 1 and array.dtype.kind in "iuf" else _as_objects(values)


def _as_objects(values: Any) -> npt.NDArray[Any]:
    items = list(values)
    array = np.empty(len(items), object)
    array[:] = items
    return array


def between(
    source: npt.NDArray[Any],
    target: npt.NDArray[Any],
    weight: npt.NDArray[Any] | None = None,
    *,
    directed: bool = False,
    row: str = "row",
) -> Links:
    """Links between labels of any kind; ``row`` is what the caller calls link i, counted from 0."""
    if len(source) != len(target):
        raise InputError(f"The columns differ in length: {len(source)} and {len(target)}.")
    weights = None if weight is None else numbers(weight, len(source), row)
    if source.dtype.kind in "iu" and target.dtype.kind in "iu":
        found = _number_integers(source, target)
        if found is not None:
            return Links(*found, weights, directed)
    return Links(*_number_objects(source, target, row), weights, directed)


def numbers(values: npt.NDArray[Any], count: int, row: str) -> Weights:
    """Weights as numbers; refuses what isn't one, and infinite ones."""
    if len(values) != count:
        raise InputError(f"There are {len(values)} weights for {count} links.")
    try:
        weights = np.ascontiguousarray(values, np.float64)
    except (TypeError, ValueError):
        for i, value in enumerate(values):
            try:
                float(value)
            except (TypeError, ValueError):
                raise InputError(f"The weight of {row} {i} is {value!r}, no number.") from None
        raise
    bad = np.flatnonzero(~np.isfinite(weights))
    if len(bad):
        raise InputError(
            f"The weight of {row} {bad[0]} is {weights[bad[0]]}; weights must be finite numbers."
        )
    return weights


def _number_integers(
    source: npt.NDArray[Any], target: npt.NDArray[Any]
) -> tuple[npt.NDArray[np.int64], Nodes, Nodes] | None:
    """In ascending order; nothing if a number doesn't fit into int64."""
    if len(source) == 0:
        return np.empty(0, np.int64), np.empty(0, np.uint32), np.empty(0, np.uint32)
    least = min(int(source.min()), int(target.min()))
    greatest = max(int(source.max()), int(target.max()))
    if least < np.iinfo(np.int64).min or greatest > np.iinfo(np.int64).max:
        return None
    source = source.astype(np.int64, copy=False)
    target = target.astype(np.int64, copy=False)
    if greatest - least > 4 * len(source) + 1000:  # few of the numbers between are in use
        labels, places = np.unique(np.concatenate([source, target]), return_inverse=True)
        both = (places + 1).astype(np.uint32)
        return labels, both[: len(source)], both[len(source) :]
    used = np.zeros(greatest - least + 1, np.bool_)
    used[source - least] = True
    used[target - least] = True
    labels = np.flatnonzero(used) + least
    number = np.cumsum(used, dtype=np.uint32)
    return labels, number[source - least], number[target - least]


def _number_objects(
    source: npt.NDArray[Any], target: npt.NDArray[Any], row: str
) -> tuple[list[Any], Nodes, Nodes]:
    """In order of appearance, the ones in ``source`` first."""
    number: dict[Any, int] = {}

    def numbered(values: npt.NDArray[Any]) -> Nodes:
        items = values.tolist()
        try:
            codes = [number.setdefault(item, len(number) + 1) for item in items]
        except TypeError:
            i = next(i for i, item in enumerate(items) if not _is_hashable(item))
            raise InputError(
                f"The node in {row} {i} is {items[i]!r}, which can't be a node: it is not hashable."
            ) from None
        return np.array(codes, np.uint32)

    codes = numbered(source), numbered(target)
    labels = list(number)
    for missing in [i for i, label in enumerate(labels, 1) if _is_missing(label)]:
        for which in codes:
            rows = np.flatnonzero(which == missing)
            if len(rows):
                raise InputError(f"The node in {row} {rows[0]} is missing ({labels[missing - 1]!r}).")
    return labels, *codes


def _is_hashable(item: Any) -> bool:
    try:
        hash(item)
    except TypeError:
        return False
    return True


def _is_missing(label: Any) -> bool:
    """None, NaN, or what stands for a missing value in a frame."""
    if label is None:
        return True
    try:
        return bool(label != label)
    except (TypeError, ValueError):
        return type(label).__name__ in ("NAType", "NaTType")
