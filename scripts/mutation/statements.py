"""Where the statements of a source begin and end. No compiler: what is taken for a statement and is none makes a
mutant that does not compile, and is counted as that."""

from dataclasses import dataclass

from tokens import OPENING, partners

CONTROLLED = {"if", "for", "while", "switch", "catch"}
NEVER_DROPPED = {
    "return", "using", "static_assert", "typedef", "static", "constexpr", "const", "auto", "struct", "class",
    "enum", "union", "template", "friend", "public", "private", "protected", "namespace", "extern", "inline",
}
DECLARING = {"struct", "class", "enum", "union", "namespace"}


@dataclass(frozen=True)
class Statement:
    first: int  # places of its tokens; the last one is the ";"
    last: int
    controlled: bool  # by an if, else or loop right before it


def opens_statements(tokens, partner, place):
    """Whether the "{" there opens a body, not an initializer, a record or a namespace."""
    if place == 0:
        return False
    before = tokens[place - 1]
    if before.text in {")", "else", "do", "try", "const", "override", "noexcept", "mutable", ";", "{", "}", "]"}:
        return before.text not in {";", "{", "}"} or any(
            begin < place < end and opens_statements(tokens, partner, begin)
            for begin, end in enclosing(tokens, partner, place)
        )
    if before.kind != "word" and before.text not in {">", "&", "*", ":"}:
        return False
    # `-> Type {` of a function, or `case X: {`; any other word in front makes a record or a value.
    at = place - 1
    while at > 0 and (tokens[at].kind == "word" or tokens[at].text in {"::", "<", ">", "&", "*"}):
        at -= 1
    if before.text == ":":
        return True
    return tokens[at].text == "->"


def enclosing(tokens, partner, place):
    """The innermost curly brackets around the place, as a list of one pair or none."""
    at = place - 1
    while at >= 0:
        if tokens[at].text in {")", "]", "}"} and at in partner:
            at = partner[at]
        elif tokens[at].text in OPENING and tokens[at].kind == "mark":
            return [(at, partner.get(at, len(tokens)))] if tokens[at].text == "{" else []
        at -= 1
    return []


def blocks_of(tokens):
    """The simple statements of each block, in order."""
    partner = partners(tokens)
    for place, token in enumerate(tokens):
        if token.text == "{" and token.kind == "mark" and place in partner:
            if opens_statements(tokens, partner, place):
                yield list(statements_of(tokens, partner, place))


def statements_of(tokens, partner, begin):
    at = begin + 1
    end = partner[begin]
    controlled = False
    while at < end:
        text = tokens[at].text
        if text in CONTROLLED:
            at += 1
            if tokens[at].text == "constexpr":
                at += 1
            at = partner.get(at, at) + 1
            controlled = True
        elif text in {"else", "do", "try"}:
            at += 1
            controlled = True
        elif text in {"case", "default"}:
            while at < end and tokens[at].text != ":":
                at += 1
            at += 1
        elif text == "{":
            at = partner[at] + 1
            controlled = False
        else:
            last = statement_end(tokens, partner, at, end)
            if last is None:
                return
            yield Statement(at, last, controlled)
            at = last + 1
            controlled = False


def statement_end(tokens, partner, at, end):
    while at < end:
        text = tokens[at].text
        if text == ";" and tokens[at].kind == "mark":
            return at
        if text in OPENING and tokens[at].kind == "mark":
            at = partner.get(at, end)
        at += 1
    return None


def is_declaration(tokens, first, last):
    """Whether the tokens begin with a type and a name."""
    at = first
    if tokens[at].text in NEVER_DROPPED:
        return True
    if tokens[at].kind != "word":
        return False
    while at < last:
        if tokens[at].kind != "word":
            return False
        at += 1
        if tokens[at].text == "<" and not tokens[at].spaced:
            depth = 0
            while at < last:
                depth += {"<": 1, ">": -1, ">>": -2}.get(tokens[at].text, 0)
                at += 1
                if depth <= 0:
                    break
        if tokens[at].text == "::":
            at += 1
            continue
        while tokens[at].text == "const" or (tokens[at].text in {"*", "&", "&&"} and not tokens[at].spaced):
            at += 1
        return at <= last and tokens[at].kind == "word" and tokens[at - 1].text not in {"throw", "goto", "delete"}
    return False


def is_drop(tokens, statement):
    """Whether the program may still compile without the statement."""
    first = tokens[statement.first]
    if first.text == "return":
        return statement.last == statement.first + 1
    if first.text in {"break", "continue", "throw", "delete"}:
        return True
    return statement.last > statement.first and not is_declaration(tokens, statement.first, statement.last)


def is_write(tokens, statement):
    """Whether the statement may matter to its neighbour. Binding an event to its handler does not."""
    first = tokens[statement.first].text
    return is_drop(tokens, statement) and first not in {"return", "break", "continue", "throw", "On", "OnEach"}
