# SPDX-License-Identifier: MIT
"""documents.py LOG COMMAND...: runs the blocks of the documents in ~/almara, the words of COMMAND
before each. `scripts/check documents --help` tells what a block is."""
import re
import shlex
import subprocess
import sys
import textwrap
import threading
import time
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = ["README.md", "CONTRIBUTING.md", "docs/*.md", "hosts/*/README.md"]
MARK = re.compile(r"^ *<!-- (?:not run|file):", re.MULTILINE)
BLOCK = re.compile(r"(?:^ *<!-- (not run|file): ([^\n]*) -->\n)?"
                   r"^( *)```(\w*)\n(.*?)^ *```$", re.DOTALL | re.MULTILINE)
PRINTED = re.compile(r"^(?:print|console\.log)\(.*\);? +(?:#|//) (.*)$", re.MULTILINE)
CONTROLS = re.compile(r"\r|\x1b\[[0-9;?]*[A-Za-z]")  # of a terminal
SECONDS_OF_A_BLOCK = 1800


class Block(NamedTuple):
    place: str
    mark: str
    argument: str
    language: str
    code: str


def blocks():
    for path in (path for pattern in DOCUMENTS for path in sorted(ROOT.glob(pattern))):
        if path.suffixes[0] != ".md":
            continue  # a translation, with the same commands
        text = path.read_text(encoding="utf-8")
        found = list(BLOCK.finditer(text))
        if len(MARK.findall(text)) != sum(match[1] is not None for match in found):
            raise ValueError(f"{path.relative_to(ROOT)}: a mark is not on the line before a block")
        for match in found:
            mark, argument, _, language, code = match.groups()
            line = text.count("\n", 0, match.start(3)) + 1
            yield Block(f"{path.relative_to(ROOT)}:{line}", mark, argument, language,
                        textwrap.dedent(code))


def commands_of(block):
    """The shell commands of a block, or None if it has none."""
    if block.language == "sh":
        return block.code
    lines = [line[2:] for line in block.code.splitlines() if line.startswith("$ ")]
    return "\n".join(lines) if lines and not block.language else None


def type_q(keyboard, process):
    """Ends a program that fills the screen."""
    while True:
        time.sleep(1)
        if process.poll() is not None:
            return
        try:
            keyboard.write(b"q")
            keyboard.flush()
        except BrokenPipeError:
            return


def run(enter, commands, log):
    """Whether the commands succeed on a terminal, and what they print."""
    shell = f"stty -echo; cd ~/almara && exec bash -eo pipefail -c {shlex.quote(commands)}"
    with subprocess.Popen([*enter, "NODE_EXTRA_CA_CERTS=/etc/ssl/certs/ca-certificates.crt",
                           "timeout", str(SECONDS_OF_A_BLOCK), "script", "-qefc", shell,
                           "/dev/null"],
                          stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT) as process:
        threading.Thread(target=type_q, args=(process.stdin, process), daemon=True).start()
        printed = CONTROLS.sub("", process.stdout.read().decode("utf-8", "replace"))
    log.write(f"\n$ {commands.rstrip()}\n{printed}")
    log.flush()
    return process.returncode == 0, printed


def write(enter, name, text):
    subprocess.run([*enter, "bash", "-c", 'cd ~/almara && mkdir -p "$(dirname "$0")" && cat >"$0"',
                    name], input=text.encode(), check=True)


def main():
    enter = sys.argv[2:]
    failed, counts, expected = [], {"ran": 0, "files": 0, "not run": 0}, []
    with open(sys.argv[1], "w", encoding="utf-8") as log:
        for block in blocks():
            commands, started, verdict = commands_of(block), time.monotonic(), ""
            if block.mark == "not run":
                counts["not run"] += 1
                verdict = f"not run: {block.argument}"
            elif block.mark == "file":
                counts["files"] += 1
                verdict = block.argument
                write(enter, block.argument, block.code)
                expected += PRINTED.findall(block.code)
            elif commands:
                counts["ran"] += 1
                succeeded, printed = run(enter, commands, log)
                missing = [text for text in expected if text not in printed.splitlines()]
                expected = []
                verdict = f"ran, {time.monotonic() - started:.0f} s"
                if not succeeded or missing:
                    verdict = f"FAILED\n{textwrap.indent(printed[-3000:], '    ')}"
                    verdict += "".join(f"\n    not printed: {text}" for text in missing)
                    failed.append(block.place)
            elif block.language or "$ " in block.code:
                verdict = "FAILED: neither commands, nor a file, nor marked as not run"
                failed.append(block.place)
            else:
                continue  # a drawing
            print(f"{block.place}: {verdict}", flush=True)
    if expected:
        failed.append(f"no command printed: {', '.join(expected)}")
    print(", ".join(f"{count} {what}" for what, count in counts.items()))
    if failed:
        sys.exit("FAILED: " + ", ".join(failed))


if __name__ == "__main__":
    main()
