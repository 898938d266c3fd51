"""Reads an exported network with networkx and writes it again; prints the seconds of processor time
that writing took: write_network.py gexf|graphml FILE NEW_FILE."""

import sys
import time

import networkx

kind, source, target = sys.argv[1:]
graph = getattr(networkx, f"read_{kind}")(source)
begin = time.process_time()
getattr(networkx, f"write_{kind}")(graph, target)
print(time.process_time() - begin)
