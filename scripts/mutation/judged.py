"""The survivors that were looked at and found to be no gap: the change makes no difference, or only one that
nothing prescribes. They stand in tests/mutants-judged.txt, one block each:

    canvas.cpp
    - the lines of the source
    + what they become
    Why that is all the same.

Lines are told by their texts and files by their names, so that both may move. "+ *" stands for whatever becomes of
the lines, where all of it is a matter of taste."""

from dataclasses import dataclass, field

FILE = "tests/mutants-judged.txt"
ANYTHING = ("*",)


@dataclass
class Judgement:
    file: str
    before: list = field(default_factory=list)
    after: list = field(default_factory=list)
    reason: list = field(default_factory=list)

    @property
    def key(self):
        return self.file, tuple(self.before), tuple(self.after)


def read_judged(text):
    """The judgements of a file's text by what they are about. Raises ValueError for a block that lacks a part."""
    judged = {}
    for block in text.split("\n\n"):
        lines = [line for line in block.split("\n") if line.strip() and not line.startswith("#")]
        if not lines:
            continue
        judgement = Judgement(lines[0].strip())
        for line in lines[1:]:
            if line[0] in "-+" and not judgement.reason:
                (judgement.before if line[0] == "-" else judgement.after).append(line[1:].strip())
            else:
                judgement.reason.append(line.strip())
        if not judgement.before or not judgement.after or not judgement.reason:
            raise ValueError(f"{FILE}: {lines[0]}: a block is a file, its lines with - and +, and the reason")
        if judgement.key in judged:
            raise ValueError(f"{FILE}: {lines[0]}: judged twice: {judgement.before}")
        judged[judgement.key] = judgement
    return judged


def keys_of(mutant):
    name = mutant.file.rsplit("/", 1)[-1]
    return (name, mutant.before, mutant.after), (name, mutant.before, ANYTHING)


def is_judged(mutant, judged):
    return any(key in judged for key in keys_of(mutant))


def outdated(judged, mutants):
    """Those on files of which mutants were made, though none of these is what was judged."""
    names = {mutant.file.rsplit("/", 1)[-1] for mutant in mutants}
    made = {key for mutant in mutants for key in keys_of(mutant)}
    return [judgement for key, judgement in judged.items() if judgement.file in names and key not in made]


def block_of(mutant):
    """The block for the file, its reason still to be written."""
    lines = [mutant.file.rsplit("/", 1)[-1]]
    lines += [f"- {line}".rstrip() for line in mutant.before]
    lines += [f"+ {line}".rstrip() for line in mutant.after]
    return "\n".join(lines)
