"""The mutants of a source: each is the source with one small change."""

import hashlib
import re
from dataclasses import dataclass

from statements import blocks_of, is_declaration, is_drop, is_write
from tokens import partners, tokens_of

SWAPPED = {
    "<": ("<=", "comparison"),
    "<=": ("<", "comparison"),
    ">": (">=", "comparison"),
    ">=": (">", "comparison"),
    "==": ("!=", "comparison"),
    "!=": ("==", "comparison"),
    "&&": ("||", "logic"),
    "||": ("&&", "logic"),
    "+": ("-", "arithmetic"),
    "-": ("+", "arithmetic"),
    "*": ("/", "arithmetic"),
    "/": ("*", "arithmetic"),
    "%": ("*", "arithmetic"),
    "+=": ("-=", "arithmetic"),
    "-=": ("+=", "arithmetic"),
    "&": ("|", "arithmetic"),
    "|": ("&", "arithmetic"),
}
TURNED = {
    "++": ("--", "arithmetic"),
    "--": ("++", "arithmetic"),
    "true": ("false", "constant"),
    "false": ("true", "constant"),
    "min": ("max", "bound"),
    "max": ("min", "bound"),
}


@dataclass(frozen=True)
class Mutant:
    file: str  # from the root
    kind: str
    line: int
    start: int
    end: int
    replacement: str
    before: tuple  # the lines that change, without indentation, ...
    after: tuple  # ... and what they become

    def apply(self, source):
        return source[: self.start] + self.replacement + source[self.end :]

    def lot(self, seed):
        """Its place in the draw of a seed: it stays while the line stays, wherever the file moves."""
        name = "\n".join([str(seed), self.file.rsplit("/", 1)[-1], *self.before, "->", *self.after])
        return hashlib.sha256(name.encode()).hexdigest()


def mutants_of(file, source, with_tables=False):
    """All mutants of a source, in the order of the text. Numbers and texts in a header's fenced tables are the
    places and captions of windows, and left alone unless `with_tables`."""
    tokens = tokens_of(source)
    changes = [*token_changes(tokens), *condition_changes(source, tokens), *statement_changes(source, tokens)]
    skipped = set()
    if file.endswith(".h") and not with_tables:
        skipped = {token.start for token in tokens if token.fenced}
    made = {}
    for kind, start, end, replacement in changes:
        if start not in skipped:
            made[(start, end, replacement)] = describe(file, source, kind, start, end, replacement)
    return sorted(made.values(), key=lambda mutant: (mutant.start, mutant.end))


def describe(file, source, kind, start, end, replacement):
    begin = source.rfind("\n", 0, start) + 1
    stop = source.find("\n", end)
    stop = len(source) if stop < 0 else stop
    before = source[begin:stop]
    after = source[begin:start] + replacement + source[end:stop]
    return Mutant(
        file,
        kind,
        source.count("\n", 0, start) + 1,
        start,
        end,
        replacement,
        tuple(line.strip() for line in before.split("\n")),
        tuple(line.strip() for line in after.split("\n")),
    )


def token_changes(tokens):
    for place, token in enumerate(tokens):
        if place > 0 and tokens[place - 1].text == "operator":
            continue
        if token.kind == "mark" and token.spaced and token.text in SWAPPED:
            text, kind = SWAPPED[token.text]
            yield kind, token.start, token.end, text
        elif token.kind in {"mark", "word"} and token.text in TURNED:
            text, kind = TURNED[token.text]
            if kind != "bound" or tokens[place - 1].text == "::":
                yield kind, token.start, token.end, text
        elif token.text == "!" and token.kind == "mark":
            yield "logic", token.start, token.end, ""
        elif token.kind == "number" and not is_pure(tokens, place):
            for text in neighbours(token.text):
                yield "constant", token.start, token.end, text
        elif token.kind == "character":
            for text in next_character(token.text):
                yield "constant", token.start, token.end, text
        elif token.kind == "text":
            yield "text", token.start, token.end, '""' if len(token.text) > 2 else '"?"'


def is_pure(tokens, place):
    """The 0 of a function without a body."""
    before = [token.text for token in tokens[max(0, place - 2) : place + 1]]
    return before[1:] == ["=", "0"] and before[0] in {")", "const", "noexcept"}


def neighbours(number):
    """The numbers one below and one above, spelled alike."""
    match = re.fullmatch(r"(0[xX][\da-fA-F]+|\d+\.\d*|\.\d+|\d+)([uUlLfFzZ]*)", number.replace("'", ""))
    if match is None or re.fullmatch(r"0\d+", number):
        return
    digits, suffix = match.groups()
    for step in (-1, 1):
        if digits[:2].lower() == "0x":
            value = int(digits, 16) + step
            text = f"0x{value:0{len(digits) - 2}X}" if value >= 0 else str(value)
        elif "." in digits:
            places = len(digits.split(".")[1])
            text = f"{float(digits) + step:.{max(places, 1)}f}"
        else:
            text = str(int(digits) + step)
        yield f"({text}{suffix})" if text.startswith("-") else text + suffix


def next_character(character):
    match = re.fullmatch(r"([^']*)'([ -~])'", character)
    if match and match.group(2) not in "&[":
        yield f"{match.group(1)}'{chr(ord(match.group(2)) + 1)}'"
    elif match is None and "\\" in character:
        yield "'\\1'"


def condition_changes(source, tokens):
    """`if (x)` as `if (!(x))`; a comparison alone, or a "!" alone, is turned as itself."""
    partner = partners(tokens)
    for place, token in enumerate(tokens[:-1]):
        opening = place + 1
        if token.text not in {"if", "while"} or tokens[opening].text != "(" or opening not in partner:
            continue
        closing = partner[opening]
        inside = tokens[opening + 1 : closing]
        marks = [one.text for one in inside if one.kind == "mark" and one.spaced]
        declares = ";" in [one.text for one in inside] or is_declaration(tokens, opening + 1, closing - 1)
        alone = "&&" not in marks and "||" not in marks
        turned = alone and (marks.count("==") + marks.count("!=") == 1 or inside[0].text == "!")
        if not declares and not turned:
            start, end = tokens[opening].end, tokens[closing].start
            yield "condition", start, end, "!(" + source[start:end] + ")"


def statement_changes(source, tokens):
    for statements in blocks_of(tokens):
        for k, statement in enumerate(statements):
            start, end = tokens[statement.first].start, tokens[statement.last].end
            if is_drop(tokens, statement):
                yield "drop", start, end, "{}" if statement.controlled else ";"
            behind = statements[k + 1] if k + 1 < len(statements) else None
            if behind is None or behind.first != statement.last + 1 or statement.controlled:
                continue
            if is_write(tokens, statement) and is_write(tokens, behind):
                second_start, second_end = tokens[behind.first].start, tokens[behind.last].end
                first, second = source[start:end], source[second_start:second_end]
                if first != second:
                    yield "swap", start, second_end, second + source[end:second_start] + first
