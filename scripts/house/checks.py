"""The rules of the house. A check yields its findings as (file, line or None, words)."""

import pathlib
import re

from house.functions import functions_of

QT_HEADERS = pathlib.Path("/usr/include")
# What each kind of room may not use: the modules beyond it.
BEYOND = {"core": ("QtGui", "QtSvg", "QtWidgets", "QtPrintSupport"), "gui": ("QtWidgets", "QtPrintSupport")}
LONGEST_FILE = 400
LONGEST_FUNCTION = 60
LARGEST_RING = 2

# What only rooms that hold it may contain, by the word that the list of rooms uses: (in code, in texts, what to do).
BELONGINGS = {
    "boxes": (re.compile(r"\bQ(?:MessageBox|FileDialog|InputDialog|FontDialog|ColorDialog)\b"), None,
              "use dialogs/Dialogs.h"),
    "clock": (re.compile(r"\bcurrent(?:DateTime|DateTimeUtc|Date|Time|MSecsSinceEpoch|SecsSinceEpoch)\s*\(|"
                         r"\bsystem_clock\b|\bgettimeofday\b|\bclock_gettime\b|"
                         r"(?<![\w.>])time\s*\(\s*(?:nullptr|NULL|0|&)"), None,
              "use runtime/Clock.h"),
    "sql": (None, re.compile(r"(?i:^\s*\(?\s*(?:select\s|insert\s+(?:or\s+\w+\s+)?into\s|delete\s+from\s|update\s+\S+\s+set\b|"
                             r"(?:create|alter|drop)\s+(?:unique\s+)?(?:table|index|view)\b))|"
                             r"\b(?:SELECT|INSERT INTO|DELETE FROM|ORDER BY|GROUP BY|VALUES\s*\(|INNER JOIN|LEFT JOIN)|"
                             r"\b(?:WHERE|FROM)\s+[\w\"(]"),
            "ask a room that knows the tables"),
    "sqlite": (re.compile(r"(?i:sqlite|sqlcipher)"),
               re.compile(r"(?i:sqlite|sqlcipher|\b(?:strftime|typeof|zeroblob|julianday|last_insert_rowid|rowid)\b)|"
                          r"\b(?:PRAGMA|COLLATE|NOCASE|AUTOINCREMENT|WITHOUT ROWID|BEGIN IMMEDIATE|INSERT OR|GLOB)\b"),
               "say it in the words of store"),
    "postgres": (re.compile(r"(?i:postgres|libpq)|\bPQ[a-z]\w+\s*\(|\bpg_\w+"),
                 re.compile(r"(?i:postgres|libpq)|\bpg_\w+|\b(?:BYTEA|BIGSERIAL|SERIAL|RETURNING|ILIKE|SQLSTATE|to_char|"
                            r"GENERATED ALWAYS AS IDENTITY|timestamptz)\b"),
                 "say it in the words of store"),
}


class House:
    """What the checks look at: the list of rooms and the sources below src, with each source's room."""

    def __init__(self, rooms, sources):
        self.rooms = rooms
        self.sources = sources
        self.by_path = {source.path.as_posix(): source for source in sources}
        self.room_of = {source: rooms.of(source.path) for source in sources}

    def included(self, header):
        """The source that an include names, which is written from src or from src/platform; None when there is none."""
        return self.by_path.get(header) or self.by_path.get("platform/" + header)


def rooms(house):
    """Every file is in a room, every room has files."""
    for source in house.sources:
        if house.room_of[source] is None:
            yield source.name, None, "is in no room of src/rooms.txt"
    inhabited = {room.name for room in house.room_of.values() if room}
    for room in house.rooms:
        if room.name not in inhabited:
            yield "src/rooms.txt", None, f"room {room.name} has no files"


def includes(house):
    """A file includes what its room may include. The halves of a folder are rooms of their own."""
    for source in house.sources:
        room = house.room_of[source]
        for bracket, header in source.includes if room else ():
            if bracket != '"':
                continue
            other = house.included(header)
            target = other and house.room_of[other]
            if not target:
                yield source.name, None, f"includes \"{header}\", which is in no room"
            elif not room.may_include(target.name):
                yield source.name, None, f"{room.name} may not include {target.name} (\"{header}\")"


def module_headers(modules):
    """The bare names (<QImage>) of headers that only these modules of Qt have."""
    bases = list(QT_HEADERS.glob("*/qt6"))

    def names(of):
        return {path.name for base in bases for module in of for path in (base / module).glob("*")}
    return names(modules) - names(("QtCore",))


def kinds(house):
    """A room uses no more of Qt than its kind says."""
    beyond = {kind: module_headers(modules) for kind, modules in BEYOND.items()}
    if not all(beyond.values()):
        yield "src/rooms.txt", None, f"the headers of Qt are not below {QT_HEADERS}: their use was not checked"
    for source in house.sources:
        kind = house.room_of[source].kind if house.room_of[source] else None
        for bracket, header in source.includes if kind in BEYOND else ():
            if bracket == "<" and (header in beyond[kind] or header.startswith(tuple(f"{m}/" for m in BEYOND[kind]))):
                yield source.name, None, f"<{header}> is more of Qt than {kind}, the kind of {house.room_of[source].name}"


def belonging(word):
    """The check that what the word stands for is only in rooms that hold it."""
    in_code, in_texts, remedy = BELONGINGS[word]

    def check(house):
        for source in house.sources:
            room = house.room_of[source]
            if room is None or word in room.holds:
                continue
            for line, found in occurrences(source, in_code, in_texts):
                yield source.name, line, f"“{found}” is {word}, which room {room.name} does not hold: {remedy}"
    return check


def occurrences(source, in_code, in_texts):
    """(line, what) of the first place in each line, be it code, an include (which has no line here) or a text."""
    found = {}
    for match in in_code.finditer(source.code) if in_code else ():
        found.setdefault(source.line_of(match.start()), match.group().strip())
    for line, text in source.literals if in_texts else ():
        if match := in_texts.search(text):
            found.setdefault(line, match.group().strip())
    lines = source.text.splitlines()
    yield from ((line, what) for line, what in sorted(found.items()) if not lines[line - 1].lstrip().startswith("#include"))
    yield from ((None, header) for _, header in source.includes if in_code and in_code.search(header))


def sizes(house):
    """No file and no function is too long."""
    for source in house.sources:
        if source.lines > LONGEST_FILE:
            yield source.name, None, f"has {source.lines} lines, more than {LONGEST_FILE}"
        for function in functions_of(source):
            if function.length > LONGEST_FUNCTION:
                yield (source.name, function.first,
                       f"{function.name} has {function.length} lines, more than {LONGEST_FUNCTION}")


def rings(house):
    """Of units, a header and its .cpp each, at most two include each other in a ring."""
    units = {}
    for source in house.sources:
        targets = (house.included(header) for bracket, header in source.includes if bracket == '"')
        unit = source.path.with_suffix("").as_posix()
        units.setdefault(unit, set()).update(t.path.with_suffix("").as_posix() for t in targets if t)
    for ring in components(units):
        if len(ring) > LARGEST_RING:
            yield f"src/{ring[0]}", None, f"{len(ring)} units include each other in a ring: {', '.join(ring)}"


def components(graph):
    """The strongly connected components of the graph, by Tarjan's algorithm without recursion."""
    order, low, stack, on_stack, found = {}, {}, [], set(), []
    for root in sorted(graph):
        work = [(root, iter(sorted(graph[root])))] if root not in order else []
        while work:
            node, successors = work[-1]
            if node not in order:
                order[node] = low[node] = len(order)
                stack.append(node)
                on_stack.add(node)
            for successor in successors:
                if successor not in order:
                    work.append((successor, iter(sorted(graph.get(successor, ())))))
                    break
                if successor in on_stack:
                    low[node] = min(low[node], order[successor])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == order[node]:
                    place = stack.index(node)
                    found.append(sorted(stack[place:]))
                    on_stack.difference_update(stack[place:])
                    del stack[place:]
    return found


#: By the names under which the list of rooms allows known offences.
CHECKS = {**{check.__name__: check for check in (rooms, includes, kinds, sizes, rings)},
          **{word: belonging(word) for word in BELONGINGS}}
