"""The program beside igraph, which finds and counts all maximal cliques of a network."""

from harness import ABOVE_EVERY_CLIQUE, TOOLS, measure, measure_program, median


def igraph_command(network, reader):
    return [TOOLS / "maximal_cliques", reader, network.path]


def faster_reader(network):
    """igraph has one reader for any names and one for whole numbers; it runs with the faster."""
    readers = ("ncol", "edgelist") if network.whole_numbers else ("ncol",)
    return min(readers, key=lambda reader: measure(igraph_command(network, reader)).cpu)


def compare(network, folder, rounds, *switches):
    """The medians of the search, the whole run and igraph, and the reader that igraph used."""
    reader = faster_reader(network)
    runs = [(measure_program(network, folder, "-k", ABOVE_EVERY_CLIQUE, *switches),
             measure(igraph_command(network, reader)),
             measure_program(network, folder, *switches)) for _ in range(rounds)]
    search, igraph, whole = (median(usages) for usages in zip(*runs))
    return search, igraph, whole, reader
