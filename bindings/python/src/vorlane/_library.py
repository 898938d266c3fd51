"""The native library, found beside this file, and calls of it."""

from __future__ import annotations

import _thread
import ctypes
import os
import sys
import threading
import weakref
from typing import Any

from . import _capi
from .errors import Error, InputError, MemoryExceeded, OutputError, ParameterError, Stopped

_SUFFIX = ".dylib" if sys.platform == "darwin" else ".so"


def _path() -> str:
    beside = os.path.join(os.path.dirname(os.path.abspath(__file__)), "libvorlane_c" + _SUFFIX)
    return os.environ.get("VORLANE_LIBRARY", beside)


def _load(path: str) -> ctypes.CDLL:
    try:
        library = ctypes.CDLL(path)
        version = library.vorlane_abi_version
    except (OSError, AttributeError) as failure:
        raise ImportError(
            f"The native library of vorlane can't be used: {failure}. "
            "Install the package again (pip install --force-reinstall vorlane), "
            "or let VORLANE_LIBRARY name a libvorlane_c."
        ) from None
    version.restype = ctypes.c_uint32
    if version() != _capi.ABI_VERSION:
        raise ImportError(
            f"{path} has version {version()} of its interface, and this package needs "
            f"version {_capi.ABI_VERSION}: install a libvorlane_c and a package of one release."
        )
    for name, (result, arguments) in _capi.FUNCTIONS.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = arguments
    return library


library = _load(_path())
version: str = library.vorlane_version().decode()

_KINDS: dict[int, type[Error]] = {
    1: ParameterError,
    3: OutputError,
    4: MemoryExceeded,
    5: Stopped,
    6: Error,
}


def _failure() -> Error:
    failure = _capi.Failure()
    library.vorlane_last_failure(ctypes.byref(failure))
    text = failure.text.decode("utf-8", "replace").strip()
    if failure.code != 2:
        return _KINDS[failure.code](text)
    source = os.fsdecode(failure.source) if failure.source else None
    return InputError(text, source, failure.line or None, failure.column or None)


def call(name: str, *arguments: Any) -> None:
    """Calls a function that returns a code, and raises what the code means."""
    if getattr(library, name)(*arguments):
        raise _failure()


def _give_back(function: Any, pointer: ctypes.c_void_p) -> None:
    try:
        function(pointer)
    except KeyboardInterrupt:  # which ends here, as nothing is raised out of a finalizer
        threading.Timer(0.005, _thread.interrupt_main).start()


class Owner:
    """A native object, given back when nothing refers to it any more."""

    def __init__(self, pointer: ctypes.c_void_p, give_back: str) -> None:
        self.pointer = pointer
        finalizer = weakref.finalize(self, _give_back, getattr(library, give_back), pointer)
        finalizer.atexit = False  # a thread may still be at work; the process gives all back

    @classmethod
    def made_by(cls, name: str, *arguments: Any, give_back: str) -> Owner:
        """Made by a function whose last argument is where it hands a pointer out."""
        pointer = ctypes.c_void_p()
        call(name, *arguments, ctypes.byref(pointer))
        return cls(pointer, give_back)
