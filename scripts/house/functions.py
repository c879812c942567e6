"""Where functions begin and end, in code that clang-format has laid out.

A brace opens a function when the statement that it ends looks like a function's head and the scope around is a namespace
or a class. Lambdas belong to the function around them.
"""

import dataclasses
import re

SCOPE = re.compile(r"(?:namespace|class|struct|union|enum)\b|extern\s*\"[^(]*$")
# What stands before the body: the end of the parameters or of an initialiser, words behind them, a type behind an arrow.
TAIL = re.compile(r"(?:[)}&]|\b(?:const|override|final|noexcept|mutable|try))$|\)\s*(?:const\s*)?(?:noexcept\s*)?->[^;]*$")
NAME = re.compile(r"(operator\s*(?:\(\)|[^\s(]+|\w+)|~?[A-Za-z_]\w*)\s*$")
PREPROCESSOR = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
LEADING = re.compile(r"\s+|(?:public|protected|private|signals|Q_OBJECT\b|(?:public|private)\s+slots)\s*:?(?!:)")


@dataclasses.dataclass
class Function:
    name: str
    first: int
    last: int

    @property
    def length(self):
        return self.last - self.first + 1


def parameters_at(head):
    """Where the head's parameters open: the first parenthesis outside of template brackets; -1 without any."""
    depth = 0
    for place, sign in enumerate(head):
        before = head[:place].rstrip()
        if before.endswith("operator"):
            # Its sign may be a bracket: operator<(...), operator()(...).
            return head.find("(", place + (2 if sign == "(" else 1))
        if sign == "<":
            depth += 1
        elif sign == ">" and depth:
            depth -= 1
        elif sign == "(" and not depth:
            return place
    return -1


def without_template(head):
    """The head behind `template <...>`, however often that stands there."""
    while head.startswith("template"):
        depth = 0
        for place, sign in enumerate(head):
            depth += {"<": 1, ">": -1}.get(sign, 0)
            if sign == ">" and not depth:
                break
        head = head[place + 1:].lstrip()
    return head


def meaning_of(head):
    """What a brace behind the head opens: ("scope", None), ("function", its name) or ("other", None)."""
    head = without_template(head)
    if not head or (SCOPE.match(head) and not re.search(r"\)(\s*const)?$", head)):
        return "scope", None
    place = parameters_at(head)
    name = NAME.search(head[:place]) if place >= 0 else None
    if not name or "=" in re.sub(r"operator\s*\S+", "", head[:place]) or not TAIL.search(head):
        return "other", None
    return "function", re.sub(r"\s+", "", name.group(1))


class Scanner:
    """Goes over the code once; `start` is where the statement at hand begins."""

    def __init__(self, source):
        self.source = source
        self.code = PREPROCESSOR.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), source.code)
        self.start = 0
        self.parentheses = 0
        self.open = []
        self.functions = []

    def run(self):
        for match in re.finditer(r"[(){};]", self.code):
            {"(": self.parenthesis, ")": self.parenthesis, "{": self.opening, "}": self.closing,
             ";": self.semicolon}[match.group()](match.start())
        return self.functions

    def in_scope(self):
        return not self.parentheses and (not self.open or self.open[-1][0] == "scope")

    def parenthesis(self, place):
        self.parentheses += 1 if self.code[place] == "(" else -1

    def semicolon(self, place):
        if self.in_scope():
            self.start = place + 1

    def opening(self, place):
        if not self.in_scope():
            self.open.append(("other", None, place))
            return
        while leading := LEADING.match(self.code, self.start):
            self.start = leading.end()
        kind, name = meaning_of(self.code[self.start:place].strip())
        self.open.append((kind, name, self.start))
        if kind == "scope":
            self.start = place + 1

    def closing(self, place):
        kind, name, first = self.open.pop()
        if kind == "function":
            self.functions.append(Function(name, self.source.line_of(first), self.source.line_of(place)))
        if kind != "other":
            self.start = place + 1


def functions_of(source):
    """The functions of a Source, in the order in which they end."""
    return Scanner(source).run()
