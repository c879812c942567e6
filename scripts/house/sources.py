"""Source files as the checks see them: with comments and literals told apart from code."""

import bisect
import pathlib
import re

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+([<"])([^>"]+)[>"]', re.MULTILINE)
TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/'
    r'|R"(?P<mark>[^()\\ ]*)\((?P<raw>.*?)\)(?P=mark)"'
    r'|"(?P<text>(?:[^"\\\n]|\\.)*)"'
    r"|'(?:[^'\\\n]|\\.)*'", re.DOTALL)
# A digit separator is no character: 1'000.
SEPARATOR = re.compile(r"(?<=[0-9a-fA-F])'(?=[0-9a-fA-F])")


def blank(text):
    """The same number of characters and lines, and nothing in them."""
    return re.sub(r"[^\n]", " ", text)


class Source:
    """A file: `name` is its path below the project, `path` that below src."""

    def __init__(self, project, file):
        self.name = file.relative_to(project).as_posix()
        parts = file.relative_to(project).parts
        self.path = pathlib.PurePath(*parts[1:])
        self.text = file.read_text(encoding="utf-8")
        self.lines = self.text.count("\n")
        self.includes = INCLUDE.findall(self.text)
        #: (line, text) of every literal that is a text.
        self.literals = []
        #: The code without comments; literals are kept as empty ones.
        self.code = self._code()
        self._starts = [0] + [match.end() for match in re.finditer("\n", self.text)]

    def line_of(self, place):
        return bisect.bisect_right(self._starts, place)

    def _code(self):
        text = SEPARATOR.sub("_", self.text)
        line, seen = 1, 0

        def replaced(match):
            nonlocal line, seen
            line, seen = line + text.count("\n", seen, match.start()), match.start()
            found = match.group()
            literal = match["raw"] if match["raw"] is not None else match["text"]
            if literal is not None:
                self.literals.append((line, literal))
                return '"' + blank(found[1:-1]) + '"'
            return blank(found) if found.startswith("/") else "'" + blank(found[1:-1]) + "'"

        return TOKEN.sub(replaced, text)


def sources(project, *folders):
    """The C++ files below the folders of the project, in order."""
    files = [file for folder in folders for file in (project / folder).rglob("*") if file.suffix in (".h", ".cpp")]
    return [Source(project, file) for file in sorted(files)]
