"""What became of each mutant, kept under build/mutate so that a run goes on where the last one ended."""

import hashlib
import json
import os
from dataclasses import asdict, dataclass

NOT_COMPILED = "does not compile"
KILLED = "killed"
TIMED_OUT = "killed by the time limit"
SURVIVED = "survived"
UNNOTICED = "unnoticed nearby"  # by the tests of its own folder; the others were not asked


@dataclass
class Result:
    key: str
    file: str
    outcome: str
    by: str  # the program or script that noticed
    seconds: float
    tree: str  # of a survivor: all that it was tried against


class Record:
    """A line for each result. A result holds while its source stays as it is; a survivor's, while nothing at all
    has changed."""

    def __init__(self, path, tree):
        self.path = path
        self.tree = tree
        self.results = {}
        if os.path.exists(path):
            with open(path, encoding="utf-8") as lines:
                for line in lines:
                    result = Result(**json.loads(line))
                    self.results[result.key] = result

    @staticmethod
    def key_of(mutant, source):
        text = "\n".join([mutant.file, str(mutant.start), str(mutant.end), mutant.replacement, source])
        return hashlib.sha256(text.encode()).hexdigest()

    def known(self, key, nearby=False):
        """What is known of a mutant and still holds; nothing when it is to be tried."""
        result = self.results.get(key)
        if result is None or (result.outcome in {SURVIVED, UNNOTICED} and result.tree != self.tree):
            return None
        return None if result.outcome == UNNOTICED and not nearby else result

    def add(self, key, file, outcome, by, seconds):
        result = Result(key, file, outcome, by, round(seconds, 1), self.tree)
        self.results[key] = result
        with open(self.path, "a", encoding="utf-8") as lines:
            lines.write(json.dumps(asdict(result)) + "\n")
        return result

    def killers(self):
        """The scripts that noticed something, those that noticed most first."""
        counts = {}
        for result in self.results.values():
            if result.by.endswith(".script"):
                counts[result.by] = counts.get(result.by, 0) + 1
        return sorted(counts, key=lambda script: (-counts[script], script))
