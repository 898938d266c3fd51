"""Levels for Arrow, through its PyCapsule interface."""

from __future__ import annotations

import ctypes
from typing import Any

from ._library import Owner, call

_NAME = b"arrow_array_stream"

_new = ctypes.pythonapi.PyCapsule_New
_new.restype = ctypes.py_object
_new.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p]
_pointer = ctypes.pythonapi.PyCapsule_GetPointer
_pointer.restype = ctypes.c_void_p
_pointer.argtypes = [ctypes.c_void_p, ctypes.c_char_p]

_Release = ctypes.CFUNCTYPE(None, ctypes.c_void_p)


class _Stream(ctypes.Structure):
    """ArrowArrayStream of Arrow's C interface, whose layout is fixed for all times."""

    _fields_ = [
        ("get_schema", ctypes.c_void_p),
        ("get_next", ctypes.c_void_p),
        ("get_last_error", ctypes.c_void_p),
        ("release", ctypes.c_void_p),
        ("private_data", ctypes.c_void_p),
    ]


_kept: dict[int, Any] = {}  # by address: streams that capsules hold


def _destroy(capsule: int) -> None:
    """Called with a capsule when it goes: releases a stream that nobody has taken over."""
    address = _pointer(capsule, _NAME)
    stream = _Stream.from_address(address)
    if stream.release:
        _Release(stream.release)(address)
    _kept.pop(address, None)


_destroyer = _Release(_destroy)


class Table:
    """The communities at one k, for whatever takes a table of Arrow."""

    def __init__(self, owner: Owner, k: int) -> None:
        self._owner = owner
        self._k = k

    def __arrow_c_stream__(self, requested_schema: object = None) -> object:
        made = _Stream()
        address = ctypes.addressof(made)
        call("vorlane_results_arrow", self._owner.pointer, self._k, address)
        _kept[address] = made
        return _new(address, _NAME, ctypes.cast(_destroyer, ctypes.c_void_p))
