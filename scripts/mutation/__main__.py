"""scripts/mutate [FOLDER|FILE...]: the run itself."""

import argparse
import fcntl
import os
import re
import signal
import sys
import time

from judged import FILE as JUDGED
from judged import block_of, is_judged, outdated, read_judged
from mutants import mutants_of
from record import KILLED, NOT_COMPILED, SURVIVED, TIMED_OUT, UNNOTICED, Record
from scratch import Scratch
from trial import Trial

DESCRIPTION = """Makes mutants of the sources, each with one small change: a comparison, an operator or a condition
turned, a constant one more or one less, a text emptied, a statement dropped, two neighbouring writes in the
other order. Each is built in a copy under build/mutate and put to the tests, those of its own folder first. What
no test notices is listed and either gets a test, or is no gap and is put down in tests/mutants-judged.txt with the
reason. What has been found out is kept in build/mutate: a run that was broken off goes on, and after new tests
only the survivors are tried again."""


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutate", description=DESCRIPTION)
    parser.add_argument("places", nargs="*", metavar="FOLDER|FILE",
                        help="folders below src/ by their names, or files; all rooms that are built when none is given")
    parser.add_argument("--count", type=int, metavar="N", help="a draw of N mutants instead of all")
    parser.add_argument("--seed", type=int, default=1, metavar="S", help="another draw for each number (default 1)")
    parser.add_argument("--kind", action="append", metavar="KIND",
                        help="only arithmetic, bound, comparison, condition, constant, drop, logic, swap or text")
    parser.add_argument("--sources", action="store_true",
                        help="leave the headers alone, most of which nearly everything is built anew for")
    parser.add_argument("--tables", action="store_true", help="also what stands in the headers' tables of windows")
    parser.add_argument("--qt", action="store_true", help="build with the desktop, for the folders that need Qt")
    parser.add_argument("--nearby", action="store_true",
                        help="a quick look: put them to the tests of their own folder alone")
    parser.add_argument("--jobs", type=int, default=2, metavar="N", help="compilers at once (default 2)")
    parser.add_argument("--list", action="store_true", help="list the mutants and build nothing")
    parser.add_argument("--figures", action="store_true", help="only tell what is known of the draw so far")
    return parser.parse_args()


def sources_of(root, places, with_desktop):
    """The files meant, from the root. Folders and files are found by their names anywhere below src/."""
    every = [
        os.path.relpath(os.path.join(folder, name), root)
        for folder, _, files in os.walk(os.path.join(root, "src"))
        for name in files
        if name.endswith((".cpp", ".h"))
    ]
    if not places:
        return sorted(name for name in every if with_desktop or not name.startswith(rooms_with_qt(root)))
    found = set()
    for place in places:
        path = place.strip("/").removeprefix("src/")
        matches = [name for name in every if f"/{name}/".find(f"/{path}/") >= 0]
        if not matches:
            sys.exit(f"scripts/mutate: no folder or file {place}")
        found.update(matches)
    return sorted(found)


def rooms_with_qt(root):
    """The rooms that CMake's table of the house names as such."""
    with open(os.path.join(root, "CMakeLists.txt"), encoding="utf-8") as text:
        return tuple(f"src/{room}/" for room in re.findall(r"^veldrin_qt_room\((\S+)", text.read(), re.MULTILINE))


def draw(mutants, seed, count):
    """The first `count` by lot, in the order of the sources again."""
    if count is None or count >= len(mutants):
        return mutants
    chosen = {id(mutant) for mutant in sorted(mutants, key=lambda mutant: mutant.lot(seed))[:count]}
    return [mutant for mutant in mutants if id(mutant) in chosen]


def locked(base):
    """The copy is one run's alone while the file that this returns is open."""
    os.makedirs(base, exist_ok=True)
    lock = open(os.path.join(base, "lock"), "w", encoding="utf-8")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit("scripts/mutate: another run is under way here")
    return lock


def folder_of(file):
    return os.path.dirname(file).removeprefix("src/")


def print_mutant(mutant, said=""):
    print(f"{mutant.file}:{mutant.line}: {mutant.kind}{said}")
    for line in mutant.before:
        print(f"  - {line}")
    for line in mutant.after:
        print(f"  + {line}")


def print_figures(rows):
    """A line for each folder. Of those that compile, which survive though nobody judged them to be no gap?"""
    heads = ["folder", "mutants", "compile", "killed", "in time", "judged", "survive", "percent"]
    print("".join(f"{head:>9}" if place else f"{head:<14}" for place, head in enumerate(heads)))
    total = {}
    for counts in rows.values():
        for name, number in counts.items():
            total[name] = total.get(name, 0) + number
    for folder, counts in [*sorted(rows.items()), ("all", total)]:
        compiled = sum(counts.values()) - counts.get(NOT_COMPILED, 0)
        survived = counts.get(SURVIVED, 0)
        numbers = [sum(counts.values()), compiled, counts.get(KILLED, 0), counts.get(TIMED_OUT, 0),
                   counts.get("judged", 0), survived]
        share = f"{100 * survived / compiled:.1f}" if compiled else "-"
        print(f"{folder:<14}" + "".join(f"{number:>9}" for number in numbers) + f"{share:>9}")


def main():
    signal.signal(signal.SIGTERM, lambda number, frame: sys.exit(1))  # so that what was started ends as well
    told = arguments()
    root = os.getcwd()
    files = sources_of(root, told.places, told.qt)
    if told.sources:
        files = [file for file in files if file.endswith(".cpp")]
    sources = {}
    mutants = []
    for file in files:
        with open(os.path.join(root, file), encoding="utf-8", newline="") as text:
            sources[file] = text.read()
        mutants += mutants_of(file, sources[file], told.tables)
    every = mutants
    if told.kind:
        mutants = [mutant for mutant in mutants if mutant.kind in told.kind]
    mutants = draw(mutants, told.seed, told.count)
    if told.list:
        for mutant in mutants:
            print_mutant(mutant)
        print(f"{len(mutants)} mutants")
        return 0

    judged = {}
    if os.path.exists(JUDGED):
        with open(JUDGED, encoding="utf-8") as text:
            judged = read_judged(text.read())
    for judgement in outdated(judged, every):
        print(f"{JUDGED}: no longer in {judgement.file}: {' '.join(judgement.before)}")
    base = os.path.join(root, "build", "mutate", "qt" if told.qt else "core")
    lock = locked(base)
    scratch = Scratch(root, base, ["-DVELDRIN_DESKTOP=ON"] if told.qt else [], told.jobs)
    tree = scratch.sync()
    record = Record(os.path.join(base, "record.jsonl"), tree)
    if not told.figures:
        try_all(mutants, sources, record, scratch, judged, told.nearby)
    report(mutants, sources, record, judged, told.nearby)
    lock.close()
    return 0


def try_all(mutants, sources, record, scratch, judged, nearby):
    keys = {id(mutant): record.key_of(mutant, sources[mutant.file]) for mutant in mutants}
    due = [mutant for mutant in mutants if record.known(keys[id(mutant)], nearby) is None]
    print(f"{len(mutants)} mutants, {len(due)} of them to be tried", flush=True)
    if not due:
        return
    scratch.configure()
    trial = Trial(scratch, record.killers(), nearby)
    failed = trial.baseline([mutant.file for mutant in due])
    if failed:
        sys.exit(f"scripts/mutate: the tree itself does not pass\n{failed}")
    for number, mutant in enumerate(due, 1):
        begin = time.monotonic()
        outcome, by = trial.try_mutant(mutant, sources[mutant.file])
        seconds = time.monotonic() - begin
        record.add(keys[id(mutant)], mutant.file, outcome, by, seconds)
        said = f" [{number}/{len(due)}, {seconds:.0f} s] {outcome}" + (f" by {by}" if by else "")
        if outcome in {SURVIVED, UNNOTICED} and not is_judged(mutant, judged):
            print_mutant(mutant, said)
        else:
            print(f"{mutant.file}:{mutant.line}: {mutant.kind}{said}")
        sys.stdout.flush()


def report(mutants, sources, record, judged, nearby):
    rows = {}
    survivors = []
    untried = 0
    for mutant in mutants:
        result = record.known(record.key_of(mutant, sources[mutant.file]), nearby)
        if result is None:
            untried += 1
            continue
        outcome = SURVIVED if result.outcome == UNNOTICED else result.outcome
        if outcome == SURVIVED and is_judged(mutant, judged):
            outcome = "judged"
        elif outcome == SURVIVED:
            survivors.append(mutant)
        counts = rows.setdefault(folder_of(mutant.file), {})
        counts[outcome] = counts.get(outcome, 0) + 1
    if survivors:
        print("\nSurvivors, as tests/mutants-judged.txt would name them:")
        for mutant in survivors:
            print(f"\n# {mutant.file}:{mutant.line}\n{block_of(mutant)}")
    print()
    print_figures(rows)
    if untried:
        print(f"{untried} are still to be tried")


sys.exit(main())
