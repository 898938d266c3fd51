"""Native networks, and the caller's nodes in them."""

from __future__ import annotations

import ctypes
import math
import os
from typing import Any, Sequence

import numpy as np
import numpy.typing as npt

from . import _capi
from ._arrays import Nodes, Starts, rows, view
from ._control import Control
from ._library import Owner, call, library
from ._links import Links

_NAME_ERRORS = "surrogateescape"


def optional(number: float | None) -> float:
    """A number that may be missing, as the library takes it."""
    return math.nan if number is None else number


def link_options(
    directed: bool,
    weighted: bool,
    min_weight: float | None,
    max_weight: float | None,
    format: str | None = None,
    columns: Sequence[Any] | None = None,
) -> _capi.LinkOptions:
    return _capi.LinkOptions(
        directed,
        weighted,
        optional(min_weight),
        optional(max_weight),
        None if format is None else format.encode(),
        None if columns is None else ",".join(map(str, columns)).encode(),
    )


class Network:
    """A native network; ``labels`` are the nodes that its numbers stand for, if it has its own."""

    def __init__(self, owner: Owner, links: Links | None = None) -> None:
        self.owner = owner
        self.links = links
        #: What the first lines of results files call the input.
        self.source = "memory"
        self._look = _capi.NetworkView()
        library.vorlane_network_look(owner.pointer, ctypes.byref(self._look))

    @classmethod
    def read(
        cls, path: str | os.PathLike[str], options: _capi.LinkOptions, control: Control
    ) -> Network:
        name = os.fsencode(path)
        made = Owner.made_by(
            "vorlane_network_read",
            name,
            ctypes.byref(options),
            control.pointer,
            give_back="vorlane_network_free",
        )
        return cls(made)

    @classmethod
    def of_links(cls, links: Links, options: _capi.LinkOptions) -> Network:
        native = _NativeLinks(links)
        made = Owner.made_by(
            "vorlane_network_from_links",
            ctypes.byref(native.links),
            ctypes.byref(options),
            give_back="vorlane_network_free",
        )
        return cls(made, links)

    def __len__(self) -> int:
        return int(self._look.size)

    @property
    def link_count(self) -> int:
        return int(self._look.link_count)

    @property
    def directed(self) -> bool:
        return bool(self._look.directed)

    @property
    def weighted(self) -> bool:
        return bool(self._look.weighted)

    def warnings(self) -> list[str]:
        texts = (
            library.vorlane_network_warning(self.owner.pointer, i)
            for i in range(self._look.warning_count)
        )
        return [text.decode("utf-8", "replace") for text in texts]

    def link_rows(self) -> tuple[Starts, Nodes]:
        return rows(self._look.links, self.owner)

    def weights(self) -> npt.NDArray[np.float64] | None:
        if not self.weighted:
            return None
        return view(self._look.weights, (self.link_count,), np.float64, self.owner)

    def given_links(self) -> Links:
        """The links between the caller's nodes, of which an equal network can be made."""
        arrays = [ctypes.c_void_p() for _ in range(3)]
        count = ctypes.c_size_t()
        call(
            "vorlane_network_given_links",
            self.owner.pointer,
            *map(ctypes.byref, arrays),
            ctypes.byref(count),
        )
        source, target, weight = (
            np.array(view(array.value, (count.value,), kind, self))
            for array, kind in zip(arrays, (np.uint32, np.uint32, np.float64))
        )
        return Links(
            self.nodes()[1:], source, target, weight if self.weighted else None, self.directed
        )

    def nodes(self) -> list[Any]:
        """The caller's nodes, or names; node v at place v, and None at place 0."""
        if self.links is None:
            return [None, *self._names()]
        given = view(self._look.given, (len(self) + 1,), np.uint32, self.owner)
        labels = self.links.labels
        if isinstance(labels, np.ndarray):
            return [None, *labels[given[1:] - 1].tolist()]
        return [None, *(labels[number - 1] for number in given[1:].tolist())]

    def _names(self) -> list[str]:
        text = ctypes.create_string_buffer(int(self._look.name_bytes) + 1)
        starts = np.empty(len(self) + 1, np.uintp)
        library.vorlane_network_names(
            self.owner.pointer, ctypes.addressof(text), starts.ctypes.data
        )
        raw = text.raw
        ends = starts.tolist()
        return [raw[a:b].decode("utf-8", _NAME_ERRORS) for a, b in zip(ends, ends[1:])]


def _bytes_of(name: str) -> bytes:
    try:
        return name.encode("utf-8", _NAME_ERRORS)
    except UnicodeEncodeError:  # half of a pair of surrogates, which no file can give
        return name.encode("utf-8", "surrogatepass")


class _NativeLinks:
    """Links as the library takes them; holds what they refer to."""

    def __init__(self, links: Links) -> None:
        self.links = _capi.Links(node_count=len(links.labels), link_count=len(links.source))
        self._kept: list[Any] = []
        for field, values, dtype in (
            ("from", links.source, np.uint32),
            ("to", links.target, np.uint32),
            ("weights", links.weight, np.float64),
        ):
            if values is not None:
                self._give(field, np.ascontiguousarray(values, dtype))
        if isinstance(links.labels, np.ndarray):
            self._give("numbers", np.ascontiguousarray(links.labels, np.int64))
        else:
            self._give_names(links.labels)

    def _give(self, field: str, values: npt.NDArray[Any]) -> None:
        self._kept.append(values)
        setattr(self.links, field, values.ctypes.data)

    def _give_names(self, labels: Sequence[Any]) -> None:
        names = [_bytes_of(str(label)) for label in labels]
        lengths = np.fromiter(map(len, names), np.uintp, len(names))
        self.links.names = b"".join(names)
        self._give("name_starts", np.concatenate([np.zeros(1, np.uintp), np.cumsum(lengths)]))
