"""What is made of results agrees with what they are."""

from __future__ import annotations

import json
import pickle
import re
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from xml.etree import ElementTree

import numpy as np
import pytest
from conftest import Sample, contents, random_links

import vorlane as vl


@pytest.fixture
def found(sample: Sample) -> vl.Results:
    return vl.find(sample.links, **sample.options)


def test_levels_are_sequences_of_sets(sample: Sample, found: vl.Results, tmp_path: Path) -> None:
    told = sample.told(tmp_path)
    assert [f"k={k}" for k in found.ks] == sorted(
        {name.split("/")[0] for name in told if "/" in name}, key=lambda name: -int(name[2:])
    )
    for k, level in found.items():
        (name,) = (name for name in told if re.fullmatch(rf"k={k}/([a-z]+_)?communities", name))
        lines = [line.split(":")[1].split() for line in told[name] if line]
        assert [set(map(str, community)) for community in level] == list(map(set, lines))
        assert level[-1] == level[len(level) - 1] and level[:2] == list(level)[:2]
        with pytest.raises(IndexError):
            level[len(level)]
        assert level.sizes.tolist() == list(map(len, level))
        assert level.exact.all() and level.exact_count == len(level)
        for node, held in level.membership.items():
            assert all(node in level[i] for i in held)
        assert sum(map(len, level.membership.values())) == len(level.members)
        shared = {(i, j): len(level[i] & level[j]) for i in range(len(level)) for j in range(i)}
        assert {(j, i): n for i, j, n in level.overlaps.tolist()} == {
            pair: n for pair, n in shared.items() if n
        }
        if found.method != "intensity":
            cliques = found.cliques
            for community, own in zip(level, level.cliques):
                assert community == frozenset().union(*(cliques[i] for i in own))
        else:
            assert all(len(clique) == k for clique in level.k_cliques)


def test_questions(found: vl.Results) -> None:
    for level, summary in zip(found.values(), found.summary()):
        assert summary.k == level.k and summary.communities == len(level)
        assert summary.largest == level.sizes.max()
        assert summary.covered == len(level.membership)
        assert summary.overlaps == len(level.overlaps)
        distributions = found.distributions(level.k)
        assert distributions.size == Counter(level.sizes.tolist())
        assert sum(distributions.membership.values()) == len(found.nodes)
        for node in found.nodes[:9]:
            assert found.memberships(node).get(level.k, ()) == level.membership.get(node, ())
    for node in found.tree():
        if node.parent is not None and node.k - 1 in found.ks:
            assert found[node.k][node.community] <= found[node.k - 1][node.parent]
    if found.ks:
        assert found.which_k().k in found.ks
        assert "begin here" in found._repr_html_()
    with pytest.raises(vl.UnknownK, match="no communities at k = 99"):
        found[99]
    with pytest.raises(vl.ParameterError, match="'nobody' is no node"):
        found.memberships("nobody")


def test_pickles_and_directories_hold_the_same(
    found: vl.Results, sample: Sample, tmp_path: Path
) -> None:
    again = pickle.loads(pickle.dumps(found))
    assert dict(again) == dict(found) and again.nodes == found.nodes
    assert again.tree() == found.tree() and again.method == found.method
    found.save(tmp_path / "saved")
    if "k" not in sample.options:  # smaller cliques were not looked for
        again.save(tmp_path / "again")
        assert contents(tmp_path / "again") == contents(tmp_path / "saved")
    loaded = vl.load(tmp_path / "saved")
    assert loaded.finished and loaded.ks == found.ks
    assert loaded.nodes == list(map(str, found.nodes))
    for k in found.ks:
        assert [set(map(str, community)) for community in found[k]] == list(loaded[k])
    assert dict(pickle.loads(pickle.dumps(loaded))) == dict(loaded)
    loaded.save(tmp_path / "copy")
    assert contents(tmp_path / "copy") == contents(tmp_path / "saved")
    if found.ks:
        level = pickle.loads(pickle.dumps(found[3 if 3 in found else found.ks[0]]))
        assert level == found[level.k]


def test_frames_and_matrices(found: vl.Results) -> None:
    pytest.importorskip("pandas")
    pytest.importorskip("scipy")
    frame = found.to_frame()
    assert list(frame.columns) == ["k", "community", "node", "exact"]
    wide = found.to_frame("wide")
    assert list(wide.index) == (found.nodes if found.ks else [])
    for k, level in found.items():
        rows = frame[frame.k == k]
        for i, community in enumerate(level):
            assert set(rows[rows.community == i].node) == community
        for node, text in zip(wide.index, wide[f"k={k}"]):
            assert text == "|".join(map(str, level.membership.get(node, ())))
        matrix = level.matrix()
        assert matrix.shape == (len(level), len(found.nodes))
        for i, community in enumerate(level):
            assert {found.nodes[j] for j in matrix[[i]].indices} == community
    with pytest.raises(vl.ParameterError, match="'long' or 'wide', not 'tall'"):
        found.to_frame("tall")


def test_networkx_and_igraph(found: vl.Results, sample: Sample) -> None:
    nx = pytest.importorskip("networkx")
    igraph = pytest.importorskip("igraph")
    for k, level in found.items():
        graph = level.to_networkx()
        assert graph.is_directed() == bool(sample.options.get("directed"))
        assert set(graph) == set(found.nodes)
        for node, held in graph.nodes(data="communities"):
            assert held == level.membership.get(node, ())
        overlaps = level.graph
        assert overlaps.number_of_edges() == len(level.overlaps)
        assert all(overlaps.nodes[i]["size"] == len(c) for i, c in enumerate(level))
        mine = nx.Graph((a, b) for a, b, _ in sample.links)
        level.annotate(mine)
        level.annotate(mine, "own")
        assert nx.get_node_attributes(mine, f"communities_k{k}") == nx.get_node_attributes(mine, "own")
        assert all(mine.nodes[node]["own"] == held for node, held in level.membership.items())
        names = igraph.Graph.TupleList((str(a), str(b)) for a, b, _ in sample.links)
        by_name = vl.find(names, **{**sample.options, "intensity": None, "min_weight": None, "max_weight": None})
        if k in by_name:
            cover = by_name[k].to_igraph(names)
            assert [{names.vs[i]["name"] for i in c} for c in cover] == list(by_name[k])


def test_cdlib(sample: Sample, found: vl.Results) -> None:
    pytest.importorskip("cdlib")
    nx = pytest.importorskip("networkx")
    for level in found.values():
        clustering = level.to_cdlib(nx.Graph((a, b) for a, b, _ in sample.links))
        assert clustering.overlap
        assert set(map(frozenset, clustering.communities)) == set(level)
    r = vl.find([("\\a", "b"), ("b", "c"), ("c", "\\a")])
    with pytest.raises(vl.ParameterError, match="cdlib can't hold"):
        r[3].to_cdlib(nx.Graph())


def test_views_are_the_librarys_own_memory() -> None:
    r = vl.find(random_links(60, 500, 3))
    level = r[3]
    first, second = r[3].members, vl.level.Level(r, 3).members
    assert first.ctypes.data == second.ctypes.data
    assert not first.flags.writeable and not first.flags.owndata
    kept = level.members.tolist()
    members = level.members
    del r, level, first, second
    vl.find(random_links(60, 500, 4))
    assert members.tolist() == kept  # the view keeps what it shows


def test_arrow_takes_members_without_a_copy() -> None:
    pa = pytest.importorskip("pyarrow")
    pl = pytest.importorskip("polars")
    r = vl.find(random_links(60, 500, 3))
    table = pa.table(r[3].arrow)
    assert table.column_names == ["community", "exact", "members"]
    values = table["members"].chunk(0).values
    assert values.buffers()[1].address == r[3].members.ctypes.data
    rows = table["members"].to_pylist()
    frame = pl.DataFrame(r[3].arrow)
    assert frame["exact"].all() and frame["community"].to_list() == list(range(len(r[3])))
    expected = [set(c) for c in r[3]]
    del r
    assert [{v for v in row} for row in rows] == [set(row) for row in frame["members"].to_list()]
    assert len(rows) == len(expected)
    vl.find([(1, 2), (2, 3), (3, 1)])[3].arrow.__arrow_c_stream__()  # nobody takes it


def test_covers_are_compared_by_equal_nodes() -> None:
    a = vl.find([("x", "y"), ("y", "z"), ("z", "x"), (5, 6), (6, 7), (7, 5)])
    b = vl.find([("z", "y"), ("y", "x"), ("x", "z"), (5, 8), (8, 9), (9, 5)])
    same = vl.compare(a[3], a[3])
    assert (same.omega, same.nmi) == (1.0, 1.0)
    assert {change.fate for change in same.changes} == {"kept"}
    other = vl.compare(a[3], b[3])
    assert Counter(change.fate for change in other.changes) == {"kept": 1, "died": 1, "born": 1}
    assert 0 < other.omega < 1


def test_exports(tmp_path: Path) -> None:
    r = vl.find(random_links(40, 260, 1))
    r.export(tmp_path / "all.json")
    levels = json.loads((tmp_path / "all.json").read_text())["levels"]
    assert sorted(level["k"] for level in levels) == sorted(r.ks)
    with pytest.raises(vl.OutputError, match="all.json"):
        r.export(tmp_path / "all.json")
    r.export(tmp_path / "all.json", k=3, overwrite=True)
    with pytest.raises(vl.ParameterError, match="format 'gif'"):
        r.export(tmp_path / "picture.gif")
    with pytest.raises(vl.UnknownK):
        r.export(tmp_path / "x.json", k=77)


def test_reports_and_figures(found: vl.Results, tmp_path: Path) -> None:
    found.report(tmp_path / "page.html", title="<b>")
    assert "<title>&lt;b&gt;" in (tmp_path / "page.html").read_text()
    with pytest.raises(vl.OutputError, match="page.html"):
        found.report(tmp_path / "page.html")
    for which in ("tree", "graph", "distributions"):
        ElementTree.fromstring(found.figure(which, k=found.ks[0] if found.ks else None))
    assert ("data:image/svg+xml" in found._repr_html_()) == bool(found.ks)
    with pytest.raises(vl.ParameterError, match="not 'pie'"):
        found.figure("pie")
    with pytest.raises(vl.UnknownK):
        found.report(tmp_path / "other.html", k=99)


def test_a_time_limit_leaves_approximate_communities(tmp_path: Path) -> None:
    clique = np.array([(a, b) for a in range(24) for b in range(a)])
    missing = clique[clique.sum(axis=1) % 23 != 0]
    r = vl.find(np.concatenate([missing + 10, [[1, 2], [2, 3], [3, 1]]]), time_limit=1e-9)
    again = pickle.loads(pickle.dumps(r))
    assert dict(again) == dict(r)
    assert [level.exact_count for level in again.values()] == [l.exact_count for l in r.values()]
    r.save(tmp_path / "saved")
    loaded = vl.load(tmp_path / "saved")
    assert [level.exact_count for level in loaded.values()] == [l.exact_count for l in r.values()]


def test_several_runs_at_a_time() -> None:
    networks = [random_links(80, 900, seed) for seed in range(8)]
    alone = [dict(vl.find(links)) for links in networks]
    with ThreadPoolExecutor(4) as pool:
        assert list(pool.map(lambda links: dict(vl.find(links)), networks)) == alone


def test_jobs_find_the_same(sample: Sample, found: vl.Results) -> None:
    for jobs in (0, 3):
        other = vl.find(sample.links, **sample.options, jobs=jobs)
        assert other.ks == found.ks
        assert list(map(list, other.values())) == list(map(list, found.values()))


def test_cliques_are_those_of_networkx() -> None:
    nx = pytest.importorskip("networkx")
    graph = nx.gnp_random_graph(60, 0.3, seed=5)
    cliques = {frozenset(c) for c in nx.find_cliques(graph) if len(c) >= 3}
    assert set(vl.find(graph).cliques) == cliques
    for k in (3, 4):
        theirs = set(nx.community.k_clique_communities(graph, k))
        assert set(vl.find(graph, k=k)[k]) == theirs
