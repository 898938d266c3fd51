#!/usr/bin/env python3
"""Finds communities by Spark, loses executors and drivers, and compares with runs of the program.

    spark_test.py PROGRAM JAR SPARK_HOME
"""

import filecmp
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROGRAM, JAR, SPARK_HOME = (Path(word).resolve() for word in sys.argv[1:4])
ONE_MACHINE = "local[2]"
TWO_EXECUTORS = "local-cluster[2,1,1024]"
WAIT = 60
QUICKLY = "-XX:TieredStopAtLevel=1 -XX:+UseSerialGC"  # for JVMs that live for seconds


def write_links(path, nodes, chance, seed=1):
    """Links of random nodes and weights."""
    numbers = random.Random(seed)
    with open(path, "w") as file:
        for a in range(nodes):
            for b in range(a):
                if numbers.random() < chance:
                    print(f"n{a} n{b} {numbers.randint(1, 9)}", file=file)


def children(parent):
    """The processes that a process has started and that live."""
    found = []
    for stat in Path("/proc").glob("[0-9]*/stat"):
        try:
            fields = stat.read_text().rpartition(")")[2].split()
        except OSError:
            continue
        if int(fields[1]) == parent and fields[0] != "Z":
            found.append(int(stat.parent.name))
    return found


class SparkTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="vorlane spark "))
        self.addCleanup(shutil.rmtree, self.folder)
        # A home of its own: the executors of local-cluster have their folders there.
        self.home = self.folder / "spark"
        self.home.mkdir()
        for name in ("bin", "jars"):
            (self.home / name).symlink_to(SPARK_HOME / name)
        self.links = self.folder / "links.txt"
        self.log = self.folder / "log"

    def start(self, master, *words):
        environment = {**os.environ, "SPARK_HOME": str(self.home), "SPARK_LOCAL_IP": "127.0.0.1"}
        # Both executors are there before the first part begins.
        command = [self.home / "bin" / "spark-submit", "--master", master, "--driver-memory", "1g",
                   "--driver-java-options", QUICKLY,
                   "--conf", f"spark.executor.extraJavaOptions={QUICKLY}",
                   "--conf", "spark.ui.enabled=false",
                   "--conf", "spark.scheduler.minRegisteredResourcesRatio=1", *words]
        with open(self.log, "w") as log:
            driver = subprocess.Popen(command, cwd=self.folder, env=environment, text=True,
                                      stdout=subprocess.PIPE, stderr=log)
        self.addCleanup(driver.kill)
        self.addCleanup(driver.stdout.close)
        return driver

    def end(self, driver):
        out = driver.communicate(timeout=WAIT)[0]
        return driver.returncode, out, self.log.read_text()

    def wait_for(self, condition):
        end = time.monotonic() + WAIT
        while not condition():
            self.assertLess(time.monotonic(), end, self.log.read_text()[-5000:])
            time.sleep(0.005)

    def single(self, *switches):
        """The results of the program alone."""
        results = self.folder / "single"
        subprocess.run([PROGRAM, "-i", self.links, "-o", results, *switches], check=True,
                       stdout=subprocess.DEVNULL)
        return results

    def assert_same(self, one, other):
        names = sorted(path.relative_to(one) for path in one.rglob("*") if path.is_file())
        others = sorted(path.relative_to(other) for path in other.rglob("*") if path.is_file())
        self.assertEqual(names, others)
        self.assertEqual(filecmp.cmpfiles(one, other, names, shallow=False)[1:], ([], []))

    def find(self, master, *words):
        return self.start(master, JAR, "-i", self.links, "-o", self.folder / "out", *words)

    def lose_an_executor(self, work, *words):
        """One hangs with its part when the first part of the search is there; then it dies."""
        write_links(self.links, 250, 0.5)
        driver = self.find(TWO_EXECUTORS, "--parts", "40", "-k", "9", *words)
        self.wait_for(lambda: any(work.glob("cliques.*.bin")))
        executor = children(driver.pid)[0]
        os.kill(executor, signal.SIGSTOP)
        time.sleep(0.3)
        os.kill(executor, signal.SIGKILL)
        code, out, log = self.end(driver)
        self.assertEqual(code, 0, log[-5000:])
        self.assertRegex(log[log.index("search for cliques"):], "Lost task .* ExecutorLostFailure")
        self.assert_same(self.single("-k", "9"), self.folder / "out")

    def test_switches(self):
        write_links(self.links, 60, 0.4)
        switches = ["-D", "-w", "2", "-W", "8"]
        code, out, log = self.end(self.find(ONE_MACHINE, "--parts", "5", *switches))
        self.assertEqual(code, 0, log[-5000:])
        results = self.folder / "out"
        self.assertEqual(out.splitlines()[-1], f"results in {results}")
        self.assert_same(self.single(*switches), results)
        self.assertFalse((self.folder / "out.parts").exists())

    def test_table_of_names_with_blanks(self):
        with open(self.links, "w") as file:
            print("id,to,by", *(f"{a}{b},node {a},node {b}" for a in range(9) for b in range(a)),
                  sep="\n", file=file)
        read = ["--format=csv", "--columns", "by,2", "--blanks", "_"]
        code, out, log = self.end(self.find(ONE_MACHINE, "--parts", "2", *read))
        self.assertEqual(code, 0, log[-5000:])
        self.assert_same(self.single(*read), self.folder / "out")

    def test_lost_executor(self):
        self.lose_an_executor(self.folder / "out.parts")

    def test_lost_executor_without_a_shared_folder(self):
        work = self.folder / "work"
        self.lose_an_executor(work, "--no-shared-folder", "--work", work)
        self.assertTrue(work.is_dir())

    def test_lost_driver(self):
        """What the first one has found stays, and the second one doesn't look for it again."""
        write_links(self.links, 250, 0.5)
        driver = self.find(ONE_MACHINE, "--parts", "40", "-k", "9")
        work = self.folder / "out.parts"
        self.wait_for(lambda: len(list(work.glob("cliques.*.bin"))) > 5)
        os.kill(driver.pid, signal.SIGKILL)
        driver.wait()
        found = {path: path.stat().st_mtime_ns for path in work.glob("cliques.*.bin")}
        code, out, log = self.end(self.find(ONE_MACHINE, "--parts", "39", "-k", "9"))
        self.assertEqual(code, 1)
        self.assertRegex(log, "vorlane: .*parts of another run")
        driver = self.find(ONE_MACHINE, "--parts", "40", "-k", "9", "--work", work)
        code, out, log = self.end(driver)
        self.assertEqual(code, 0, log[-5000:])
        self.assertEqual({path: path.stat().st_mtime_ns for path in found}, found)
        self.assertIn(f"search for cliques: {40 - len(found)} parts", log)
        self.assert_same(self.single("-k", "9"), self.folder / "out")

    def test_cancelled_job(self):
        # Three nodes in each of twenty groups, linked with all outside of theirs: 3^20 cliques.
        with open(self.links, "w") as file:
            for a in range(60):
                for b in range(a - a % 3):
                    print(a, b, file=file)
        classes = self.folder / "classes"
        source = HERE / "zumo" / "community" / "spark" / "CancelledSearch.java"
        subprocess.run(["javac", "-d", classes, "-cp", f"{JAR}:{SPARK_HOME}/jars/*", source],
                       check=True)
        test = self.folder / "test.jar"
        subprocess.run(["jar", "--create", "--file", test, "-C", classes, "."], check=True)
        driver = self.start(ONE_MACHINE, "--jars", JAR, "--class",
                            "zumo.community.spark.CancelledSearch", test, self.links, self.folder)
        code, out, log = self.end(driver)
        self.assertEqual(code, 0, log[-5000:])
        self.assertRegex(out, "stopped: true after [0-9]+ ms\n")
        self.assertRegex(out, "failed: .*cancelled")

    def test_usage(self):
        code, out, log = self.end(self.start(ONE_MACHINE, JAR, "-i", self.links, "--parts", "many"))
        self.assertEqual(code, 2)
        self.assertRegex(log, "--parts can't be many\n\nusage: ")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
