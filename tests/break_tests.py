"""The tests of a build, and how they are run."""
import collections
import json
import os
import signal
import subprocess
import tempfile
import time
from pathlib import Path

CORES = len(os.sched_getaffinity(0))


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def tests_of(build):
    """Name, command, environment and the programs of each test function, from the folder of a
    build."""
    tests = []
    for test in json.loads(output_of("ctest", "--test-dir", build, "--show-only=json-v1"))["tests"]:
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        tests.append({"name": test["name"], "command": test["command"], "environment": environment,
                      "programs": [test["command"][0], *properties.get("REQUIRED_FILES", [])]})
    return tests


class Run:
    """One run of a test, in a session of its own."""

    def __init__(self, test, place, is_repeated):
        self.test, self.is_repeated = test, is_repeated
        self.failure = self.seconds = None
        self.folder = tempfile.TemporaryDirectory(dir=place, prefix="run.",
                                                  ignore_cleanup_errors=True)
        os.chmod(self.folder.name, 0o711)  # some give up root's rights, and must get there still
        self.output = tempfile.TemporaryFile()
        self.start = time.monotonic()
        self.process = subprocess.Popen(
            test["command"], cwd=self.folder.name, stdin=subprocess.DEVNULL, stdout=self.output,
            stderr=subprocess.STDOUT, start_new_session=True,
            env=os.environ | test["environment"]
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


def run_all(tests, place):
    """Yields a Run of each test as soon as it has passed, hung or failed twice. What is running
    when the caller wants no more is killed. The tests write below the folder place."""
    waiting, running = collections.deque(tests), []
    try:
        while waiting or running:
            while waiting and len(running) < CORES:
                running.append(Run(waiting.popleft(), place, is_repeated=False))
            time.sleep(0.01)
            for run in [run for run in running if run.has_ended()]:
                running.remove(run)
                if run.failure in ("fails", "crashes") and not run.is_repeated:
                    running.append(Run(run.test, place, is_repeated=True))
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


def learn(build, place):
    """The tests of a build, the quickest first, as those of tests_of with their seconds. A test
    that fails is left out."""
    tests = []
    for run in run_all(tests_of(build), place):
        if run.failure:
            print(f"{run.test['name']} is left out: it {run.failure} before anything is broken")
        else:
            tests.append(run.test | {"seconds": run.seconds})
    return sorted(tests, key=lambda test: test["seconds"])
