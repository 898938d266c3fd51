"""Bad input is told with its place; whatever interrupts a run leaves nothing broken."""

from __future__ import annotations

import os
import random
import signal
import subprocess
import sys
import textwrap
import threading
import time
from pathlib import Path
from typing import Any, Callable

import numpy as np
import pytest
from conftest import random_links

import vorlane as vl


def graph_of(*edges: tuple[Any, ...], **kind: Any) -> Any:
    nx = pytest.importorskip("networkx")
    graph = nx.Graph(**kind)
    graph.add_edges_from(edges)
    return graph


def matrix_of(rows: list[list[float]]) -> Any:
    return pytest.importorskip("scipy.sparse").csr_array(np.array(rows))


def frame_of(**columns: list[Any]) -> Any:
    return pytest.importorskip("pandas").DataFrame(columns)


def changing_graph() -> Any:
    class Node:
        """Links others when its links are looked up."""

        looks = 0

        def __hash__(self) -> int:
            Node.looks += 1
            if Node.looks == looks_of_making + 20:
                graph.add_edge(object(), object())
            return id(self)

    looks_of_making = 10**9
    graph = graph_of(*((Node(), Node()) for _ in range(9)))
    looks_of_making = Node.looks
    return graph


nan, inf = float("nan"), float("inf")
weighted = {"min_weight": 0.5}

BAD: list[tuple[Callable[[], Any], dict[str, Any], str]] = [
    (lambda: ([1, 2], [2, 3], [1.0, nan]), weighted, "weight of link 1 is nan"),
    (lambda: ([1, 2], [2, 3], [inf, 1.0]), weighted, "weight of link 0 is inf"),
    (lambda: ([1, 2], [2, 3], [1.0, "much"]), weighted, "weight of link 1 is 'much', no number"),
    (lambda: ([1, 2], [2, 3], [1.0]), weighted, "1 weights for 2 links"),
    (lambda: ([1, 2], [2, 3]), weighted, r"give \(sources, targets, weights\)"),
    (lambda: ([1, 2], [2]), {}, "differ in length: 2 and 1"),
    (lambda: ([1, None], [2, 3]), {}, "node in link 1 is missing"),
    (lambda: (np.array([1.0, nan]), np.array([2.0, 3.0])), {}, "node in link 1 is missing"),
    (lambda: ([1, 2], [2, [3]]), {}, "node in link 1 is .3., which can't be a node"),
    (lambda: [(1, 2), (3,)], {}, r"Link 1 is \(3,\): it must be a pair"),
    (lambda: [(1, 2), "ab"], {}, "Link 1 is 'ab'"),
    (lambda: [(1, 2, 1.0), (2, 3)], weighted, "Link 1 .* has no weight"),
    (lambda: np.ones((4, 4)), {}, r"two or three columns, not the shape \(4, 4\).*csr_array"),
    (lambda: (np.ones((2, 2)), np.ones((2, 2))), {}, r"one column, not an array of shape \(2, 2\)"),
    (lambda: 7, {}, "builtins.int can't be read as a network"),
    (lambda: {1: [2]}, {}, "builtins.dict can't be read as a network"),
    (lambda: graph_of((1, 2, {"weight": 1}), (2, 3)), weighted, r"edge \(2, 3\) has no attribute 'wei"),
    (lambda: graph_of(("a", "b", {"weight": nan})), weighted, r"edge \('a', 'b'\) is nan"),
    (lambda: graph_of((1, 2, {"weight": "x"})), weighted, r"edge \(1, 2\) is 'x', no number"),
    (changing_graph, {}, "graph changed while it was read"),
    (lambda: matrix_of([[0, 1, 0], [1, 0, 1]]), {}, r"square; this one has the shape \(2, 3\)"),
    (lambda: matrix_of([[0, 2.0], [3.0, 0]]), weighted, r"Entry \(0, 1\) is 2.0 and entry \(1, 0\) is 3"),
    (lambda: frame_of(source=[1, 2], target=[2, None]), {}, "node in row 1 is missing"),
    (lambda: frame_of(only=[1, 2]), {}, r"no column for the target; there are \['only'\]"),
    (lambda: frame_of(a=[1], b=[2]), {"source": "z"}, r"no column 'z' for the source; there are"),
    (lambda: "no such file", {}, "no such file"),
]


@pytest.mark.parametrize(("data", "options", "words"), BAD, ids=lambda value: str(value)[:40])
def test_bad_input_is_told_with_its_place(
    data: Callable[[], Any], options: dict[str, Any], words: str
) -> None:
    with pytest.raises(vl.InputError, match=words):
        vl.find(data(), **options)


def test_the_place_in_a_file(tmp_path: Path) -> None:
    path = tmp_path / "links"
    path.write_text("a b 1\nb c x\n")
    with pytest.raises(vl.InputError) as failure:
        vl.find(path, min_weight=0.0)
    assert (failure.value.source, failure.value.line, failure.value.column) == (str(path), 2, 5)


def test_a_file_that_can_not_be_meant_so_is_told(tmp_path: Path) -> None:
    path = tmp_path / "links.txt"
    path.write_text("from,to\na,b\nb,c\nc,a\n")
    with pytest.raises(vl.InputError, match="links.txt"):
        vl.find(path)
    path.write_text("a, b\nb, c\nc, a\n")
    with pytest.warns(vl.InputWarning, match="links.txt, line 1: .*comma"):
        vl.find(path)


@pytest.mark.parametrize(
    ("options", "words"),
    [
        ({"k": 2}, "k must be 3 or more, not 2"),
        ({"intensity": nan}, "not a number"),
        ({"intensity": 1.0, "directed": True}, "undirected"),
        ({"intensity": 1.0, "time_limit": 1.0}, "time limit"),
        ({"time_limit": -1.0}, "above 0"),
        ({"jobs": -1}, "jobs must be 0 to 1024"),
        ({"format": "excel"}, "no format 'excel'"),
    ],
)
def test_options_that_do_not_go_together(options: dict[str, Any], words: str, tmp_path: Path) -> None:
    path = tmp_path / "links"
    path.write_text("a b 1\nb c 1\nc a 1\n")
    with pytest.raises(vl.ParameterError, match=words):
        vl.find(path, **options)


def test_directories_that_can_not_be_used(tmp_path: Path) -> None:
    r = vl.find([(1, 2), (2, 3), (3, 1)])
    (tmp_path / "full").mkdir()
    (tmp_path / "full" / "kept").write_text("mine")
    with pytest.raises(vl.OutputError):
        r.save(tmp_path / "full")
    with pytest.raises(vl.OutputError):
        vl.find([(1, 2)], save=tmp_path / "full")
    assert (tmp_path / "full" / "kept").read_text() == "mine"
    with pytest.raises(vl.InputError, match="no results directory"):
        vl.load(tmp_path / "full")
    with pytest.raises(vl.ParameterError, match="blanks inside"):
        vl.find([("a b", 2), (2, 3), (3, "a b")]).save(tmp_path / "blanks")
    r.save(tmp_path / "saved")
    with pytest.raises(vl.OutputError, match="not empty"):
        vl.load(tmp_path / "saved").save(tmp_path / "full")


def long_run() -> list[tuple[int, int, float]]:
    """Some seconds."""
    return random_links(500, 45000, 9)


def test_an_interrupt_is_raised_soon_and_the_next_run_is_right() -> None:
    """At random moments: while links are numbered, searched, joined, or nothing has begun."""
    links = np.array([(a, b) for a, b, _ in long_run()])
    small = random_links(60, 500, 3)
    expected = dict(vl.find(small))
    chance = random.Random(1)
    main = threading.main_thread().ident
    assert main is not None
    for _ in range(50):
        sent: list[float] = []

        def interrupt() -> None:
            sent.append(time.monotonic())
            signal.pthread_kill(main, signal.SIGINT)

        timer = threading.Timer(chance.uniform(0.0, 0.3), interrupt)
        with pytest.raises(KeyboardInterrupt):
            timer.start()
            vl.find(links, progress=False)
            timer.join()  # should it have been that fast
            time.sleep(0.1)
        assert time.monotonic() - sent[0] < 0.5
    assert dict(vl.find(small)) == expected


def test_a_stop_from_another_thread() -> None:
    control = vl.Control()
    seen: list[vl.Progress] = []

    def watch(progress: vl.Progress) -> None:
        seen.append(progress)
        if len(seen) == 3:
            assert control.report()
            control.stop()

    with pytest.raises(vl.Stopped):
        vl.find(long_run(), control=control, progress=watch)
    control.reset()
    assert vl.find([(1, 2), (2, 3), (3, 1)], control=control).ks == [3]


def test_what_a_watcher_raises_ends_the_run() -> None:
    def watch(_: vl.Progress) -> None:
        raise RuntimeError("enough")

    with pytest.raises(RuntimeError, match="enough"):
        vl.find(long_run(), progress=watch)


def test_a_memory_limit() -> None:
    with pytest.raises(vl.MemoryExceeded, match="limit of 1000000 bytes"):
        vl.find(long_run(), memory_limit=1_000_000)


def run_python(code: str, **environment: str) -> subprocess.CompletedProcess[str]:
    program = "import sys, os, threading, time\n" + textwrap.dedent(code)
    path = os.pathsep.join([str(Path(__file__).parent), os.environ.get("PYTHONPATH", "")])
    return subprocess.run(
        [sys.executable, "-c", program],
        env={**os.environ, "PYTHONPATH": path, **environment},
        capture_output=True,
        text=True,
        timeout=60,
    )


LEAVING = {
    "a daemon thread is at work when the interpreter ends": """
        threading.Thread(target=find, daemon=True).start()
        time.sleep(0.3)
    """,
    "sys.exit while a run goes on": """
        threading.Thread(target=find, daemon=True).start()
        time.sleep(0.1)
        sys.exit(0)
    """,
    "a fork while a run goes on": """
        thread = threading.Thread(target=find, daemon=True)
        thread.start()
        time.sleep(0.3)
        child = os.fork()
        if child == 0:
            assert vl.find([(1, 2), (2, 3), (3, 1)])[3][0] == {1, 2, 3}
            sys.exit(0)
        assert os.waitpid(child, 0)[1] == 0
        control.stop()
        thread.join()
    """,
    "views outlive all else": """
        kept = vl.find([(1, 2), (2, 3), (3, 1)])[3].members
        sys.modules.pop("vorlane")
        del vl
        assert kept.tolist() == [1, 2, 3]
    """,
}


@pytest.mark.parametrize("code", LEAVING.values(), ids=LEAVING.keys())
def test_leaving_is_no_crash_and_no_hang(code: str) -> None:
    begin = """
        import contextlib
        import vorlane as vl
        from test_trouble import long_run

        links, control = long_run(), vl.Control()

        def find():
            with contextlib.suppress(vl.Stopped):
                vl.find(links, control=control)
    """
    begun = time.monotonic()
    done = run_python(textwrap.dedent(begin) + textwrap.dedent(code))
    assert (done.returncode, done.stderr) == (0, "")
    assert time.monotonic() - begun < 30


def test_a_library_that_is_missing_or_foreign_is_told(tmp_path: Path) -> None:
    done = run_python("import vorlane", VORLANE_LIBRARY=str(tmp_path / "none.so"))
    assert "ImportError: The native library of vorlane can't be used" in done.stderr
    code = """
        import ctypes, vorlane._capi as capi
        capi.ABI_VERSION = 99
        sys.modules.pop("vorlane._library")
        import vorlane._library
    """
    done = run_python("import vorlane\n" + textwrap.dedent(code))
    assert "this package needs version 99: install" in done.stderr, done.stderr


def test_memory_is_given_back() -> None:
    resource = """
        from conftest import random_links
        import vorlane as vl
        from vorlane._control import _resident_bytes
        links = random_links(60, 500, 3)
        def work():
            r = vl.find(links)
            r[3].membership, r.tree(), r.summary(), r[3].arrow.__arrow_c_stream__(), list(r[4])
        for _ in range(100): work()
        before = _resident_bytes()
        for _ in range(1000): work()
        print(_resident_bytes() - before)
    """
    done = run_python(resource)
    assert done.returncode == 0, done.stderr
    assert int(done.stdout) < 5_000_000
