"""What the tests of a tree reach, line by line, and how they are run."""
import collections
import json
import os
import signal
import subprocess
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

CORES = len(os.sched_getaffinity(0))


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def tests_of(build):
    """Name, command and environment of each test function, from the folder of a build."""
    tests = []
    for test in json.loads(output_of("ctest", "--test-dir", build, "--show-only=json-v1"))["tests"]:
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        tests.append({"name": test["name"], "command": test["command"], "environment": environment})
    return tests


class Run:
    """One run of a test, in a session of its own."""

    def __init__(self, test, place, environment, is_repeated):
        self.test, self.is_repeated = test, is_repeated
        self.failure = self.seconds = None
        self.folder = tempfile.TemporaryDirectory(dir=place, prefix="run.",
                                                  ignore_cleanup_errors=True)
        self.output = tempfile.TemporaryFile()
        self.start = time.monotonic()
        self.process = subprocess.Popen(
            test["command"], cwd=self.folder.name, stdin=subprocess.DEVNULL, stdout=self.output,
            stderr=subprocess.STDOUT, start_new_session=True,
            env=os.environ | test["environment"] | environment
            | dict.fromkeys(["HOME", "TMPDIR"], self.folder.name))

    def has_ended(self):
        """Whether it has; the failure is then what it has done, or empty if it has passed."""
        status = self.process.poll()
        self.seconds = time.monotonic() - self.start
        # Generous enough for a machine that is much busier than when the test's time was taken.
        if status is None and self.seconds < 30 + 5 * self.test.get("seconds", 120):
            return False
        self.failure = ("hangs" if status is None else "crashes" if status < 0 else
                        "fails" if status > 0 else "")
        self.end()
        return True

    def end(self):
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()
        self.folder.cleanup()


def run_all(tests, place, environment_of=lambda test: {}):
    """Yields a Run of each test as soon as it has passed, hung or failed twice. What is running
    when the caller wants no more is killed. The tests write below the folder place."""
    waiting, running = collections.deque(tests), []
    try:
        while waiting or running:
            while waiting and len(running) < CORES:
                test = waiting.popleft()
                running.append(Run(test, place, environment_of(test), is_repeated=False))
            time.sleep(0.01)
            for run in [run for run in running if run.has_ended()]:
                running.remove(run)
                if run.failure in ("fails", "crashes") and not run.is_repeated:
                    running.append(Run(run.test, place, environment_of(run.test),
                                       is_repeated=True))
                else:
                    yield run
            # A test may wait for a process to be gone that it has no longer for a child.
            for pid in children_but(running):
                os.waitpid(pid, os.WNOHANG)
    finally:
        for run in running:
            run.end()
        while orphans := children_but([]):
            for pid in orphans:
                os.kill(pid, signal.SIGKILL)
                os.waitpid(pid, 0)


def children_but(runs):
    """The children of this process that are not these runs. When it is a subreaper (see prctl) they
    are what tests have started and left behind."""
    children = Path(f"/proc/self/task/{os.getpid()}/children").read_text().split()
    return set(map(int, children)) - {run.process.pid for run in runs}


def reached_lines(data, tree):
    """Whether the coverage data below a folder say that a line was reached, for each line of the
    tree that has code: {(file, line): bool}."""
    counts = list(data.rglob("*.gcda"))
    for file in counts:
        notes = Path("/") / file.relative_to(data).with_suffix(".gcno")
        file.with_suffix(".gcno").symlink_to(notes)
    reports = output_of("gcov", "--json-format", "--stdout", "--relative-only", "--source-prefix",
                        tree, *counts)
    lines = {}
    for report in reports.splitlines():
        for file in json.loads(report)["files"]:
            for line in file["lines"]:
                place = str(Path(file["file"]).relative_to(tree)), line["line_number"]
                lines[place] = lines.get(place, False) or line["count"] > 0
    return lines


def sources_with(build, tree):
    """For each file of the tree the sources that it gets into when they are compiled."""
    sources = collections.defaultdict(list)
    for entry in output_of("ninja", "-C", build, "-t", "deps").split("\n\n"):
        files = [Path(line.strip()) for line in entry.splitlines()[1:]]
        files = [str(file.relative_to(tree)) for file in files if file.is_relative_to(tree)]
        for file in files:
            sources[file].append(files[0])
    return sources


def learn(plain, coverage, tree, place):
    """The tests, the quickest first, as those of tests_of with their seconds, and which lines of
    the tree they reach: {file: {line: [index of the test]}}, with all lines that have code. Takes a
    build for the times and one for the coverage. A test that fails is left out."""
    tests = []
    for run in run_all(tests_of(plain), place):
        if run.failure:
            print(f"{run.test['name']} is left out: it {run.failure} before anything is broken")
        else:
            tests.append(run.test | {"seconds": run.seconds})
    tests.sort(key=lambda test: test["seconds"])

    reach = collections.defaultdict(lambda: collections.defaultdict(list))
    with tempfile.TemporaryDirectory(dir=place, prefix="reached.") as folder:
        data = {test["name"]: Path(folder) / test["name"] for test in tests}
        covered = [test for test in tests_of(coverage) if test["name"] in data]
        for _ in run_all(covered, place, lambda test: {"GCOV_PREFIX": str(data[test["name"]])}):
            pass
        with ThreadPoolExecutor(CORES) as pool:
            found = pool.map(lambda test: reached_lines(data[test["name"]], tree), tests)
            for i, lines in enumerate(found):
                for (file, line), is_reached in lines.items():
                    reach[file][str(line)] += [i] if is_reached else []
    return tests, reach
