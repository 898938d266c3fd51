"""Finds the communities at one k with networkx: k_clique_communities.py FILE K SECONDS.

FILE holds two columns and no comments. Ends with exit code 124 when SECONDS have passed.
"""

import os
import signal
import sys

import networkx
from networkx.algorithms.community import k_clique_communities


def main():
    path, k, seconds = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    signal.signal(signal.SIGALRM, lambda *_: os._exit(124))
    signal.alarm(seconds)
    graph = networkx.read_edgelist(path)
    graph.remove_edges_from(list(networkx.selfloop_edges(graph)))
    communities = list(k_clique_communities(graph, k))
    print(f"{len(communities)} communities at k={k}")


main()
