"""A run in parts, done by whatever calls functions elsewhere."""

from __future__ import annotations

import csv
import ctypes
import os
import shutil
import tempfile
import time
from pathlib import Path
from typing import Any, Callable, NamedTuple, Protocol, Sequence

from . import _capi
from ._control import Control
from ._library import call
from ._links import Links
from ._network import Network, link_options
from .errors import ParameterError, Stopped
from .results import Asked, Results, _load, native_options

_LOOK_EVERY = 0.02  # seconds


class _Future(Protocol):
    def done(self) -> bool: ...
    def result(self) -> Any: ...
    def cancel(self) -> Any: ...


class Executor(Protocol):
    """As of concurrent.futures, or a client of Dask."""

    def submit(self, function: Any, /, *arguments: Any) -> Any: ...


class Workshop(NamedTuple):
    """Who does the parts, how many there are, and where they meet."""

    executor: Executor
    parts: int
    #: A folder that all see; None: a temporary one.
    work: str | None


def _search(work: str, part: int) -> None:
    call("vorlane_parts_search", os.fsencode(work), part, None, None)


def _levels(work: str, part: int) -> None:
    call("vorlane_parts_levels", os.fsencode(work), part, None, None)


def _do_all(function: Callable[[str, int], None], shop: Workshop, work: str, control: Control) -> None:
    """Does a step of all parts; the first failure, or a stop, ends those that have not begun."""
    futures: list[_Future] = [
        shop.executor.submit(function, work, part) for part in range(1, shop.parts + 1)
    ]
    try:
        left = futures
        while left:
            for future in left:
                if future.done():
                    future.result()
            left = [future for future in left if not future.done()]
            if control.stop_asked:
                raise Stopped("Process stopped by user.")
            time.sleep(_LOOK_EVERY)
        for future in futures:
            future.result()
    except BaseException:
        for future in futures:
            future.cancel()
        raise


def _write(links: Links, path: Path) -> None:
    """The links as a table, with names that tell the nodes apart."""
    names = [str(label) for label in links.labels]
    if len(set(names)) < len(names):
        seen: set[str] = set()
        twice = next(name for name in names if name in seen or seen.add(name))  # type: ignore[func-returns-value]
        raise ParameterError(
            f"Two nodes are called {twice!r}, which files can't tell apart: an executor needs "
            "names of their own."
        )
    columns: list[Any] = [links.source, links.target]
    if links.weight is not None:
        columns.append(links.weight)
    with path.open("w", newline="", encoding="utf-8", errors="surrogateescape") as file:
        table = csv.writer(file)
        table.writerow(["source", "target", "weight"][: len(columns)])
        for a, b, *weight in zip(*(column.tolist() for column in columns)):
            table.writerow([names[a - 1], names[b - 1], *map(repr, weight)])


def find_by_executor(
    links: Links | str | os.PathLike[str],
    asked: Asked,
    *,
    directed: bool,
    weighted: bool,
    format: str | None,
    columns: Sequence[Any] | None,
    save: str | os.PathLike[str] | None,
    shop: Workshop,
    control: Control,
) -> Results:
    folder = tempfile.mkdtemp(prefix="vorlane-", dir=shop.work)
    kept = False
    try:
        thresholds = asked.min_weight, asked.max_weight
        network = None
        if isinstance(links, Links):
            source = os.path.join(folder, "links.csv")
            _write(links, Path(source))
            how = link_options(links.directed, weighted, *thresholds, "csv")
            network = Network.of_links(links, link_options(links.directed, weighted, *thresholds))
        else:
            source = os.fspath(links)
            how = link_options(directed, weighted, *thresholds, format, columns)
        out = os.path.join(folder, "results") if save is None else os.fspath(save)
        _find(source, how, native_options(asked), out, os.path.join(folder, "work"), shop, control)
        results = Results(_load(out)._owner, network, asked, out)
        if save is None:  # its parts are read when they are asked for
            results._keep(folder)
            kept = True
        return results
    finally:
        shutil.rmtree(os.path.join(folder, "work") if kept else folder, True)


def _find(
    source: str,
    how: _capi.LinkOptions,
    options: _capi.Options,
    out: str,
    work: str,
    shop: Workshop,
    control: Control,
) -> None:
    native_work = os.fsencode(work)
    call(
        "vorlane_parts_plan",
        os.fsencode(source),
        ctypes.byref(how),
        ctypes.byref(options),
        os.fsencode(out),
        native_work,
        shop.parts,
        control.pointer,
    )
    _do_all(_search, shop, work, control)
    call("vorlane_parts_gather", native_work, control.pointer, None)
    _do_all(_levels, shop, work, control)
    call("vorlane_parts_finish", native_work, control.pointer)
