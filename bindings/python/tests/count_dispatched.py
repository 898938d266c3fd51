"""A plugin of pytest that tells how many calls of networkx the backend answered, by function."""

from collections import Counter
from functools import wraps

from vorlane import networkx_backend

_calls = Counter()


def _counted(name):
    function = getattr(networkx_backend, name)

    @wraps(function)
    def count(*args, **kwargs):
        answer = function(*args, **kwargs)  # or it refuses
        _calls[name] += 1
        return answer

    return count


def pytest_configure():
    for name in ("find_cliques", "k_clique_communities", "node_clique_number"):
        setattr(networkx_backend, name, _counted(name))


def pytest_terminal_summary(terminalreporter):
    calls = " ".join(f"{name}={count}" for name, count in sorted(_calls.items()))
    terminalreporter.write_line(f"dispatched: {calls}")
