"""Reads a network with networkx, and does nothing with it: read_network.py FORMAT FILE."""

import csv
import sys

import networkx


def read_table(path, delimiter):
    graph = networkx.Graph()
    with open(path, newline="", encoding="utf-8") as file:
        for row in csv.DictReader(file, delimiter=delimiter):
            graph.add_edge(row["source"], row["target"], weight=float(row["weight"]))
    return graph


READERS = {"links": networkx.read_weighted_edgelist,
           "csv": lambda path: read_table(path, ","),
           "tsv": lambda path: read_table(path, "\t"),
           "graphml": networkx.read_graphml,
           "pajek": networkx.read_pajek}

print(READERS[sys.argv[1]](sys.argv[2]).number_of_edges(), "links")
