#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Small changes to the engine, one at a time, to see whether the tests notice: scripts/check mutate."""

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

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WORK = ROOT / "build" / "mutate"
ALLOWED_SURVIVORS = 0.05  # of the changes that compile
EXCLUDED = "MUTATE_EXCL:"  # at the line or alone on the line above, with the reason
GENERATED = "not to be changed by hand"

SWAPS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "++": "--", "--": "++",
    "true": "false", "false": "true", "!": "",
}
# The formatter puts blanks around binary operators, and none into template brackets.
EXPRESSION = re.compile(r"(?<= )(?:[<>=!]=|&&|\|\||[+-]=|[-<>+*/%])(?= |$)"
                        r"|(?:\+\+|--)(?=\w)|(?<=[( ])!(?=[\w(])|\b(?:true|false)\b"
                        r"|(?<![\w.])\d+(?:\.\d*[1-9])?(?![\w.])")
STATEMENT = re.compile(r"^\s+(?!return\b|case\b|const\b|using\b)"
                       r"(?:[\w.>-]+(?:\(.*\)| [-+]?= .*)|break|continue);$")
CONDITION = re.compile(r"\bif \((?:[^;]*; )?(?!const\b)")  # up to what it asks
NO_CODE = ("#", "template", "using", "static_assert", "*", "/*")

Change = collections.namedtuple("Change", "path line before after")


def replacement(text):
    if "." in text and text[0].isdigit():
        return text[:-1] + str((int(text[-1]) + 5) % 10 or 1)
    return str(int(text) + 1) if text.isdigit() else SWAPS[text]


def changes_of_file(path, branches):
    """Every change that is possible in a file; with branches, each `if` taken always and never."""
    previous = ""
    for number, line in enumerate((ROOT / path).read_text().splitlines(), 1):
        excluded = EXCLUDED in line or (EXCLUDED in previous and previous.lstrip().startswith("//"))
        previous = line
        code = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', lambda found: "_" * len(found[0]), line)
        code = re.sub(r"\s*//.*", "", code)
        if excluded or code.lstrip().startswith(NO_CODE):
            continue
        if branches:
            for found in CONDITION.finditer(code):
                for taken in ("true", "false"):
                    after = f"{line[:found.end()]}true ? {taken} : {line[found.end():]}"
                    yield Change(path, number, line, after)
            continue
        for found in EXPRESSION.finditer(code):
            after = line[:found.start()] + replacement(found[0]) + line[found.end():]
            yield Change(path, number, line, after)
        if STATEMENT.match(code):
            yield Change(path, number, line, ";")


def draw(paths, count, seed, branches):
    """As many from each file as its share of all possible changes, and at least one."""
    files = [file for path in paths for file in sorted([ROOT / path, *(ROOT / path).rglob("*")])
             if file.suffix in (".h", ".cpp") and file.parent.name != "plugin"
             and GENERATED not in file.read_text()]
    possible = [list(changes_of_file(file.relative_to(ROOT), branches)) for file in files]
    total = sum(map(len, possible))
    chance = random.Random(seed)
    count = total if branches else count
    drawn = [change for changes in filter(None, possible) for change in
             chance.sample(changes, min(len(changes), max(1, round(count * len(changes) / total))))]
    chance.shuffle(drawn)
    return drawn, total


class Tree:
    """A copy of the project with a build of its own."""

    def __init__(self, number):
        self.source, self.folder = WORK / f"tree{number}", WORK / f"build{number}"
        shutil.copytree(ROOT, self.source, ignore=shutil.ignore_patterns("build", ".git"))
        self.log = open(WORK / f"log{number}", "w", encoding="utf-8")
        self.run("cmake", "-S", self.source, "-B", self.folder, "-G", "Ninja",
                 "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O1 -g0 -D_GLIBCXX_ASSERTIONS",
                 # A change of a source is compiled and linked once, not into each test program,
                 # and the internal ones run whole, as under an emulator.
                 "-DALMARA_OPEN_LIBRARY=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                 "-DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/env")
        if not self.tests_pass("."):
            sys.exit(f"mutate: the tests fail before any change; see {self.log.name}")

    def run(self, *command):
        """Whether a command succeeds, within 4 GB and a quarter of an hour."""
        try:
            return subprocess.run(["prlimit", "--data=4000000000", "--", *map(str, command)],
                                  stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log,
                                  timeout=900, check=False).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def build(self, target="all"):
        return self.run("ninja", "-C", self.folder, "-j1", target)

    def tests_pass(self, folder):
        return self.build(f"{folder}/all" if folder != "." else "all") and \
            self.run("ctest", "--test-dir", self.folder / folder, "-L", "^(plain|internal)$",
                     "--timeout", 30, "--stop-on-failure")

    def verdict(self, change):
        file = self.source / change.path
        original = file.read_text()
        lines = original.splitlines()
        lines[change.line - 1] = change.after
        try:
            file.write_text("\n".join(lines) + "\n")
            if not self.build("almara"):
                return "does not compile"
            # The tests of the module first: they are the likeliest to notice.
            module = f"tests/{change.path.parent.name}"
            folders = [module, "."] if (self.folder / module).is_dir() else ["."]
            return "survived" if all(map(self.tests_pass, folders)) else "caught"
        finally:
            file.write_text(original)


def judge(drawn, jobs):
    """Prints and counts the verdicts."""
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    trees, verdicts = queue.Queue(), collections.Counter()

    def one(change):
        tree = trees.get()
        verdict = tree.verdict(change)
        trees.put(tree)
        verdicts[verdict] += 1
        print(f"[{verdicts.total()}/{len(drawn)}] {verdict} {change.path}:{change.line}\n"
              f"    {change.before.strip()}\n    {change.after.strip()}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for tree in pool.map(Tree, range(jobs)):
            trees.put(tree)
        list(pool.map(one, drawn))
    return verdicts


def main():
    parser = argparse.ArgumentParser(prog="scripts/check mutate")
    parser.add_argument("--count", type=int, default=240)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--branches", action="store_true")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("paths", nargs="*", default=["src"])
    options = parser.parse_args()
    drawn, total = draw(options.paths, options.count, options.seed, options.branches)
    print(f"mutate: {len(drawn)} of {total} possible changes", flush=True)
    verdicts = judge(drawn, options.jobs)
    compiled = verdicts["caught"] + verdicts["survived"]
    print(f"mutate: {verdicts['caught']} of {compiled} changes caught "
          f"({100 * verdicts['caught'] / max(1, compiled):.1f} %)")
    return verdicts["survived"] > ALLOWED_SURVIVORS * compiled


if __name__ == "__main__":
    sys.exit(main())
