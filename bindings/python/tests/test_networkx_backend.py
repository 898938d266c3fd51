"""Calls of networkx that this package answers must be answered as by networkx."""

import copy
import os
import pickle
import re
import subprocess
import sys
import time

import pytest

nx = pytest.importorskip("networkx")

from vorlane import networkx_backend  # noqa: E402

# What networkx says whenever it takes a graph that it keeps for a backend.
pytestmark = pytest.mark.filterwarnings("ignore:Note. conversions to backend graphs")

HERE = os.path.dirname(os.path.abspath(__file__))
OURS = {"backend": "vorlane"}
communities = nx.community.k_clique_communities


def graph_of(*edges, nodes=(), kind=nx.Graph):
    graph = kind(edges)
    graph.add_nodes_from(nodes)
    return graph


def random_graph(seed, nodes=40, share=0.3):
    return nx.gnp_random_graph(nodes, share, seed=seed)


GRAPHS = {
    "empty": nx.Graph(),
    "no edges": graph_of(nodes="abc"),
    "one edge": graph_of((1, 2)),
    "self-loops only": graph_of((1, 1), (2, 2)),
    "no triangle": nx.complete_bipartite_graph(4, 5),
    "complete": nx.complete_graph(12),
    "cliques of every size": nx.disjoint_union_all(map(nx.complete_graph, range(1, 8))),
    "nodes of equal text": graph_of((1, "1"), ("1", 1.5), (1.5, 1), (1, "1.5"), nodes=["2", 2]),
    "nodes that are tuples": nx.grid_2d_graph(4, 4, periodic=True),
    "nodes of every kind": graph_of((1, "a"), ("a", None.__class__), (None.__class__, 1), ((), 1)),
    "self-loops and parallels": graph_of(
        (1, 2), (2, 3), (3, 1), (1, 2), (3, 3), (4, 4), (3, 5), kind=nx.MultiGraph
    ),
    "a view": nx.subgraph_view(random_graph(5), filter_node=lambda node: node % 3),
    **{f"random {seed}": random_graph(seed) for seed in range(10)},
    "many small parts": nx.disjoint_union_all([nx.path_graph(3)] * 50),
}


@pytest.mark.parametrize("name", GRAPHS)
def test_answers_are_networkxs(name):
    graph = GRAPHS[name]
    found = list(nx.find_cliques(graph, **OURS))
    expected = list(nx.find_cliques(graph))
    assert all(type(clique) is list for clique in found)
    assert len(found) == len(expected)
    assert set(map(frozenset, found)) == set(map(frozenset, expected))

    assert nx.node_clique_number(graph, **OURS) == nx.node_clique_number(graph)
    some = list(graph)[::2]
    assert nx.node_clique_number(graph, some, **OURS) == {
        node: max(len(clique) for clique in expected if node in clique) for node in some
    }
    for k in 3, 4, 5, 10**12:
        found = list(communities(graph, k, **OURS))
        assert all(type(community) is frozenset for community in found)
        assert len(found) == len(set(found))
        assert set(found) == set(communities(graph, k))


def test_numbers_of_single_and_unknown_nodes():
    graph = graph_of((1, 2), (2, 3), (3, 1), (3, 4), nodes=[5])
    assert [nx.node_clique_number(graph, node, **OURS) for node in range(1, 6)] == [3, 3, 3, 2, 1]
    assert type(nx.node_clique_number(graph, 1, **OURS)) is int
    with pytest.raises(nx.NodeNotFound, match="6"):
        nx.node_clique_number(graph, [1, 6], **OURS)


@pytest.mark.parametrize(
    "name, arguments, reason",
    [
        ("k_clique_communities", (random_graph(0), 3), None),
        ("k_clique_communities", (random_graph(0), 2), "k is 2"),
        ("k_clique_communities", (random_graph(0), 3.5), "k is 3.5"),
        ("k_clique_communities", (random_graph(0), 4, []), "cliques are given"),
        ("k_clique_communities", (nx.DiGraph([(1, 2)]), 3), "directed"),
        ("find_cliques", (random_graph(0),), None),
        ("find_cliques", (random_graph(0), [1, 2]), "given nodes"),
        ("node_clique_number", (random_graph(0), None), None),
        ("node_clique_number", (random_graph(0), None, []), "cliques are given"),
    ],
)
def test_what_is_left_to_networkx(name, arguments, reason):
    answer = networkx_backend.can_run(name, arguments, {})
    if reason is None:
        assert answer is True
        return
    assert reason in answer
    parameters = networkx_backend._PARAMETERS[name]
    by_name = dict(zip(parameters[1:], arguments[1:]))
    assert networkx_backend.can_run(name, arguments[:1], by_name) == answer


def test_small_tasks_should_not_run():
    def should_run(name, *arguments):
        return networkx_backend.should_run(name, arguments, {}) is True

    large = random_graph(1, nodes=300, share=0.1)
    assert not should_run("find_cliques", nx.complete_graph(8))
    assert not should_run("find_cliques", nx.path_graph(200))
    assert should_run("find_cliques", large)
    assert should_run("find_cliques", nx.path_graph(5000))
    assert not should_run("node_clique_number", large, 7)
    assert not should_run("node_clique_number", large, [7, 8])
    assert should_run("node_clique_number", large, list(large))


def test_changes_of_a_graph_are_seen():
    def sizes(of):
        return sorted(map(len, nx.find_cliques(of, **OURS)))

    graph = nx.complete_graph(6)
    view = graph.subgraph(range(5))
    assert (sizes(graph), sizes(view)) == ([6], [5])
    graph.remove_edge(0, 1)
    assert (sizes(graph), sizes(view)) == ([5, 5], [4, 4])
    graph.add_node("alone")
    assert sizes(graph) == [1, 5, 5]


@pytest.mark.parametrize("copied", [copy.deepcopy, lambda graph: pickle.loads(pickle.dumps(graph))])
def test_a_graph_that_was_searched_can_be_copied(copied):
    graph = nx.relabel_nodes(random_graph(2), str)
    before = list(nx.find_cliques(graph, **OURS))
    assert list(nx.find_cliques(copied(graph), **OURS)) == before


def test_converted_graphs_are_taken_and_given_back():
    for kind in nx.Graph, nx.MultiGraph, nx.DiGraph:
        graph = graph_of((1, "a"), ("a", 3), (3, 1), (3, 3), nodes=["alone"], kind=kind)
        converted = networkx_backend.convert_from_nx(graph)
        back = networkx_backend.convert_to_nx(converted)
        assert type(back) is kind
        assert list(back) == list(graph)
        assert set(map(frozenset, back.edges())) == set(map(frozenset, graph.edges()))
    converted = networkx_backend.convert_from_nx(nx.complete_graph(5))
    assert list(communities(converted, 4)) == [frozenset(range(5))]
    with pytest.raises(NotImplementedError, match="k is 2"):
        networkx_backend.k_clique_communities(converted, 2)


def test_thousands_of_parts_take_no_more_than_their_cliques():
    graph = nx.Graph((2 * i, 2 * i + 1) for i in range(50_000))
    start = time.perf_counter()
    assert sum(1 for _ in nx.find_cliques(graph, **OURS)) == 50_000
    assert time.perf_counter() - start < 10


def run_python(*arguments, **variables):
    path = os.pathsep.join([HERE, os.environ.get("PYTHONPATH", "")])
    run = subprocess.run(
        [sys.executable, *arguments],
        env={**os.environ, "PYTHONPATH": path, **variables},
        cwd=os.path.dirname(os.path.abspath(sys.executable)),
        capture_output=True,
        text=True,
    )
    assert run.returncode == 0, run.stdout + run.stderr
    return run.stdout


def test_networkxs_own_tests_pass():
    pytest.importorskip("scipy")  # networkx compares with it
    suites = "networkx.algorithms.community", "networkx.algorithms.tests.test_clique"
    out = run_python(
        *["-m", "pytest", "-q", "-p", "no:cacheprovider", "-p", "count_dispatched"],
        *["--pyargs", *suites],
        NETWORKX_TEST_BACKEND="vorlane",
        NETWORKX_FALLBACK_TO_NX="True",
    )
    calls = dict(re.findall(r"(\w+)=(\d+)", out[out.index("dispatched:") :]))
    assert int(calls["find_cliques"]) >= 20, out
    assert int(calls["k_clique_communities"]) >= 5, out
    assert int(calls["node_clique_number"]) >= 5, out


CALLER = """
import count_dispatched
import networkx as nx
count_dispatched.pytest_configure()
graph = nx.gnp_random_graph(200, 0.2, seed=1)
{call}
assert dict(count_dispatched._calls) == {calls}, count_dispatched._calls
"""


@pytest.mark.parametrize(
    "package, call, calls",
    [
        ("networkx", "nx.number_of_cliques(graph)", {"find_cliques": 1}),
        ("networkx", "list(nx.community.k_clique_communities(graph, 2))", {"find_cliques": 1}),
        (
            "cdlib",
            "from cdlib import algorithms; assert algorithms.kclique(graph, k=4).communities",
            {"k_clique_communities": 1},
        ),
    ],
)
def test_code_that_knows_nothing_of_it_uses_it(package, call, calls):
    pytest.importorskip(package)
    variables = ("NETWORKX_BACKEND_PRIORITY", "NETWORKX_AUTOMATIC_BACKENDS")  # now, in 3.2
    script = CALLER.format(call=call, calls=calls)
    run_python("-c", script, **dict.fromkeys(variables, "vorlane"))


def test_importing_networkx_loads_nothing_of_it():
    run_python("-c", "import sys, networkx; assert 'vorlane' not in sys.modules")
