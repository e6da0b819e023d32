"""What a mutant has to pass: the tests of its own folder first, then all scripts, all other tests, and what else the
build's list of tests holds. The first failure ends it."""

import hashlib
import os
import re

from processes import run
from record import KILLED, NOT_COMPILED, SURVIVED, TIMED_OUT, UNNOTICED
from scratch import touch

ENVIRONMENT = {"LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen"}
# Tests of the tree itself, which a mutant's text is not to answer for.
OF_THE_TREE = r"^(include-arrows|format|mutation)"


class Trial:
    def __init__(self, scratch, killers, nearby):
        self.scratch = scratch
        self.nearby = nearby  # only the tests of a mutant's own folder
        self.executables = scratch.executables()
        self.units = [name for name in self.executables if os.path.basename(name).startswith("test-")]
        scripts = find(scratch.tree, "tests/scripts", ".script")
        known = set(scripts)
        first = [script for script in killers if script in known]
        self.scripts = first + [script for script in scripts if script not in set(first)]
        self.limits = {}
        self.unchanged = {}  # what each program of a stage is, built without a mutant
        home = scratch.home
        self.environment = dict(ENVIRONMENT, HOME=home, TMPDIR=home)
        self.environment.update({f"XDG_{name}": home for name in ("CONFIG_HOME", "DATA_HOME", "RUNTIME_DIR")})

    def baseline(self, files):
        """Builds and tests the tree as it is, which tells how long everything may take. Returns what fails."""
        near = sorted({unit for file in files for unit in self.near_units(file)})
        failed = self.scratch.make(near if self.nearby else [], is_mutant=False)
        if failed:
            return failed
        for stage in near if self.nearby else [*self.units, "scripts", "rest"]:
            ended = self.run_stage(stage, 1800)
            if ended.failure:
                return f"{stage}: {ended.failure}"
            self.limits[stage] = 20 + 10 * ended.seconds
            self.unchanged[stage] = self.content_of(stage)
        return ""

    def program_of(self, stage):
        """The one program that the stage runs; none where there are several."""
        if stage == "scripts":
            return next((name for name in self.executables if os.path.basename(name) == "veldrin-script"), None)
        return stage if stage in self.units else None

    def content_of(self, stage):
        program = self.program_of(stage)
        if program is None:
            return None
        with open(self.path(program), "rb") as file:
            return hashlib.sha256(file.read()).hexdigest()

    def is_unchanged(self, stage):
        """Whether the mutant is no part of what the stage runs."""
        return self.unchanged.get(stage) is not None and self.unchanged[stage] == self.content_of(stage)

    def run_stage(self, stage, limit=None):
        limit = limit or self.limits[stage]
        if stage == "scripts":
            runner = self.program_of(stage)
            command = [self.path(runner), *self.scripts] if runner else ["true"]
            return self.run(command, self.scratch.tree, limit, failure_in_script)
        if stage == "rest":
            units = "|".join(os.path.basename(name).removeprefix("test-") for name in self.units)
            leave = OF_THE_TREE + (rf"|^script\.|^({units})(\.|$)" if units else r"|^script\.")
            command = ["ctest", "-E", leave, "--stop-on-failure", "--no-tests=ignore"]
            return self.run(command, self.scratch.build, limit, failure_in_list)
        command = [self.path(stage), "--gtest_fail_fast", "--gtest_brief=1"]
        return self.run(command, self.scratch.build, limit, failure_in_unit)

    def run(self, command, folder, limit, failure_in):
        return run(command, folder, limit, self.environment, failure_in)

    def path(self, executable):
        return os.path.join(self.scratch.build, executable)

    def near_units(self, file):
        """The test program of the innermost folder that has one."""
        for folder in reversed(file.split("/")[1:-1]):
            if f"bin/test-{folder}" in self.units:
                return [f"bin/test-{folder}"]
        return []

    def try_mutant(self, mutant, source):
        """What becomes of the mutant, and what noticed it."""
        near = self.near_units(mutant.file)
        # A header that is read nearly everywhere is built first for its own folder and that folder's tests alone.
        hidden = mutant.file.endswith(".h") and bool(near)
        readers = self.readers(mutant.file, near) if hidden else []
        self.scratch.put(mutant, source, hidden)
        try:
            if hidden:
                for reader in readers:
                    touch(reader)
            if near:
                outcome = self.judge(near, near, hidden)
                if outcome:
                    return outcome
            if self.nearby:
                return UNNOTICED, ""
            if hidden:
                hidden = False
                touch(os.path.join(self.scratch.tree, mutant.file))
            others = [stage for stage in self.units if stage not in near or mutant.file.endswith(".h")]
            runner = self.program_of("scripts")
            outcome = self.judge([runner], ["scripts"], False) if runner else None  # most is noticed here
            return outcome or self.judge([], [*others, "rest"], False) or (SURVIVED, "")
        finally:
            if hidden:
                for reader in readers:
                    touch(reader)
            self.scratch.restore(hidden)

    def judge(self, targets, stages, hidden):
        """The end of the mutant at one of the stages; nothing when it lives. Halves of a program that know a
        header differently may crash for that alone, so a crash of theirs proves nothing."""
        if self.scratch.make(targets):
            return NOT_COMPILED, "the compiler"
        for stage in stages:
            if self.is_unchanged(stage):
                continue
            ended = self.run_stage(stage)
            if ended.failure and not (hidden and ended.crashed):
                return (TIMED_OUT if ended.timed_out else KILLED), ended.failure if not ended.timed_out else stage
        return None

    def readers(self, header, near):
        folders = ["/".join(header.split("/")[:2])]
        folders += [f"tests/{os.path.basename(name).removeprefix('test-')}" for name in near]
        return self.scratch.sources_reading(header, folders)


def find(tree, folder, ending):
    found = []
    for path, _, files in os.walk(os.path.join(tree, folder)):
        found += [os.path.relpath(os.path.join(path, name), tree) for name in files if name.endswith(ending)]
    return sorted(found)


def failure_in_unit(line):
    match = re.match(r"\[  FAILED  \] (\S+?),? ", line + " ")
    return match.group(1) if match else ""


def failure_in_script(line):
    match = re.match(r"(\S*\.script):(\d+:)? (?!warning: )", line)
    return match.group(1) if match else ""


def failure_in_list(line):
    match = re.search(r"Test +#\d+: (\S+) .*\*\*\*", line)
    return match.group(1) if match else ""
