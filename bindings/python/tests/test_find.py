"""Every kind of input leads to the files that the program writes for the same links."""

from __future__ import annotations

import gzip
from pathlib import Path
from typing import Any, Callable

import numpy as np
import pytest
from conftest import Sample, contents

import vorlane as vl


def columns(sample: Sample) -> tuple[list[object], list[object], list[float]]:
    return tuple(map(list, zip(*sample.links)))  # type: ignore[return-value]


def plain_file(sample: Sample, folder: Path) -> object:
    return sample.write(folder / "plain.txt")


def packed_file(sample: Sample, folder: Path) -> object:
    path = folder / "packed.csv.gz"
    lines = "".join(f"{a},{b},{w}\n" for a, b, w in sample.links)
    path.write_bytes(gzip.compress(("from,to,weight\n" + lines).encode()))
    return str(path)


def pairs(sample: Sample, folder: Path) -> object:
    return iter(sample.links)


def lists(sample: Sample, folder: Path) -> object:
    return columns(sample)


def arrays(sample: Sample, folder: Path) -> object:
    source, target, weight = columns(sample)
    return np.array(source), np.array(target), np.array(weight)


def odd_arrays(sample: Sample, folder: Path) -> object:
    source, target, weight = arrays(sample, folder)  # type: ignore[misc]
    if source.dtype.kind == "U":
        pytest.skip("names")
    spread = np.zeros((len(source), 3), ">i2")
    spread[:, 1], spread[:, 2] = source, target
    return spread[:, 1], spread[:, 2], weight.astype(">f4")[::-1][::-1]


def networkx_graph(sample: Sample, folder: Path) -> object:
    nx = pytest.importorskip("networkx")
    graph = nx.DiGraph() if sample.options.get("directed") else nx.Graph()
    graph.add_weighted_edges_from(sample.links)
    graph.add_node("alone")
    graph.add_edge(*sample.links[0][:1] * 2, weight=9.0)
    return graph


def networkx_multigraph(sample: Sample, folder: Path) -> object:
    nx = pytest.importorskip("networkx")
    graph = nx.MultiDiGraph() if sample.options.get("directed") else nx.MultiGraph()
    for a, b, weight in sample.links:
        graph.add_edge(a, b, weight=weight - 0.125)
        graph.add_edge(a, b, weight=0.125)
    return graph


def igraph_graph(sample: Sample, folder: Path) -> object:
    igraph = pytest.importorskip("igraph")
    links = [(str(a), str(b), w) for a, b, w in sample.links]
    return igraph.Graph.TupleList(
        links, directed=bool(sample.options.get("directed")), edge_attrs=["weight"]
    )


def rustworkx_graph(sample: Sample, folder: Path) -> object:
    rustworkx = pytest.importorskip("rustworkx")
    if sample.name == "choir":
        pytest.skip("names")
    kind = rustworkx.PyDiGraph if sample.options.get("directed") else rustworkx.PyGraph
    graph = kind()
    graph.extend_from_weighted_edge_list([(int(a), int(b), w) for a, b, w in sample.links])  # type: ignore[call-overload]
    return graph


def networkit_graph(sample: Sample, folder: Path) -> object:
    networkit = pytest.importorskip("networkit")
    if sample.name == "choir":
        pytest.skip("names")
    nodes = 1 + max(max(int(a), int(b)) for a, b, _ in sample.links)  # type: ignore[call-overload]
    graph = networkit.Graph(nodes, weighted=True, directed=bool(sample.options.get("directed")))
    for a, b, weight in sample.links:
        graph.addEdge(a, b, weight)
    return graph


def sparse_matrix(sample: Sample, folder: Path) -> object:
    sparse = pytest.importorskip("scipy.sparse")
    if sample.name == "choir":
        pytest.skip("names")
    source, target, weight = columns(sample)
    size = 1 + max(source + target)  # type: ignore[type-var, operator]
    matrix = sparse.coo_array((weight, (source, target)), shape=(size, size))
    return matrix if sample.options.get("directed") else (matrix + matrix.T).tocsc()


def pandas_frame(sample: Sample, folder: Path) -> object:
    pd = pytest.importorskip("pandas")
    source, target, weight = columns(sample)
    return pd.DataFrame({"weight": weight, "To": target, "From": source}, index=weight)


def polars_frame(sample: Sample, folder: Path) -> object:
    pl = pytest.importorskip("polars")
    source, target, weight = columns(sample)
    return pl.DataFrame({"a": source, "b": target, "c": weight}).lazy()


def arrow_table(sample: Sample, folder: Path) -> object:
    pa = pytest.importorskip("pyarrow")
    source, target, weight = columns(sample)
    return pa.table({"source": source, "target": target, "weight": weight})


def duckdb_relation(sample: Sample, folder: Path) -> object:
    duckdb = pytest.importorskip("duckdb")
    links = arrow_table(sample, folder)  # noqa: F841, the query reads it
    return duckdb.sql("select source as u, target as v, weight as w from links")


KINDS = [
    plain_file,
    packed_file,
    pairs,
    lists,
    arrays,
    odd_arrays,
    networkx_graph,
    networkx_multigraph,
    igraph_graph,
    rustworkx_graph,
    networkit_graph,
    sparse_matrix,
    pandas_frame,
    polars_frame,
    arrow_table,
    duckdb_relation,
]


def links_in(data: object, sample: Sample) -> list[tuple[object, object, float]]:
    """The links as a graph or matrix lists them: their ends may have changed places, and the order
    of communities hangs on that."""
    graph: Any = data
    if hasattr(graph, "edge_list"):
        return list(graph.weighted_edge_list())
    if hasattr(graph, "iterEdgesWeights"):
        return list(graph.iterEdgesWeights())
    if hasattr(graph, "vs"):
        names = graph.vs["name"]
        return [(names[e.source], names[e.target], e["weight"]) for e in graph.es]
    if hasattr(graph, "adj"):
        return list(graph.edges(data="weight"))
    return sample.links


@pytest.mark.parametrize("kind", KINDS, ids=lambda kind: kind.__name__)
def test_every_kind_of_input_gives_the_files_of_the_program(
    kind: Callable[[Sample, Path], object], sample: Sample, tmp_path: Path
) -> None:
    data = kind(sample, tmp_path)
    told = sample._replace(links=links_in(data, sample)).told(tmp_path)
    r = vl.find(data, save=tmp_path / "at once", **sample.options)
    assert contents(tmp_path / "at once") == told
    r.save(tmp_path / "saved")
    assert contents(tmp_path / "saved") == told


def test_nodes_come_back_as_they_were_given() -> None:
    one, other = object(), ("a", 1)
    r = vl.find([(one, other), (other, 7), (7, one), ("7", one), ("7", other)])
    assert r[3][0] == {one, other, 7, "7"}  # nodes of one text are two
    assert set(r.nodes) == {one, other, 7, "7"}
    large = 2**60
    r = vl.find((np.array([large, 0, -5]), np.array([0, -5, large])))
    assert r[3][0] == {large, 0, -5}
    huge = np.array([2**64 - 1, 1, 2], np.uint64)
    assert vl.find((huge, np.roll(huge, 1)))[3][0] == {2**64 - 1, 1, 2}
    floats = vl.find((np.array([0.5, 1.0, 2.0]), np.array([1.0, 2.0, 0.5])))
    assert floats[3][0] == {0.5, 1.0, 2.0}


def test_columns_of_frames_and_files_can_be_named(tmp_path: Path) -> None:
    pd = pytest.importorskip("pandas")
    frame = pd.DataFrame({"x": [0, 0, 0], "u": [1, 2, 3], "p": [2, 3, 1], "s": [1.0, 2.0, 3.0]})
    r = vl.find(frame, source="u", target="p", weight="s", min_weight=0.5)
    assert r[3][0] == {1, 2, 3}
    frame.to_csv(tmp_path / "table.dat", index=False)
    r = vl.find(tmp_path / "table.dat", format="csv", columns=["u", "p", 4], min_weight=0.5)
    assert r[3][0] == {"1", "2", "3"}


def test_a_graph_that_is_directed_is_searched_so_unless_told_otherwise() -> None:
    nx = pytest.importorskip("networkx")
    ring = nx.DiGraph([(1, 2), (2, 3), (3, 1)])
    assert vl.find(ring).method == "directed"
    assert vl.find(ring).ks == []
    assert vl.find(ring, directed=False)[3][0] == {1, 2, 3}


def test_networks_without_communities() -> None:
    nx = pytest.importorskip("networkx")
    for data in ([], nx.Graph(), nx.path_graph(5), np.empty((0, 2), int), ([], []), [(1, 1)]):
        r = vl.find(data)
        assert (r.ks, r.cliques, r.tree(), r.summary()) == ([], [], [], [])
        assert r.which_k() == (None, "There are no communities.")
        assert "no communities" in repr(r) and "no communities" in r._repr_html_()
