"""Native arrays as numpy sees them, without a copy."""

from __future__ import annotations

from typing import Any

import numpy as np
import numpy.typing as npt

from . import _capi

Nodes = npt.NDArray[np.uint32]
Starts = npt.NDArray[np.uint64]


class _Memory:
    """A piece of memory, and who keeps it."""

    def __init__(self, address: int, shape: tuple[int, ...], kind: str, owner: Any) -> None:
        self.owner = owner
        self.__array_interface__ = {
            "version": 3,
            "data": (address, True),
            "shape": shape,
            "typestr": kind,
        }


def view(address: int | None, shape: tuple[int, ...], dtype: Any, owner: Any) -> npt.NDArray[Any]:
    """A read-only array over ``address`` that keeps ``owner`` alive."""
    kind = np.dtype(dtype)
    if not address or 0 in shape:
        empty = np.empty(shape, kind)
        empty.flags.writeable = False
        return empty
    shown: npt.NDArray[Any]
    if kind.fields is None:
        shown = np.asarray(_Memory(address, shape, kind.str, owner))
    else:  # an interface of arrays tells no fields
        size = int(np.prod(shape)) * kind.itemsize
        shown = np.asarray(_Memory(address, (size,), "|u1", owner)).view(kind).reshape(shape)
    return shown


def rows(native: _capi.Rows, owner: Any) -> tuple[Starts, Nodes]:
    """``starts`` (uint64, rows + 1 places) and ``values`` (uint32)."""
    starts = view(native.starts, (native.size + 1,), np.uint64, owner)
    return starts, view(native.values, (int(starts[-1]),), np.uint32, owner)


def sizes_of(starts: Starts) -> npt.NDArray[np.int64]:
    """The length of each row."""
    ends = starts.astype(np.int64)
    return ends[1:] - ends[:-1]


def row_of_each(starts: Starts) -> npt.NDArray[np.uint32]:
    """For each value, the row that it is in."""
    return np.repeat(np.arange(len(starts) - 1, dtype=np.uint32), sizes_of(starts))


def native_rows(starts: Starts, values: Nodes) -> _capi.Rows:
    """For a call; the arrays must outlive it."""
    return _capi.Rows(len(starts) - 1, starts.ctypes.data, values.ctypes.data)
