"""What networkx asks about its backends whenever it is imported.

In a package of its own, as that import must not wait for numpy and the native library.
"""

from __future__ import annotations

from typing import Any

_ALL_FIRST = "All cliques are found before the first one is yielded."

_FUNCTIONS = {
    "find_cliques": f"{_ALL_FIRST} Calls with `nodes` are left to networkx.",
    "k_clique_communities": "For `k` of 3 or more and without `cliques`.",
    "node_clique_number": "Without `cliques`.",
}


def info() -> dict[str, Any]:
    """The entry point ``networkx.backend_info``."""
    return {
        "backend_name": "vorlane",
        "project": "vorlane",
        "package": "vorlane",
        "short_summary": "Cliques and communities by clique percolation, natively.",
        "functions": {name: {"additional_docs": text} for name, text in _FUNCTIONS.items()},
    }
