#!/usr/bin/env python3
"""Has other programs read what Vorlane exports, and compares it with the files of the results.

    read_exports.py PROGRAM READERS

READERS is where tests/readers/install has put them; their Python runs this.
"""

import json
import random
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import igraph
import networkx
import pandas
import polars
from ndex2.cx2 import RawCX2NetworkFactory

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
SCHEMAS = ROOT / "docs" / "schemas"
PROGRAM = Path(sys.argv[1]).resolve()
READERS = Path(sys.argv[2]).resolve()

NAMES = ["a&b", "<tag>", "\"quoted\"", "it's", "Zo\u00eb", "\u6c34", "x]]>y", "semi;colon", "a,b", "\\back"]


def random_links(seed):
    """Overlapping groups of nodes with odd names, and some links beside them."""
    chance = random.Random(seed)
    names = NAMES + [f"v{i}" for i in range(30)]
    links = {}
    for _ in range(12):
        group = chance.sample(names, chance.randint(3, 7))
        for i, a in enumerate(group):
            for b in group[i + 1:]:
                links[(a, b)] = chance.choice([0.5, 1.25, 3])
    for _ in range(20):
        a, b = chance.sample(names, 2)
        links[(a, b)] = 1
    # A link and its opposite are two in a directed network, and one with both weights in others.
    return {pair: weight for pair, weight in links.items() if pair[::-1] not in links or pair < pair[::-1]}


KINDS = {
    "undirected": ([], None),
    "weighted": (["-w", "0.7"], "weight"),
    "directed": (["-D"], None),
    "intensity": (["-I", "0.9"], "weight"),
    "approximate": (["-t", "0.000000001"], None),
}


class Run:
    """The results of one kind of run, as its own files tell them, and all exports."""

    def __init__(self, folder, kind):
        switches, self.weighted = KINDS[kind]
        self.kind = kind
        self.directed = kind == "directed"
        self.links = random_links(kind)
        if kind == "approximate":  # nodes with so many links that no time is enough
            chance = random.Random(1)
            self.links = {(f"v{i}", f"v{j}"): 1 for i in range(160) for j in range(i) if chance.random() < 0.5}
        if kind == "weighted":
            self.links = {pair: weight for pair, weight in self.links.items() if weight > 0.7}
        net = folder / f"{kind}.txt"
        net.write_text("".join(f"{a} {b} {weight}\n" for (a, b), weight in self.links.items()))
        out = folder / kind
        call(PROGRAM, "-i", net, "-o", out, *switches)
        (self.directory,) = [path for path in folder.glob(f"{kind}*") if path.is_dir()]
        call(PROGRAM, "export", self.directory, "-o", folder / f"{kind}-x", "--format",
             "gexf,graphml,cx2,csv,csv-wide,tables,json,jsonl,cdlib")
        self.file = lambda ending: folder / f"{kind}-x.{ending}"
        self.communities = {}  # (k, number) -> names
        self.approximate = set()
        for level in self.directory.glob("k=*"):
            (members,) = [path for path in level.glob("*communities") if "graph_of" not in path.name]
            for line in members.read_text().splitlines():
                found = re.fullmatch(r"(-?)(\d+):((?: \S+)+) *", line)
                if found:
                    place = int(level.name[2:]), int(found[2])
                    self.communities[place] = set(found[3].split())
                    if found[1]:
                        self.approximate.add(place)
        self.ks = sorted({k for k, _ in self.communities})

    def of_nodes(self):
        """name -> {k: [numbers]}"""
        found = {}
        for (k, number), names in sorted(self.communities.items()):
            for name in names:
                found.setdefault(name, {}).setdefault(k, []).append(number)
        return found


def call(*words, folder=None):
    done = subprocess.run([str(word) for word in words], capture_output=True, check=False, cwd=folder)
    if done.returncode != 0:
        raise AssertionError(f"{words}: {done.stdout.decode()} {done.stderr.decode()}")
    return done.stdout.decode()


def numbers(text, items=r"(\d+)"):
    return [int(number) for number in re.findall(items, text)]


class Readers(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.runs = [Run(Path(cls.folder.name), kind) for kind in KINDS]
        assert all(run.communities for run in cls.runs)
        assert cls.runs[-1].approximate

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def each_run(self):
        for run in self.runs:
            with self.subTest(run.kind):
                yield run

    def compare_nodes(self, run, nodes, communities_of):
        """`nodes`: (name, attributes); `communities_of(text, k)` yields numbers."""
        found = {}
        for name, attributes in nodes:
            for k in run.ks:
                here = communities_of(attributes.get(f"communities_k{k}") or "", k)
                if here:
                    found.setdefault(name, {})[k] = here
                    single = attributes[f"community_k{k}"]
                    self.assertEqual(str(single), "overlap" if len(here) > 1 else str(here[0]))
                    self.assertEqual(int(attributes[f"memberships_k{k}"]), len(here))
                    approximate = sum((k, number) in run.approximate for number in here)
                    said = attributes.get(f"approximate_k{k}")
                    self.assertEqual(0 if said is None or said != said else int(said), approximate)
        self.assertEqual(found, run.of_nodes())

    def compare_links(self, run, links):
        """`links`: (from, to, weight); an undirected one may stand in either order."""
        def normal(a, b):
            return (a, b) if run.directed else tuple(sorted((a, b)))
        expected = {normal(*pair): (weight if run.weighted else 1) for pair, weight in run.links.items()}
        self.assertEqual({normal(a, b): weight for a, b, weight in links}, expected)

    def test_networkx(self):
        for run in self.each_run():
            graph = networkx.read_gexf(run.file("gexf"))
            self.assertEqual(graph.is_directed(), run.directed)
            nodes = dict(graph.nodes(data=True))
            self.compare_nodes(run, [(data["label"], data) for data in nodes.values()],
                               lambda text, k: numbers(text, rf"k{k}c(\d+)"))
            self.compare_links(run, [(nodes[a]["label"], nodes[b]["label"], data.get("weight", 1))
                                     for a, b, data in graph.edges(data=True)])

            graph = networkx.read_graphml(run.file("graphml"))
            self.assertEqual(graph.is_directed(), run.directed)
            nodes = dict(graph.nodes(data=True))
            self.compare_nodes(run, [(data["name"], data) for data in nodes.values()],
                               lambda text, k: numbers(text))
            self.compare_links(run, [(nodes[a]["name"], nodes[b]["name"], data.get("weight", 1))
                                     for a, b, data in graph.edges(data=True)])

    def test_igraph(self):
        for run in self.each_run():
            graph = igraph.Graph.Read_GraphML(str(run.file("graphml")))
            self.assertEqual(graph.is_directed(), run.directed)
            self.compare_nodes(run, [(vertex["name"], vertex.attributes()) for vertex in graph.vs],
                               lambda text, k: numbers(text))
            names = graph.vs["name"]
            self.compare_links(run, [(names[edge.source], names[edge.target], edge.attributes().get("weight", 1))
                                     for edge in graph.es])

    def test_igraph_of_r(self):
        for run in self.each_run():
            lines = call("Rscript", HERE / "read_graphml.R", run.file("graphml")).splitlines()
            self.assertEqual(lines[0].split("\t")[1], "TRUE" if run.directed else "FALSE")
            found = {}
            for line in lines[1:]:
                name, attribute, of, _ = line.split("\t")
                found.setdefault(name, {})[int(attribute.removeprefix("communities_k"))] = numbers(of)
            self.assertEqual(found, run.of_nodes())

    def test_graphology(self):
        files = [run.file("gexf") for run in self.runs]
        graphs = call("node", READERS / "read_gexf.mjs", *files).splitlines()
        for run, text in zip(self.each_run(), graphs):
            graph = json.loads(text)
            found = {}
            for node in graph["nodes"]:
                for k in run.ks:
                    if here := node.get(f"communities_k{k}"):
                        items = here if isinstance(here, str) else ",".join(here)
                        found.setdefault(node["label"], {})[k] = numbers(items, rf"k{k}c(\d+)")
            self.assertEqual(found, run.of_nodes())
            self.assertTrue(all(edge[3] == run.directed for edge in graph["edges"]))
            self.compare_links(run, [edge[:3] for edge in graph["edges"]])
            self.assertTrue(all({"x", "y", "color", "size"} <= node.keys() for node in graph["nodes"]))

    def test_gephi(self):
        files = [run.file("gexf") for run in self.runs]
        says = call("java", "-Djava.awt.headless=true", "-cp", READERS / "gephi" / "*",
                    HERE / "gephi" / "ReadGexf.java", *files)
        for run, text in zip(self.each_run(), says.split("end\n")):
            lines = [line.split("\t") for line in text.splitlines()]
            found = {}
            for name, attribute, of in (line[1:] for line in lines if line[0] == "node"):
                k = int(attribute.removeprefix("communities_k"))
                found.setdefault(name, {})[k] = numbers(of, rf"k{k}c(\d+)")
            self.assertEqual(found, run.of_nodes())
            edges = [line[1:] for line in lines if line[0] == "edge"]
            self.assertTrue(all(edge[3] == str(run.directed).lower() for edge in edges))
            self.compare_links(run, [(a, b, float(weight)) for a, b, weight, _ in edges])

    def test_ndex(self):
        for run in self.each_run():
            network = RawCX2NetworkFactory().get_cx2network(str(run.file("cx2")))
            nodes = network.get_nodes()
            found = {}
            for node in nodes.values():
                for k in run.ks:
                    if here := node["v"].get(f"communities_k{k}"):
                        found.setdefault(node["v"]["name"], {})[k] = here
            self.assertEqual(found, run.of_nodes())
            names = {number: node["v"]["name"] for number, node in nodes.items()}
            self.compare_links(run, [(names[edge["s"]], names[edge["t"]], edge["v"].get("weight", 1))
                                     for edge in network.get_edges().values()])
            self.assertTrue(network.get_node_bypasses())

    def test_tables(self):
        for run in self.each_run():
            for table in (pandas.read_csv(run.file("csv"), keep_default_na=False).itertuples(index=False),
                          polars.read_csv(run.file("csv")).iter_rows()):
                found = {}
                approximate = set()
                for k, number, name, exact in table:
                    found.setdefault((k, number), set()).add(name)
                    if not exact:
                        approximate.add((k, number))
                self.assertEqual(found, run.communities)
                self.assertEqual(approximate, run.approximate)
            says = call("Rscript", "-e", "of <- read.csv(commandArgs(TRUE)); cat(nrow(of), "
                        "nrow(unique(of[c('k', 'community')])), sum(of$exact))", run.file("csv"))
            members = {place: len(names) for place, names in run.communities.items()}
            self.assertEqual(says, f"{sum(members.values())} {len(members)} " + str(
                sum(size for place, size in members.items() if place not in run.approximate)))
            wide = pandas.read_csv(run.file("wide.csv"), dtype=str, keep_default_na=False)
            found = {}
            for row in wide.to_dict("records"):
                for k in run.ks:
                    if row[f"k{k}"]:
                        found.setdefault(row["node"], {})[k] = numbers(row[f"k{k}"])
            self.assertEqual(found, run.of_nodes())
            nodes = pandas.read_csv(run.file("nodes.csv"), dtype=str).set_index("Id")["Label"]
            edges = pandas.read_csv(run.file("edges.csv"), dtype={"Source": str, "Target": str})
            self.assertEqual(set(edges["Type"]), {"Directed" if run.directed else "Undirected"})
            self.compare_links(run, [(nodes[edge.Source], nodes[edge.Target], edge.Weight)
                                     for edge in edges.itertuples()])

    def test_json(self):
        for run in self.each_run():
            call("node", READERS / "validate.mjs", SCHEMAS / "results.schema.json", run.file("json"))
            results = json.loads(run.file("json").read_text())
            names = results["nodes"]
            found = {}
            approximate = set()
            for level in results["levels"]:
                for number, members in enumerate(level["communities"]):
                    found[level["k"], number] = {names[node] for node in members}
                    if number >= level["exact"]:
                        approximate.add((level["k"], number))
                for first, second, shared in level["overlaps"]:
                    both = found[level["k"], first] & found[level["k"], second]
                    self.assertEqual(len(both), shared)
                for k_clique in level.get("k_cliques", []):
                    self.assertEqual(len(k_clique), level["k"])
                for number, cliques in enumerate(level.get("cliques", [])):
                    members = {names[node] for clique in cliques for node in results["cliques"][clique]}
                    self.assertEqual(members, found[level["k"], number])
            self.assertEqual(found, run.communities)
            self.assertEqual(approximate, run.approximate)
            self.compare_links(run, [(names[link[0]], names[link[1]], link[2] if len(link) > 2 else 1)
                                     for link in results["links"]])

            lines = [json.loads(line) for line in run.file("jsonl").read_text().splitlines()]
            self.assertEqual({(line["k"], line["community"]): set(line["nodes"]) for line in lines}, run.communities)
            for k in run.ks:
                ending = f"k{k}.cdlib.json" if len(run.ks) > 1 else "cdlib.json"
                of_k = json.loads(run.file(ending).read_text())
                self.assertEqual([set(names) for names in of_k["communities"]],
                                 [names for (at, _), names in sorted(run.communities.items()) if at == k])

    def test_answers(self):
        for run in self.each_run():
            (k, number), names = next(iter(run.communities.items()))
            questions = {
                "summary": [["summary", run.directory]],
                "which-k": [["which-k", run.directory]],
                "tree": [["tree", run.directory]],
                "diff": [["diff", run.directory, self.runs[0].directory]],
                "query": [["query", run.directory, *names],
                          ["query", run.directory, "--community", f"{k}:{number}"],
                          ["query", run.directory, "--overlap", f"{k}:{number}:{number}"]],
            }
            for word, calls in questions.items():
                for i, words in enumerate(calls):
                    answer = Path(self.folder.name) / f"{run.kind}-{word}-{i}.jsonl"
                    answer.write_text(call(PROGRAM, *words, "--json"))
                    call("node", READERS / "validate.mjs", SCHEMAS / f"{word}.schema.json", answer)


    def test_tutorial(self):
        text = (ROOT / "docs" / "tutorial.md").read_text()
        folder = Path(self.folder.name) / "tutorial"
        folder.mkdir()
        call(PROGRAM, "-i", ROOT / "examples" / "choir.csv", "--blanks", "_", "-o", folder / "groups")
        call(PROGRAM, "export", "groups", "--format", "gexf", folder=folder)
        call(PROGRAM, "export", "groups", "--format", "graphml", "--k", "4", folder=folder)
        for language, reader, figure in (("r", "Rscript", "choir.pdf"), ("python", sys.executable, "choir.png")):
            code, says = re.search(rf"```{language}\n(.*?)```\n\nprints .*?`(.*?)`", text, re.DOTALL).groups()
            script = folder / f"figure.{language}"
            script.write_text(code)
            self.assertEqual(call(reader, script, folder=folder).removeprefix("[1] ").strip(), says)
            self.assertGreater((folder / figure).stat().st_size, 2000)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
