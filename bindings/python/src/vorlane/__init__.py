"""Overlapping communities in networks by clique percolation.

>>> import vorlane as vl
>>> r = vl.find([("ann", "bo"), ("bo", "cy"), ("cy", "ann"), ("cy", "di"), ("di", "bo")])
>>> [sorted(community) for community in r[3]]
[['ann', 'bo', 'cy', 'di']]

:func:`find` takes files, graphs, matrices, frames and arrays; a :class:`Results` holds the
communities at every k, a :class:`Level` those at one.
"""

from ._compare import Change, Comparison, compare
from ._control import Control, Progress
from ._find import find, load
from ._library import version as __version__
from .errors import (
    Error,
    InputError,
    InputWarning,
    MemoryExceeded,
    OutputError,
    ParameterError,
    Stopped,
)
from .level import Level
from .results import Distributions, LevelSummary, Results, TreeNode, UnknownK, WhichK

__all__ = [
    "Change",
    "Comparison",
    "Control",
    "Distributions",
    "Error",
    "InputError",
    "InputWarning",
    "Level",
    "LevelSummary",
    "MemoryExceeded",
    "OutputError",
    "ParameterError",
    "Progress",
    "Results",
    "Stopped",
    "TreeNode",
    "UnknownK",
    "WhichK",
    "__version__",
    "compare",
    "find",
    "load",
]
