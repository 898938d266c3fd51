"""Runs in parts by other processes are those of one, and their troubles are told."""

from __future__ import annotations

import os
import pickle
import signal
import threading
import time
from concurrent.futures import Executor, Future, ProcessPoolExecutor
from multiprocessing import get_context
from pathlib import Path
from typing import Any, Callable, Iterator

import pytest
from conftest import Sample, contents, random_links

import vorlane as vl


@pytest.fixture(scope="module")
def pool() -> Iterator[Executor]:
    with ProcessPoolExecutor(2, mp_context=get_context("spawn")) as executor:
        yield executor


def same(a: vl.Results, b: vl.Results, small_cliques: bool = True) -> None:
    assert a.ks == b.ks and a.nodes == b.nodes
    if small_cliques:
        assert list(a.cliques) == list(b.cliques)
    for k in a.ks:
        assert list(a[k]) == list(b[k])
        assert a[k].overlaps.tolist() == b[k].overlaps.tolist()
        assert a.distributions(k) == b.distributions(k)


def test_processes_find_the_same(sample: Sample, pool: Executor, tmp_path: Path) -> None:
    here = vl.find(sample.links, **sample.options)
    there = vl.find(sample.links, **sample.options, executor=pool, parts=3, work=tmp_path)
    same(there, here, small_cliques=sample.name != "one k")  # here they are not even looked for
    del there
    assert list(tmp_path.iterdir()) == []  # the temporary folder goes with the results
    path, out = sample.write(tmp_path / "links.txt"), tmp_path / "out"
    vl.find(path, **sample.options, executor=pool, parts=3, save=out)
    assert contents(out) == sample.told(tmp_path)


def test_dask_finds_the_same(sample: Sample) -> None:
    distributed = pytest.importorskip("distributed")
    if sample.name not in ("choir", "intensity"):
        pytest.skip("one of each kind of node is enough")
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster:
        with distributed.Client(cluster) as client:
            found = vl.find(sample.links, **sample.options, executor=client, parts=4)
            same(found, vl.find(sample.links, **sample.options))


def test_what_is_found_stays_as_long_as_it_is_held(pool: Executor, tmp_path: Path) -> None:
    links = random_links(60, 500, 3)
    found = vl.find(links, executor=pool, parts=2, work=tmp_path)
    assert len(list(tmp_path.iterdir())) == 1
    found.save(tmp_path / "saved")
    here = vl.find(links)
    here.save(tmp_path / "here")
    assert contents(tmp_path / "saved") == contents(tmp_path / "here")
    same(vl.load(tmp_path / "saved"), vl.load(tmp_path / "here"))
    packed = pickle.dumps(found)
    del found
    same(pickle.loads(packed), here)


class Odd_executor:
    """Does at once what it is given, but does something else before that."""

    def __init__(self, before: Callable[[int], None]) -> None:
        self._before = before

    def submit(self, function: Any, *arguments: Any) -> Future[Any]:
        future: Future[Any] = Future()
        try:
            self._before(arguments[1])
            future.set_result(function(*arguments))
        except Exception as failure:
            future.set_exception(failure)
        return future


def test_a_failure_elsewhere_is_raised_here(tmp_path: Path) -> None:
    def fail(part: int) -> None:
        if part == 2:
            raise RuntimeError("the machine is on fire")

    with pytest.raises(RuntimeError, match="on fire"):
        vl.find(random_links(60, 500, 3), executor=Odd_executor(fail), parts=4, work=tmp_path)
    assert list(tmp_path.iterdir()) == []


def test_a_worker_that_is_killed_breaks_the_pool_and_no_more(tmp_path: Path) -> None:
    with ProcessPoolExecutor(2, mp_context=get_context("spawn")) as pool:
        victim = pool.submit(os.getpid).result()
        os.kill(victim, signal.SIGKILL)
        with pytest.raises(Exception, match="terminated|not usable"):
            vl.find(random_links(60, 500, 3), executor=pool, parts=4, work=tmp_path)
    assert list(tmp_path.iterdir()) == []


class Sleeping_executor:
    """Never does anything."""

    def submit(self, function: Any, *arguments: Any) -> Future[Any]:
        self.last: Future[Any] = Future()
        return self.last


def test_a_stop_ends_the_waiting(tmp_path: Path) -> None:
    control, executor = vl.Control(), Sleeping_executor()
    threading.Timer(0.3, control.stop).start()
    began = time.monotonic()
    with pytest.raises(vl.Stopped):
        vl.find([(1, 2), (2, 3), (3, 1)], executor=executor, control=control, work=tmp_path)
    assert executor.last.cancelled() and time.monotonic() - began < 10
    assert list(tmp_path.iterdir()) == []


@pytest.mark.parametrize(
    ("links", "options", "kind", "words"),
    [
        ([(1, 2), ("1", 2), (1, "1")], {}, vl.ParameterError, "called '1'"),
        ([("a b", "c"), ("c", "d"), ("d", "a b")], {}, vl.InputError, "blank"),
        ([(1, 2)], {"time_limit": 1.0}, vl.ParameterError, "time limit"),
        ([(1, 2)], {"memory_limit": 10**9}, vl.ParameterError, "memory_limit"),
        ([(1, 2)], {"jobs": 2}, vl.ParameterError, "jobs"),
        ([(1, 2)], {"parts": 0}, vl.ParameterError, "parts must be 1"),
    ],
)
def test_what_an_executor_can_not_do(
    links: Any, options: dict[str, Any], kind: type[Exception], words: str, pool: Executor
) -> None:
    with pytest.raises(kind, match=words):
        vl.find(links, executor=pool, **options)
