"""Data frames with a row for each link: pandas, polars, pyarrow, duckdb."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any

import numpy as np
import numpy.typing as npt

from .._links import Links, between, column
from ..errors import InputError

if TYPE_CHECKING:
    from . import Wishes

_SOURCES = ("source", "from", "node1", "src", "u")
_TARGETS = ("target", "to", "node2", "dst", "v")
_WEIGHTS = ("weight", "w")


def _package(data: Any) -> str:
    return type(data).__module__.partition(".")[0]


def is_frame(data: Any) -> bool:
    return (_package(data), type(data).__name__) in {
        ("pandas", "DataFrame"),
        ("polars", "DataFrame"),
        ("polars", "LazyFrame"),
        ("pyarrow", "Table"),
        ("pyarrow", "RecordBatch"),
        ("duckdb", "DuckDBPyRelation"),
        ("_duckdb", "DuckDBPyRelation"),
    }


def _table(data: Any) -> tuple[Any, list[str]]:
    """What has columns by name, and the names."""
    if type(data).__name__ == "LazyFrame":
        data = data.collect()
    if type(data).__name__ == "DuckDBPyRelation":
        data = data.to_arrow_table()
    names = data.schema.names if _package(data) == "pyarrow" else data.columns
    return data, list(names)


def _name(wish: Any, known: tuple[str, ...], names: list[str], place: int | None, what: str) -> Any:
    if wish is not None:
        if wish in names:
            return wish
        raise InputError(f"There is no column {wish!r} for the {what}; there are {names}.")
    for name in names:
        if str(name).lower() in known:
            return name
    if place is not None and place < len(names):
        return names[place]
    raise InputError(
        f"There is no column for the {what}; there are {names}. {what}='NAME' tells one."
    )


def _values(table: Any, name: Any) -> npt.NDArray[Any]:
    values = table[name].to_numpy() if hasattr(table[name], "to_numpy") else np.asarray(table[name])
    return column(values, str(name))


def of_frame(data: Any, wishes: Wishes) -> Links:
    table, names = _table(data)
    source = _name(wishes.source, _SOURCES, names, 0, "source")
    target = _name(wishes.target, _TARGETS, names, 1, "target")
    weight = None
    if wishes.weighted:
        weight = _values(table, _name(wishes.weight, _WEIGHTS, names, 2, "weight"))
    return between(
        _values(table, source),
        _values(table, target),
        weight,
        directed=bool(wishes.directed),
        row="row",
    )
