# SPDX-License-Identifier: MIT
"""document_tables.py [--update] <accuracy_report> <project>

Compares the tables of the accuracy report in README.md and docs/*.md with those that the report
program prints, or with --update puts the printed ones in their place. A table stands between
"<!-- accuracy: name -->" and "<!-- end -->".
"""
import argparse
import pathlib
import re
import subprocess
import sys

TABLE = re.compile(r"<!-- accuracy: (?P<name>[\w-]+) -->\n(?P<rows>.*?)<!-- end -->", re.DOTALL)


def tables_in(text):
    return {found["name"]: found["rows"] for found in TABLE.finditer(text)}


def documents_of(project):
    """The documents that show tables, with their texts."""
    paths = sorted([*project.glob("*.md"), *project.glob("docs/*.md")])
    texts = {path: path.read_text(encoding="utf-8") for path in paths}
    return {path: text for path, text in texts.items() if "<!-- accuracy:" in text}


def faults(path, text, printed):
    shown = tables_in(text)
    if len(shown) != text.count("<!-- accuracy:"):
        yield f"{path}: a table does not end, or is shown twice"
    for name, rows in shown.items():
        if name not in printed:
            yield f"{path}: the report has no table {name}"
        elif rows != printed[name]:
            yield f"{path}: table {name} should be\n{printed[name]}"


def update(path, text, printed):
    def current(found):
        rows = printed.get(found["name"], found["rows"])
        return f"<!-- accuracy: {found['name']} -->\n{rows}<!-- end -->"

    path.write_text(TABLE.sub(current, text), encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("report")
    parser.add_argument("project", type=pathlib.Path)
    arguments = parser.parse_args()

    documents = documents_of(arguments.project)
    if arguments.project / "docs" / "accuracy.md" not in documents:
        sys.exit("docs/accuracy.md shows no table of the report")
    report = subprocess.run([arguments.report], stdout=subprocess.PIPE, check=True, text=True)
    printed = tables_in(report.stdout)
    found = []
    for path, text in documents.items():
        if arguments.update:
            update(path, text, printed)
            text = path.read_text(encoding="utf-8")
        found.extend(faults(path, text, printed))
    for fault in found:
        print(fault, file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
