"""How results show themselves in a notebook: a table, and small ones in a figure."""

from __future__ import annotations

from base64 import b64encode
from html import escape
from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from .results import LevelSummary, Results

_MOST_ROWS = 20
_MOST_IN_FIGURE = 2000  # communities; more take their time, and can't be told apart
_HEADS = ("k", "communities", "largest", "covered nodes", "in several")


def table(results: Results) -> str:
    """A row for each k, equal neighbours folded, the recommended one marked; self-contained."""
    choice = results.which_k()
    nodes = len(results._network)
    levels = results.summary()
    rows = _folded(levels, choice.k)
    hidden = len(rows) - _MOST_ROWS
    body = "".join(_row(level, k, k_text, nodes, choice.k) for level, k, k_text in rows[-_MOST_ROWS:])
    above = f"<p>{hidden} rows of larger k are left out.</p>" if hidden > 0 else ""
    heads = "".join(f"<th>{head}</th>" for head in _HEADS)
    return (
        f"<div><p>{escape(repr(results)[1:-1])}</p>{above}"
        f"<table><thead><tr>{heads}</tr></thead><tbody>{body}</tbody></table>"
        f"<p>{escape(choice.reason)}</p>{_figure(results, levels)}</div>"
    )


def _figure(results: Results, levels: list[LevelSummary]) -> str:
    """The communities over all k, as a picture that scripts and styles of the page can't touch."""
    if not 0 < sum(level.communities for level in levels) <= _MOST_IN_FIGURE:
        return ""
    svg = b64encode(results.figure("tree").encode()).decode()
    text = "The communities at every k, each inside the one that holds it at the next lower k"
    return f'<img alt="{text}" style="max-width:36em" src="data:image/svg+xml;base64,{svg}">'


def _folded(
    levels: list[LevelSummary], recommended: int | None
) -> list[tuple[LevelSummary, int, str]]:
    """Levels that differ in k alone are one row, but for the recommended one."""
    rows: list[tuple[LevelSummary, int, str]] = []
    for level in levels:
        if rows and rows[-1][0][1:] == level[1:] and recommended not in (level.k, rows[-1][1]):
            first = rows[-1][2].split(" to ")[0]
            rows[-1] = (level, level.k, f"{first} to {level.k}")
        else:
            rows.append((level, level.k, str(level.k)))
    return rows


def _row(level: LevelSummary, k: int, k_text: str, nodes: int, recommended: int | None) -> str:
    share = 100 * level.covered / nodes if nodes else 0.0
    bar = (
        f'<span style="display:inline-block;height:.7em;width:{share * 0.6:.1f}px;'
        'background:#4a7ebb;margin-right:.4em"></span>'
    )
    mark = " \N{LEFTWARDS ARROW} begin here" if k == recommended else ""
    cells = (
        f"{k_text}{mark}",
        f"{level.communities}",
        f"{level.largest}",
        f"{bar}{level.covered} ({share:.0f} %)",
        f"{level.overlapping}",
    )
    return "<tr>" + "".join(f"<td>{cell}</td>" for cell in cells) + "</tr>"
