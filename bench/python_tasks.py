"""What bench/python measures, each task in a process of its own: python_tasks.py TASK ARGUMENTS.

Prints figures, separated by blanks. Link files hold two columns of whole numbers or names.
"""

import os
import random
import signal
import sys
import time

import networkx as nx
import numpy as np

import vorlane as vl
from vorlane import _capi, networkx_backend
from vorlane._library import call
from vorlane._network import Network, link_options

GIVEN_UP = 124


def seconds(work, clock=time.perf_counter):
    start = clock()
    result = work()
    return clock() - start, result


def arrays_in(path):
    both = np.fromstring(open(path, encoding="ascii").read(), np.int64, sep=" ").reshape(-1, 2)
    return np.ascontiguousarray(both[:, 0]), np.ascontiguousarray(both[:, 1])


def graph_in(path):
    graph = nx.Graph()
    with open(path, encoding="utf-8") as lines:
        graph.add_edges_from(line.split() for line in lines)
    return graph


def resident_mb():
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 2**20


def give_up_after(limit):
    signal.signal(signal.SIGALRM, lambda *_: os._exit(GIVEN_UP))
    signal.alarm(int(limit))


def all_levels(path):
    """Processor seconds from two arrays to all k; seconds of the views on all communities."""
    links = arrays_in(path)
    taken, results = seconds(lambda: vl.find(links, progress=False), time.process_time)
    looking, views = seconds(lambda: [(k, results[k].starts, results[k].members) for k in results])
    for k, starts, members in views:
        native = _capi.Level()
        call("vorlane_results_level", results._owner.pointer, k, native)
        assert (native.members.starts, native.members.values) == (
            starts.ctypes.data, members.ctypes.data), "a view is a copy"
    print(taken, looking)


def conversion(path):
    """Seconds in which networkx iterates its edges twice, and of both conversions up to where a
    search begins; the least of five that take turns."""
    graph = graph_in(path)

    def iterate():
        for _ in range(2):
            for _ in graph.edges():
                pass

    def links_of_find():
        links = vl._find.links_of(graph, vl._find.Wishes())
        return Network.of_links(links, link_options(False, False, None, None))

    def backend_graph():
        return networkx_backend.convert_from_nx(graph)._network

    rounds = [[seconds(work)[0] for work in (iterate, links_of_find, backend_graph)]
              for _ in range(5)]
    print(*map(min, zip(*rounds)))


def k_clique_communities(path, k, backend, limit):
    graph = graph_in(path)
    give_up_after(limit)
    taken, found = seconds(lambda: list(nx.community.k_clique_communities(
        graph, int(k), backend=backend)))
    print(taken, len(found))


def random_graphs(count):
    """By how many ms calls that try the backend are slower at most than those that don't, each
    the least of five that take turns."""
    generator = random.Random(1)
    calls = {
        "k_clique_communities": lambda graph: list(nx.community.k_clique_communities(graph, 4)),
        "find_cliques": lambda graph: list(nx.find_cliques(graph)),
        "node_clique_number": nx.node_clique_number,
    }
    differences = []
    for seed in range(int(count)):
        nodes = generator.randint(10, 200)
        share = min(1.0, generator.uniform(0, 25) / nodes)
        graph = nx.gnp_random_graph(nodes, share, seed=seed)
        for work in calls.values():
            least = {}
            for backends in [[], ["vorlane"]] * 5:
                nx.config.backend_priority.algos = backends
                graph.__networkx_cache__.clear()
                taken = seconds(lambda: work(graph))[0] * 1000
                least[len(backends)] = min(taken, least.get(len(backends), taken))
            differences.append(least[1] - least[0])
    print(max(differences))


def of_networkx(path, backend):
    graph = graph_in(path)
    return lambda: list(nx.find_cliques(graph, backend=backend))


def of_find(path):
    links = arrays_in(path)
    return lambda: vl.find(links, k=3, progress=False).cliques


def of_igraph(path):
    import igraph

    source, target = arrays_in(path)
    count = int(max(source.max(), target.max())) + 1
    return lambda: igraph.Graph(count, np.column_stack((source, target))).maximal_cliques(min=3)


def of_networkit(path):
    import networkit

    source, target = arrays_in(path)
    count = int(max(source.max(), target.max())) + 1

    def whole():
        graph = networkit.GraphFromCoo((np.ones(len(source)), (source, target)), n=count)
        graph.removeMultiEdges()  # its search crashes on links in both directions
        graph.removeSelfLoops()
        search = networkit.clique.MaximalCliques(graph)
        search.run()
        return search.getCliques()

    return whole


CLIQUES = {"networkx": lambda path: of_networkx(path, "networkx"),
           "backend": lambda path: of_networkx(path, "vorlane"),
           "find": of_find, "igraph": of_igraph, "networkit": of_networkit}


def maximal_cliques(path, package, limit):
    """Seconds from two arrays or a networkx graph to a list of all maximal cliques, and how many
    have three nodes or more."""
    work = CLIQUES[package](path)
    give_up_after(limit)
    taken, cliques = seconds(work)
    print(taken, sum(len(clique) > 2 for clique in cliques))


def thousand_runs(path):
    """MB by which the process grows from the hundredth to the thousandth run."""
    links = arrays_in(path)
    graph = nx.karate_club_graph()
    for count in range(1000):
        results = vl.find(links, progress=False)
        sum(len(community) for level in results.values() for community in level)
        graph.__networkx_cache__.clear()
        list(nx.community.k_clique_communities(graph, 3, backend="vorlane"))
        if count == 99:
            before = resident_mb()
    print(resident_mb() - before)


def whole_run(path):
    results = vl.find(arrays_in(path), progress=False)
    print(sum(len(results[k]) for k in results))


TASKS = {task.__name__: task for task in (
    all_levels, conversion, k_clique_communities, random_graphs, maximal_cliques, thousand_runs,
    whole_run)}

TASKS[sys.argv[1]](*sys.argv[2:])
