"""What can go wrong, as exceptions."""

from __future__ import annotations


class Error(Exception):
    """Whatever this package refuses or fails to do; the others are kinds of it."""


class ParameterError(Error, ValueError):
    """Options that don't go together, an argument out of its range, a k without communities."""


class InputError(Error, ValueError):
    """Links that can't be read; the text tells the row, edge, or place in the file.

    ``source``, ``line`` and ``column`` are those of a file, counted from 1; None if there is none.
    """

    def __init__(
        self,
        text: str,
        source: str | None = None,
        line: int | None = None,
        column: int | None = None,
    ) -> None:
        super().__init__(text)
        self.source = source
        self.line = line
        self.column = column


class InputWarning(UserWarning):
    """A file that can't have been meant as it stands, as with a header among plain links."""


class OutputError(Error, OSError):
    """Results that can't be written; the text names the files."""


class MemoryExceeded(Error, MemoryError):
    """Memory ran out, or grew over the limit that was given."""


class Stopped(Error):
    """The run was stopped from elsewhere, by ``Control.stop()``."""
