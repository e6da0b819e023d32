"""The tokens of a C++ source, as far as a mutant needs to know them: it is formatted, so that a "<" between
blanks compares and any other one belongs to a template."""

import re
from dataclasses import dataclass

PATTERN = re.compile(
    r"""
    (?P<comment> //[^\n]* | /\*.*?\*/ )
  | (?P<directive> (?m:^)[ \t]*\#(?:\\\n|[^\n])* )
  | (?P<raw> (?:u8|[uUL])?R"(?P<fence>[^()\s]*)\(.*?\)(?P=fence)" )
  | (?P<text> (?:u8|[uUL])?"(?:\\.|[^"\\\n])*" )
  | (?P<character> (?:u8|[uUL])?'(?:\\.|[^'\\\n])+' )
  | (?P<number> \.?\d(?:'?[\w.]|(?<=[eEpP])[+-])* )
  | (?P<word> [A-Za-z_]\w* )
  | (?P<mark> <<=|>>=|<=>|\.\.\.|->\*|::|->|\+\+|--|<<|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|. )
    """,
    re.VERBOSE | re.DOTALL,
)
OPENING = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    spaced: bool  # blanks or line ends on both sides
    fenced: bool  # in a table that the formatter leaves alone

    @property
    def end(self):
        return self.start + len(self.text)


class Branches:
    """Which branch of each `#if` the compiler takes: not that of Windows, else the first."""

    def __init__(self):
        self.open_ones = []  # for each #if: whether its branch is taken, and whether one was taken before

    def read(self, directive):
        words = directive.replace("#", " ", 1).split()
        word, condition = words[0] if words else "", " ".join(words[1:])
        if word in {"if", "ifdef", "ifndef"}:
            windows = "_WIN32" in condition
            taken = not windows or word == "ifndef" or "!" in condition
            self.open_ones.append((taken, taken))
        elif word in {"elif", "else"} and self.open_ones:
            before = self.open_ones.pop()[1]
            taken = not before and "_WIN32" not in condition
            self.open_ones.append((taken, before or taken))
        elif word == "endif" and self.open_ones:
            self.open_ones.pop()

    def taken(self):
        return all(taken for taken, _ in self.open_ones)


def tokens_of(source):
    """The tokens that the compiler sees, but directives, in order."""
    found = []
    branches = Branches()
    fenced = False
    at = 0
    while at < len(source):
        if source[at].isspace() and not (at == 0 or source[at - 1] == "\n"):
            at += 1
            continue
        match = PATTERN.match(source, at)
        if match is None or (match.lastgroup == "mark" and source[at].isspace()):
            at += 1
            continue
        kind = match.lastgroup if match.lastgroup != "fence" else "raw"
        text = match.group(kind)
        if kind == "comment":
            if "clang-format off" in text or "clang-format on" in text:
                fenced = "clang-format off" in text
        elif kind == "directive":
            branches.read(text)
        elif branches.taken():
            before = source[at - 1 : at]
            behind = source[match.end() : match.end() + 1]
            found.append(Token(kind, text, at, before.isspace() and behind.isspace(), fenced))
        at = match.end()
    return found


def partners(tokens):
    """For each bracket's place that of its partner; curly, round and square ones."""
    partner = {}
    open_ones = []
    for place, token in enumerate(tokens):
        if token.kind != "mark":
            continue
        if token.text in OPENING:
            open_ones.append(place)
        elif token.text in OPENING.values() and open_ones:
            begin = open_ones.pop()
            partner[begin] = place
            partner[place] = begin
    return partner
