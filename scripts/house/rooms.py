"""The list of rooms, src/rooms.txt, which says what its keys mean."""

import dataclasses
import fnmatch
import pathlib

KINDS = ("core", "gui", "widgets", "programs")
KEYS = ("room", "what", "folder", "files", "kind", "libraries", "includes", "holds")


class BadList(Exception):
    """The list cannot be understood."""


@dataclasses.dataclass
class Room:
    name: str
    what: str = ""
    folder: str = ""
    files: tuple = ()
    kind: str = "core"
    libraries: tuple = ()
    includes: tuple = ()
    holds: tuple = ()

    def may_include(self, other):
        return other in (self.name, *self.includes) or "*" in self.includes

    def claims(self, path):
        """Whether the file, a path below src, is named by the room's patterns or, without any, lies in its folder."""
        inside = path.is_relative_to(self.folder)
        return inside and (not self.files or any(fnmatch.fnmatch(path.name, pattern) for pattern in self.files))


@dataclasses.dataclass(frozen=True)
class Allowance:
    check: str
    path: str


class Rooms:
    def __init__(self, text):
        self.rooms = {}
        self.allowances = []
        for number, line in enumerate(text.splitlines(), 1):
            try:
                self._read(line.strip())
            except (ValueError, BadList) as error:
                raise BadList(f"line {number} of the list of rooms: {error}") from None
        self._check()

    def _read(self, line):
        if not line or line.startswith("#"):
            return
        if line.startswith("allow "):
            self.allowances.append(Allowance(*line.split()[1:]) if len(line.split()) == 3 else self._refuse(line))
            return
        key, value = (part.strip() for part in line.split(":", 1))
        if key not in KEYS:
            self._refuse(f"unknown key {key}")
        if key == "room":
            self.rooms[value] = Room(value)
            return
        if not self.rooms:
            self._refuse("a room begins with its name")
        room = list(self.rooms.values())[-1]
        setattr(room, key, tuple(value.split()) if isinstance(getattr(room, key), tuple) else value)

    @staticmethod
    def _refuse(what):
        raise BadList(what)

    def _check(self):
        if not self.rooms:
            self._refuse("there is no room")
        for room in self.rooms.values():
            unknown = [name for name in room.includes if name not in self.rooms and name != "*"]
            if unknown:
                self._refuse(f"room {room.name} may include {', '.join(unknown)}, which is in no list")
            if room.kind not in KINDS or not room.folder or not room.what:
                self._refuse(f"room {room.name} needs a kind of {', '.join(KINDS)}, a folder and a word on what it is")

    def of(self, path):
        """The room of a file, a path below src; None for one that is in none. The deepest folder decides, in it patterns."""
        claiming = [room for room in self.rooms.values() if room.claims(pathlib.PurePath(path))]
        return max(claiming, key=lambda room: (len(pathlib.PurePath(room.folder).parts), bool(room.files)), default=None)

    def __iter__(self):
        return iter(self.rooms.values())
