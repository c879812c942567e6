#!/usr/bin/env python3
"""Checks that rooms include only what ARCHITECTURE.md allows, and a few rules that the linker cannot guard.

Usage: check_includes.py PROJECT_DIRECTORY. Prints one line a finding and exits 1 when there is any.
"""

import pathlib
import re
import sys

TABLE_HEADING = "## Who may include whom"
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
CORE_ROOMS = {"runtime", "store", "persisted", "ado", "profile", "foundation", "records", "attendance"}
BOXES = re.compile(r"\bQ(?:MessageBox|FileDialog|InputDialog|FontDialog|ColorDialog)\b")
CLOCKS = re.compile(r"\bcurrent(?:DateTime|DateTimeUtc|Date|Time|MSecsSinceEpoch|SecsSinceEpoch)\s*\(|"
                    r"\bsystem_clock\b|\bgettimeofday\b|\bclock_gettime\b|(?<![\w.>])time\s*\(\s*(?:nullptr|NULL|0|&)")
# Where Qt keeps its headers of the modules that only windows and pictures need.
WINDOW_MODULES = ("QtGui/", "QtWidgets/", "QtPrintSupport/", "QtSvg/")
QT_HEADERS = pathlib.Path("/usr/include")


def allowed_includes(project):
    """The table of the document: room -> set of rooms, None for "anything"."""
    text = (project / "ARCHITECTURE.md").read_text(encoding="utf-8")
    table = {}
    for line in text.split(TABLE_HEADING, 1)[1].splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if not line.startswith("|") or len(cells) != 2 or cells[0] in ("room", "") or cells[0].startswith("-"):
            if table and line.startswith("## "):
                break
            continue
        table[cells[0]] = None if cells[1] == "*" else {name for name in cells[1].split(", ") if name}
    return table


def window_headers():
    """Bare header names (<QImage>) that belong to a module beyond Core."""
    names = set()
    for base in QT_HEADERS.glob("*/qt6"):
        for module in WINDOW_MODULES:
            names.update(path.name for path in (base / module).glob("*"))
    core = set()
    for base in QT_HEADERS.glob("*/qt6"):
        core.update(path.name for path in (base / "QtCore").glob("*"))
    return names - core


def room_of(path, source):
    parts = path.relative_to(source).parts
    return parts[1] if parts[0] == "platform" else parts[0]


def findings_in(path, room, table, window_names):
    text = path.read_text(encoding="utf-8")
    for bracket, header in INCLUDE.findall(text):
        target = header.split("/")[0]
        if bracket == '"':
            if target not in table:
                yield f"includes \"{header}\", which is in no room"
            elif target != room and table[room] is not None and target not in table[room]:
                yield f"{room} may not include {target} (\"{header}\")"
        elif room in CORE_ROOMS and (header in window_names or header.startswith(WINDOW_MODULES)):
            yield f"{room} may not include <{header}>: it needs more than Qt Core"
    code = re.sub(r"//.*", "", text)
    if room != "dialogs" and BOXES.search(code):
        yield f"{BOXES.search(code).group()} belongs in the dialogs room"
    if room != "runtime" and CLOCKS.search(code):
        yield f"{CLOCKS.search(code).group()} reads the system clock: use runtime/Clock.h"


def main():
    project = pathlib.Path(sys.argv[1])
    source = project / "src"
    table = allowed_includes(project)
    window_names = window_headers()
    findings = []
    files = sorted(path for path in source.rglob("*") if path.suffix in (".h", ".cpp"))
    for path in files:
        room = room_of(path, source)
        if room not in table:
            findings.append(f"{path.relative_to(project)}: room {room} is not in the table of ARCHITECTURE.md")
            continue
        findings += [f"{path.relative_to(project)}: {finding}" for finding in findings_in(path, room, table, window_names)]
    if not files or not table or not window_names:
        findings.append("nothing was checked: sources, table or Qt headers are missing")
    print("\n".join(findings) or f"{len(files)} files keep the rules")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
