"""A copy of what is committed, in which one thing at a time is broken to see whether a test notices."""

import os
import resource
import signal
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
NOTICED, NOT_NOTICED, DOES_NOT_COMPILE = "noticed", "NOT NOTICED", "does not compile"

# What is broken may go round in circles, and fill memory and disk.
GIGABYTE = 1 << 30
MOST_MEMORY = 8 * GIGABYTE
LONGEST_FILE = 10 * GIGABYTE  # a test has one, with nothing in it
MOST_PROCESSOR_SECONDS = 300
PATIENCE_SECONDS = 900


UI_TESTS = "*Picture*:*Looks*:Metered*:ChessboardFiles.*:GameFiles.*:BrokenHelp.*:WhileAnother*"


def unit_tests(room, *options):
    return [f"build/dev/tests/{room}/{room}_tests", "--gtest_fail_fast", "--gtest_brief=1", *options]


def fault_test(name):
    return ["python3", "-B", f"tests/faults/{name}.py", "build/dev/tests/faults/saver", "--short"]


def test_from_outside(name):
    test = ["/usr/bin/python3", "-B", f"tests/e2e/test_{name}.py", "build/dev/GallopadeNova"]
    return ("GallopadeNova program_directory", [test])


# What is built for each, and what must notice.
CHECKS = {
    "core": ("core_tests", [unit_tests("core")]),
    "solver": ("solver_tests", [unit_tests("solver")]),
    "storage": ("storage_tests", [unit_tests("storage")]),
    "ui": ("ui_tests", [unit_tests("ui", f"--gtest_filter={UI_TESTS}")]),
    "faults": ("saver", [fault_test("storage_faults"), fault_test("interlopers")]),
    "fuzz": ("game_fuzz", [["build/dev/tests/fuzz/game_fuzz", "tests/fuzz/seeds/game"]]),
    "storm": ("storm", [["build/dev/tests/storm/storm", "--seeds", "1-10"]]),
    **{name: test_from_outside(name) for name in ("ending", "hardening", "registering", "scripts")},
}


def set_limits():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (LONGEST_FILE, LONGEST_FILE))
    resource.setrlimit(resource.RLIMIT_CPU, (MOST_PROCESSOR_SECONDS, MOST_PROCESSOR_SECONDS))


class BrokenCopy:
    """In a folder that may hold one already; it is brought to what is committed now."""

    def __init__(self, folder, *options):
        self.folder = Path(folder)
        if not (self.folder / ".git").exists():
            subprocess.run(["git", "clone", "-q", ROOT, self.folder], check=True)
        commit = subprocess.run(["git", "rev-parse", "HEAD"], cwd=ROOT, check=True,
                                capture_output=True, text=True).stdout.strip()
        for command in (["fetch", "-q", ROOT, commit], ["reset", "-q", "--hard", commit]):
            subprocess.run(["git", *command], cwd=self.folder, check=True)
        assert self._succeeds(["cmake", "--preset", "dev", *options])

    def text(self, name):
        return (self.folder / name).read_text(encoding="utf-8")

    def result(self, check):
        """What a check says to the copy as it is."""
        targets, tests = CHECKS[check]
        if not self._succeeds(["cmake", "--build", "build/dev", "--target", *targets.split()]):
            return DOES_NOT_COMPILE
        passes = all(self._succeeds(test, preexec_fn=set_limits) for test in tests)
        return NOT_NOTICED if passes else NOTICED

    def result_when_broken(self, name, text, checks):
        """What the checks say, up to the first that notices, while a source has another text."""
        path = self.folder / name
        whole = self.text(name)
        path.write_text(text, encoding="utf-8")
        try:
            results = map(self.result, checks)
            return next((result for result in results if result != NOT_NOTICED), NOT_NOTICED)
        finally:
            path.write_text(whole, encoding="utf-8")

    def _succeeds(self, command, **options):
        environment = {**os.environ, "GALLOPADE_KILLS": "3", "QT_QPA_PLATFORM": "offscreen"}
        process = subprocess.Popen(command, cwd=self.folder, env=environment,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   start_new_session=True, **options)
        try:
            return process.wait(PATIENCE_SECONDS) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            return False


def require_sound(copy, checks):
    """Whatever notices when nothing is broken says nothing when something is."""
    for check in checks:
        assert copy.result(check) == NOT_NOTICED, f"{check} fails though nothing is broken"
