#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Small changes to the engine, one at a time, to see whether the tests notice; scripts/mutate."""

import argparse
import collections
import concurrent.futures
import os
import pathlib
import queue
import random
import re
import shutil
import subprocess
import sys

from explained import explained

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WORK = ROOT / "build" / "mutate"
LABELS = "^(plain|internal)$"
ALLOWED_SURVIVORS = 0.05  # of the changes that change an answer
HEADING = "Small changes that no test notices"  # of those that change none, with the reason

# What stands between spaces is an operator: the formatter sees to it, and template brackets and
# signs have none around them.
OPERATORS = {
    "<": ["<=", ">"], "<=": ["<", ">="], ">": [">=", "<"], ">=": [">", "<="],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"],
    "+=": ["-="], "-=": ["+="],
}
OPERATOR = re.compile(r"(?<= )(<=|>=|==|!=|&&|\|\||\+=|-=|[<>+*/%-])(?= |$)")
STEP = re.compile(r"(\+\+|--)(?=\w)")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(])")
WORD = re.compile(r"\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.])(\d+)(?![\w.])")
FRACTION = re.compile(r"(?<![\w.])(\d+\.\d*[1-9])(?![\w.])")
STATEMENT = re.compile(r"^\s+(?!return\b|case\b|const\b|using\b)[\w.>-]+(\(.*\)| [-+]?= .*);$")
CALL = re.compile(r"^\s+(break|continue);$")

Change = collections.namedtuple("Change", "path line before after")


def numbers_near(text):
    return [str(int(text) + 1)] + ([str(int(text) - 1)] if int(text) > 0 else [])


def last_digit_changed(text):
    return [text[:-1] + str((int(text[-1]) + 5) % 10 or 1)]


EXPRESSIONS = [
    (OPERATOR, OPERATORS.get),
    (STEP, lambda text: ["--" if text == "++" else "++"]),
    (NEGATION, lambda text: [""]),
    (WORD, lambda text: ["false" if text == "true" else "true"]),
    (NUMBER, numbers_near),
    (FRACTION, last_digit_changed),
]


def code_of(line):
    """The line with comments and literals blanked out, in the same columns."""
    blank = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', lambda found: "_" * len(found[0]), line)
    return re.sub(r"//.*", lambda found: " " * len(found[0]), blank)


def changes_of_line(line):
    code = code_of(line)
    if code.lstrip().startswith(("#", "template", "using", "static_assert", "*", "/*")):
        return
    for pattern, replacements in EXPRESSIONS:
        for found in pattern.finditer(code):
            for text in replacements(found[1] if found.groups() else found[0]) or []:
                yield line[:found.start()] + text + line[found.end():]
    if STATEMENT.match(code) or CALL.match(code):
        yield line[:len(line) - len(line.lstrip())] + ";"


def changes_of_file(path):
    changes = []
    for number, line in enumerate((ROOT / path).read_text().splitlines(), 1):
        changes += [Change(path, number, line, after) for after in changes_of_line(line)]
    return changes


def engine_files(paths):
    files = []
    for path in paths:
        path = (ROOT / path).resolve()
        files += [path] if path.is_file() else sorted(path.rglob("*.h")) + sorted(path.rglob("*.cpp"))
    return [file.relative_to(ROOT) for file in files]


def draw(paths, count, seed):
    """The same number from each file in proportion to the places that it has, at least one."""
    chance = random.Random(seed)
    by_file = {path: changes_of_file(path) for path in engine_files(paths)}
    total = sum(map(len, by_file.values()))
    drawn = []
    for changes in filter(None, by_file.values()):
        share = max(1, round(count * len(changes) / total))
        drawn += chance.sample(changes, min(share, len(changes)))
    chance.shuffle(drawn)
    return drawn, total


class Tree:
    """A copy of the project with a build of its own."""

    def __init__(self, number):
        self.source = WORK / f"tree{number}"
        self.build = WORK / f"build{number}"
        self.log = open(WORK / f"log{number}", "w", encoding="utf-8")

    def copy_project(self):
        """Writes what differs from the project only, so that the build of another run serves."""
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                                 "--exclude-standard"], cwd=ROOT, check=True,
                                stdout=subprocess.PIPE).stdout.decode().split("\0")
        for name in filter(lambda name: name and (ROOT / name).exists(), listed):
            copy = self.source / name
            copy.parent.mkdir(parents=True, exist_ok=True)
            if not copy.exists() or copy.read_bytes() != (ROOT / name).read_bytes():
                shutil.copy(ROOT / name, copy)

    def prepare(self):
        self.copy_project()
        self.run(["cmake", "-S", str(self.source), "-B", str(self.build), "-G", "Ninja",
                  "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O1 -g0",
                  "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold"], 600, check=True)
        if self.tests_fail():
            sys.exit(f"mutate: the tests fail before any change; see {self.log.name}")

    def run(self, command, seconds, check=False):
        self.log.flush()
        limited = ["prlimit", "--data=4000000000", "--", *command]
        try:
            return subprocess.run(limited, stdin=subprocess.DEVNULL, stdout=self.log,
                                  stderr=self.log, timeout=seconds, check=check).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def ninja(self, *targets):
        return self.run(["ninja", "-C", str(self.build), "-j1", *targets], 900)

    def tests_fail(self, folder="."):
        """Whether a test of the folder fails, or does not come to its end, or cannot be built."""
        if not self.ninja(*([] if folder == "." else [f"{folder}/all"])):
            return True
        return not self.run(["ctest", "--test-dir", str(self.build / folder), "-L", LABELS,
                             "--timeout", "60", "--stop-on-failure", "--no-tests=error"], 900)

    def compiled_from(self, path):
        """The target that shows whether a file compiles."""
        return f"{self.source / path}^" if path.suffix == ".cpp" else "almara_objects"

    def verdict(self, change):
        """'caught', 'survived', or None where the change does not compile."""
        file = self.source / change.path
        lines = file.read_text().splitlines(keepends=True)
        original = lines[change.line - 1]
        try:
            lines[change.line - 1] = change.after + "\n"
            file.write_text("".join(lines))
            if not self.ninja(self.compiled_from(change.path)):
                return None
            # The tests of the room first: they are the likeliest to notice, and quickly built.
            room = f"tests/{change.path.parent.name}"
            return "caught" if self.tests_fail(room) or self.tests_fail() else "survived"
        finally:
            lines[change.line - 1] = original
            file.write_text("".join(lines))


def describe(change):
    return f"{change.path}:{change.line}\n    {change.before.strip()}\n    {change.after.strip()}"


def judge(drawn, jobs):
    """The verdicts of the changes, in any order."""
    WORK.mkdir(parents=True, exist_ok=True)
    trees = queue.Queue()
    made = [Tree(number) for number in range(jobs)]
    verdicts = []

    def one(change):
        tree = trees.get()
        try:
            verdict = tree.verdict(change)
        finally:
            trees.put(tree)
        verdicts.append((change, verdict))
        print(f"[{len(verdicts)}/{len(drawn)}] {verdict or 'does not compile'} "
              f"{describe(change)}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(Tree.prepare, made))
        for tree in made:
            trees.put(tree)
        list(pool.map(one, drawn))
    return verdicts


def report(verdicts):
    known = explained(HEADING)
    survivors = [change for change, verdict in verdicts if verdict == "survived"]
    unknown = [change for change in survivors
               if (str(change.path), change.after.strip()) not in known]
    caught = sum(verdict == "caught" for _, verdict in verdicts)
    share = caught / max(1, caught + len(unknown))
    print("\nNot noticed by any test:\n" + "\n".join(map(describe, unknown)))
    print(f"\nmutate: {caught} of {caught + len(unknown)} changes caught ({100 * share:.1f} %); "
          f"besides, {len(survivors) - len(unknown)} that docs/testing.md shows to change no answer "
          f"and {len(verdicts) - caught - len(survivors)} that do not compile")
    return 1 if 1 - share > ALLOWED_SURVIVORS else 0


def main():
    parser = argparse.ArgumentParser(prog="mutate")
    parser.add_argument("--count", type=int, default=240)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--list", action="store_true")
    parser.add_argument("paths", nargs="*", default=["src"])
    options = parser.parse_args()
    drawn, total = draw(options.paths, options.count, options.seed)
    print(f"mutate: {len(drawn)} of {total} possible changes", flush=True)
    if options.list:
        print("\n".join(map(describe, drawn)))
        return 0
    return report(judge(drawn, options.jobs))


if __name__ == "__main__":
    sys.exit(main())
