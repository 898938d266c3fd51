"""The networks with weights on which the intensity method is measured."""

import gzip

from harness import Network

# Thresholds from where about a million k-cliques pass to where few do.
THRESHOLDS = {
    "lesmis": (0, 2, 5),
    "netscience": (0, 0.5, 1),
    "debian-comaint": (0, 5, 20, 50),
    "USF-association": (0, 0.05, 0.1, 0.2),
    "collins2007": (0.98, 0.985, 0.99, 0.999),
    "ca-GrQc": (48, 49, 50, 55),
}


def read_links(path):
    """The links of a file with their weights; without weights, one more than the neighbours that
    the two nodes have in common."""
    opened = gzip.open if path.suffix == ".gz" else open
    with opened(path, "rt", encoding="utf-8") as lines:
        rows = [line.split() for line in lines if not line.startswith("#")]
    rows = [row for row in rows if len(row) > 1 and row[0] != row[1]]
    if all(len(row) > 2 for row in rows):
        return [row[:3] for row in rows]
    neighbours = {}
    for first, second, *_ in rows:
        neighbours.setdefault(first, set()).add(second)
        neighbours.setdefault(second, set()).add(first)
    pairs = sorted({tuple(sorted(row[:2])) for row in rows})
    return [(a, b, str(1 + len(neighbours[a] & neighbours[b]))) for a, b in pairs]


def weighted_network(name, directory, folder):
    """The network of that name in the directory, with weights, ready in folder; None without it."""
    for source in (directory / (name + suffix) for suffix in (".txt", ".txt.gz")):
        if source.exists():
            links = read_links(source)
            path = folder / f"{name}-weights.txt"
            path.write_text("".join(" ".join(link) + "\n" for link in links))
            return Network(name, path, len(links), False)
    return None
