"""The tables of ARCHITECTURE.md that come from the list of rooms."""

import re

QT_OF_KIND = {"core": "Core", "gui": "Gui", "widgets": "Widgets", "programs": ""}
TABLE = re.compile(r"(?:^\|.*\n)+", re.MULTILINE)


def needs(room):
    libraries = (library.removeprefix("Qt6::") for library in room.libraries)
    return ", ".join(word for word in (QT_OF_KIND[room.kind], *libraries) if word)


def table(headings, rows):
    lines = ("".join(f"| {cell} " if cell else "| " for cell in cells) + "|\n" for cells in (headings, *rows))
    return next(lines) + "|---" * len(headings) + "|\n" + "".join(lines)


def tables(rooms):
    """The tables by the heading under which each is the first."""
    what = [(room.name, room.what, needs(room)) for room in rooms]
    may = [(room.name, ", ".join(room.includes)) for room in rooms]
    return {"## Rooms": table(("room", "what it is", "needs"), what),
            "## Who may include whom": table(("room", "may include"), may)}


def written(text, rooms):
    """The document with the tables that the list gives; a heading without a table is a ValueError."""
    for heading, wanted in tables(rooms).items():
        start = text.index(f"\n{heading}\n")
        end = text.find("\n## ", start + 1)
        found = TABLE.search(text, start, len(text) if end < 0 else end)
        if not found:
            raise ValueError(f"there is no table under {heading}")
        text = text[:found.start()] + wanted + text[found.end():]
    return text
