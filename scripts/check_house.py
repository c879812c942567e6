#!/usr/bin/env python3
"""Checks the rules of the house that neither compiler nor linker guards, by the list of rooms in src/rooms.txt.

Usage: check_house.py [--write | --report] [PROJECT_DIRECTORY]
  --write   puts the tables of the list into ARCHITECTURE.md first
  --report  says how long files and functions are, too
Prints one line a finding and exits 1 when there is any.
"""

import argparse
import pathlib
import statistics
import sys

from house.checks import CHECKS, House
from house.document import written
from house.functions import functions_of
from house.rooms import BadList, Rooms
from house.sources import sources

DOCUMENT = "ARCHITECTURE.md"
LIST = "src/rooms.txt"


def load(project):
    return House(Rooms((project / LIST).read_text(encoding="utf-8")), sources(project, "src"))


def without_allowed(found, allowances):
    """What is not allowed, and the allowances that nothing needs any more."""
    used = set()
    for check, (file, line, words) in found:
        fitting = [one for one in allowances if one.check == check and one.path == file]
        used.update(fitting)
        if not fitting:
            yield f"{file}{f':{line}' if line else ''}: {words} [{check}]"
    for allowance in allowances:
        if allowance not in used:
            yield f"{LIST}: “allow {allowance.check} {allowance.path}” is not needed any more, remove it"


def document_findings(project, house):
    text = (project / DOCUMENT).read_text(encoding="utf-8")
    if written(text, house.rooms) != text:
        yield f"{DOCUMENT}: its tables differ from {LIST}, run scripts/check_house.py --write"


def findings(project):
    """Every finding as a line of text."""
    try:
        house = load(project)
        found = [(name, finding) for name, check in CHECKS.items() for finding in check(house)]
        return [*without_allowed(found, house.rooms.allowances), *document_findings(project, house),
                *([] if house.sources else ["there are no sources"])]
    except (OSError, ValueError, BadList) as error:
        return [str(error)]


def report(house):
    for what, those in (("src", house.sources), (".cpp of src", [s for s in house.sources if s.name.endswith(".cpp")])):
        lines = [source.lines for source in those]
        lengths = [function.length for source in those for function in functions_of(source)]
        yield (f"{what}: {len(lines)} files, median {statistics.median(lines):g} lines, longest {max(lines)}; "
               f"{len(lengths)} functions, median {statistics.median(lengths):g} lines, longest {max(lengths)}")


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--write", action="store_true")
    arguments.add_argument("--report", action="store_true")
    arguments.add_argument("project", nargs="?", type=pathlib.Path, default=pathlib.Path(__file__).parent.parent)
    given = arguments.parse_args()
    document = given.project / DOCUMENT
    if given.write:
        text = written(document.read_text(encoding="utf-8"), load(given.project).rooms)
        document.write_text(text, encoding="utf-8")
    found = findings(given.project)
    if given.report:
        print("\n".join(report(load(given.project))))
    print("\n".join(found) or "the rules of the house are kept")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
