"""./test --mutants [COUNT [SEED]]: changes the game in one place at a time and sees whether a test notices.

Of all slips that mutations.py can make in the rooms below, COUNT (400) are drawn by SEED (1). Each is made in a copy of
the tree, built incrementally, and tested. Survivors are listed by file and line; those of survivors.txt have a reason.
"""

import hashlib
import os
import queue
import random
import re
import shutil
import subprocess
import sys
import threading
from collections import Counter
from pathlib import Path

from mutations import applied, mutants_of

ROOT = Path(__file__).resolve().parents[2]
ROOMS = ("rules", "career", "scene", "narration", "engine", "l10n")
TABLES_OF_TEXTS = re.compile(r"l10n/(\w+/|\w*Keys\.h)")
PROGRAMS = ("unit_rules", "unit_career", "unit_scene", "unit_l10n", "unit_narration", "scenario_tests")  # the quickest first
LONGEST_TEST = 120  # s; what takes longer hangs, which is noticed too


def tracked(*folders):
    command = ["git", "-c", "safe.directory=*", "-C", str(ROOT), "ls-files", "--", *folders]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()


def all_mutants():
    files = [f for f in tracked(*ROOMS) if f.endswith((".cpp", ".h")) and not TABLES_OF_TEXTS.match(f)]
    return [mutant for file in files for mutant in mutants_of(file, (ROOT / file).read_text())]


def known_survivors():
    """{key: reason}; a line a survivor, its four columns divided by tabulators."""
    lines = (ROOT / "tests/mutation/survivors.txt").read_text().splitlines()
    columns = [line.split("\t") for line in lines if line and not line.startswith("#")]
    return {(file, before, after.replace("\\n", "\n")): reason for file, before, after, reason in columns}


class Copy:
    """A copy of the tree that mutants are made in, with its build."""

    def __init__(self, number):
        self.source = ROOT / f"build/mutants/{number}/source"
        self.build = ROOT / f"build/mutants/{number}/build"
        for file in tracked():
            copy = self.source / file
            copy.parent.mkdir(parents=True, exist_ok=True)
            if (ROOT / file).is_file() and (not copy.is_file() or copy.read_bytes() != (ROOT / file).read_bytes()):
                shutil.copy2(ROOT / file, copy)
        options = ["-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1", "-DVORBEL_BUILD_BENCHES=OFF"]
        self.quiet("cmake", "-S", self.source, "-B", self.build, "-G", "Ninja", *options)
        self.passed = {}  # what each program was when it passed: it need not run again when nothing in it changed
        if self.verdict() != "survived":
            sys.exit("mutants: the tests do not pass before anything is changed.")

    @staticmethod
    def quiet(*command, timeout=None, environment=None):
        output = subprocess.DEVNULL
        return subprocess.run(command, stdout=output, stderr=output, timeout=timeout, env=environment).returncode

    def builds(self, program):
        return self.quiet("cmake", "--build", self.build, "--target", program, "--", "-j1") == 0

    def passes(self, program):
        path = next(self.build.glob(f"tests/**/{program}"))
        content = hashlib.sha256(path.read_bytes()).digest()
        if self.passed.get(program) == content:
            return True
        try:
            environment = {**os.environ, "GTEST_FAIL_FAST": "1"}
            passes = self.quiet(path, timeout=LONGEST_TEST, environment=environment) == 0
        except subprocess.TimeoutExpired:
            return False
        if passes:
            self.passed.setdefault(program, content)
        return passes

    def verdict(self):
        """Of the tree as it is now; each program is built only when those before it noticed nothing."""
        for program in PROGRAMS:
            if not self.builds(program):
                return "did not compile"
            if not self.passes(program):
                return "noticed"
        return "survived"

    def fate(self, mutant):
        path = self.source / mutant.file
        text = path.read_text()
        path.write_text(applied(mutant, text))
        try:
            return self.verdict()
        finally:
            path.write_text(text)


def judge(mutants):
    """Yields (mutant, fate), in no order."""
    waiting, judged = queue.Queue(), queue.Queue()
    for mutant in mutants:
        waiting.put(mutant)

    def work(number):
        copy = Copy(number)
        while True:
            try:
                mutant = waiting.get_nowait()
            except queue.Empty:
                return
            judged.put((mutant, copy.fate(mutant)))

    workers = [threading.Thread(target=work, args=(n,), daemon=True) for n in range(os.cpu_count() or 1)]
    for worker in workers:
        worker.start()
    while any(worker.is_alive() for worker in workers) or not judged.empty():
        try:
            yield judged.get(timeout=1)
        except queue.Empty:
            pass
    if not waiting.empty():
        sys.exit("mutants: the copy of the tree could not be built.")


def main(count=400, seed=1):
    mutants = all_mutants()
    sample = random.Random(int(seed)).sample(mutants, min(int(count), len(mutants)))
    sample.sort(key=lambda mutant: (mutant.file, mutant.line))  # neighbours build less anew
    known, fates, unknown = known_survivors(), Counter(), []
    for mutant, fate in judge(sample):
        fates[fate] += 1
        if fate == "survived":
            reason = known.get(mutant.key)
            print(f"survived  {mutant}" + (f"\n          known: {reason}" if reason else ""), flush=True)
            unknown += [] if reason else [mutant]
        elif sys.stdout.isatty():
            print(f"{sum(fates.values())} of {len(sample)}", end="\r", flush=True)
    print(f"{len(mutants)} mutants, {len(sample)} tried: " + ", ".join(f"{n} {fate}" for fate, n in fates.items()))
    print(f"{len(unknown)} survived without a known reason.")
    return 1 if unknown else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
