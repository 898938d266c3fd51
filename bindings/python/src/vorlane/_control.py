"""Work on a thread of its own, watched, and stopped by whatever ends the waiting."""

from __future__ import annotations

import atexit
import ctypes
import os
import threading
import weakref
from typing import Callable, NamedTuple, TypeVar

from . import _capi
from ._library import Owner, library
from .errors import MemoryExceeded

_Result = TypeVar("_Result")

_LOOK_EVERY = 0.05  # seconds


class Progress(NamedTuple):
    """How far a run has come."""

    cliques_found: int
    #: Nodes that the search has still to do.
    nodes_left: int
    #: Of the intensity method, at the k at hand.
    k_cliques_found: int
    #: Of the stage at hand, in units of its own.
    work_done: int
    #: 0: the stage doesn't tell.
    work_total: int


class Control:
    """Watches and stops one run from any thread: ``find(..., control=control)``.

    >>> import vorlane as vl
    >>> control = vl.Control()
    >>> control.stop()
    >>> vl.find(([1, 2, 3], [2, 3, 1]), control=control)
    Traceback (most recent call last):
    vorlane.errors.Stopped: Process stopped by user.
    """

    def __init__(self) -> None:
        self._owner = Owner.made_by("vorlane_control_new", give_back="vorlane_control_free")
        #: Whether somebody has asked for an end.
        self.stop_asked = False
        _controls.add(self)

    @property
    def pointer(self) -> ctypes.c_void_p:
        return self._owner.pointer

    def stop(self) -> None:
        """Ends the run within some hundredths of a second; holds until :meth:`reset`."""
        self.stop_asked = True
        library.vorlane_control_stop(self.pointer)

    def reset(self) -> None:
        """Lets the next run go on."""
        self.stop_asked = False
        library.vorlane_control_reset(self.pointer)

    def progress(self) -> Progress:
        """How far the run is."""
        now = _capi.Progress()
        library.vorlane_control_progress(self.pointer, ctypes.byref(now))
        return Progress(*(getattr(now, name) for name in Progress._fields))

    def report(self) -> str:
        """What is going on, in words: several lines."""
        size = library.vorlane_control_report(self.pointer, None, 0) + 64
        text = ctypes.create_string_buffer(size)
        library.vorlane_control_report(self.pointer, text, size)
        return text.value.decode("utf-8", "replace")


_controls: weakref.WeakSet[Control] = weakref.WeakSet()
_threads: weakref.WeakSet[threading.Thread] = weakref.WeakSet()


def _end_all() -> None:
    """What still runs when the interpreter ends is stopped; nobody can take its results."""
    for control in list(_controls):
        control.stop()
    for thread in list(_threads):
        thread.join()


atexit.register(_end_all)
if hasattr(os, "register_at_fork"):
    os.register_at_fork(after_in_child=_threads.clear)  # a child has none of them


def _resident_bytes() -> int:
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def run(
    work: Callable[[], _Result],
    control: Control,
    watch: Callable[[Progress], None] | None = None,
    memory_limit: int | None = None,
) -> _Result:
    """Does a work on another thread, which frees this one for signals, and waits for it.

    Whatever is raised while it waits, as by Ctrl-C, stops the work and goes on.
    """
    done = threading.Event()
    outcome: list[_Result] = []
    failure: list[BaseException] = []

    def target() -> None:
        try:
            outcome.append(work())
        except BaseException as raised:
            failure.append(raised)
        finally:
            done.set()

    def look() -> None:
        if watch:
            watch(control.progress())
        if memory_limit is not None and _resident_bytes() > memory_limit:
            raise MemoryExceeded(
                f"The process has grown over the limit of {memory_limit} bytes. A larger "
                "memory_limit, one k (k=...), or a weight threshold (min_weight=...) helps."
            )

    thread = threading.Thread(target=target, name="vorlane", daemon=True)
    _threads.add(thread)
    try:
        thread.start()
        wait = _LOOK_EVERY / 10
        while not done.wait(wait):
            look()
            wait = _LOOK_EVERY
    except BaseException:
        control.stop()
        if thread.is_alive():
            thread.join()
        raise
    thread.join()
    if failure:
        raise failure[0]
    return outcome[0]
