"""A bar for those who wait: tqdm, in terminals and notebooks, if it is installed."""

from __future__ import annotations

import sys
from typing import Any, Callable, Union

from ._control import Progress

#: "auto", True, False, or a function that is called some times a second.
ProgressOption = Union[str, bool, Callable[[Progress], None]]


def _in_notebook() -> bool:
    shell = getattr(sys.modules.get("IPython"), "get_ipython", lambda: None)()
    return type(shell).__name__ == "ZMQInteractiveShell"


class _Bar:
    """First the nodes that have been searched, then the work of the levels."""

    def __init__(self, bar_type: Any) -> None:
        self._bar_type = bar_type
        self._bar: Any = None
        self._stage = ""
        self._nodes = 0

    def __call__(self, now: Progress) -> None:
        if now.nodes_left > 0:
            self._nodes = max(self._nodes, now.nodes_left)
            self._show("cliques", self._nodes - now.nodes_left, self._nodes)
        elif now.work_total > 0:
            self._show("communities", now.work_done, now.work_total)

    def _show(self, stage: str, done: int, total: int) -> None:
        if stage != self._stage:
            self.close()
            self._stage = stage
            self._bar = self._bar_type(total=total, desc=stage, leave=False, unit_scale=True)
        self._bar.total = total
        self._bar.n = min(done, total)
        self._bar.refresh()

    def close(self) -> None:
        if self._bar is not None:
            self._bar.close()
            self._bar = None


class Watch:
    """What is called while a run goes on; a context, which ends the bar."""

    def __init__(self, wish: ProgressOption) -> None:
        self._bar: _Bar | None = None
        self.call: Callable[[Progress], None] | None = None
        if callable(wish):
            self.call = wish
        elif wish is True or (wish == "auto" and (sys.stderr.isatty() or _in_notebook())):
            try:
                from tqdm.auto import tqdm
            except ImportError:
                return
            self.call = self._bar = _Bar(tqdm)

    def __enter__(self) -> Watch:
        return self

    def __exit__(self, *_: object) -> None:
        if self._bar:
            self._bar.close()
