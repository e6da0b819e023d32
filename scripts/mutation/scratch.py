"""A copy of the tree under build/mutate, and its build. Mutants stand there alone, never in the working tree."""

import atexit
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

from judged import FILE as JUDGED

# What the outcome of a test may depend on.
TESTED = ("CMakeLists.txt", "CMakePresets.json", "src/", "tests/", "share/")


class Scratch:
    def __init__(self, root, base, definitions, jobs):
        self.root = root
        self.base = base
        self.tree = os.path.join(base, "tree")
        self.build = os.path.join(base, "build")
        # Outside of the tree: tests look for the program's folders above their own.
        outside = tempfile.TemporaryDirectory(prefix="veldrin-mutate-")
        atexit.register(outside.cleanup)
        self.home = outside.name
        self.definitions = definitions
        self.jobs = jobs
        self.original = None  # of the mutant that stands in the tree: its path, text and time

    def listed(self):
        command = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        names = subprocess.run(command, cwd=self.root, check=True, stdout=subprocess.PIPE).stdout
        return sorted(name for name in names.decode().split("\0") if os.path.isfile(os.path.join(self.root, name)))

    def sync(self):
        """Brings the copy up to the working tree; what is alike keeps its time, so that it is not built again.
        Returns a name for all that tests depend on."""
        names = self.listed()
        digest = hashlib.sha256()
        for name in names:
            source = os.path.join(self.root, name)
            with open(source, "rb") as file:
                content = file.read()
            if name.startswith(TESTED) and name != JUDGED:
                digest.update(name.encode() + b"\0" + content + b"\0")
            target = os.path.join(self.tree, name)
            if not same(target, content):
                os.makedirs(os.path.dirname(target), exist_ok=True)
                with open(target, "wb") as file:
                    file.write(content)
                shutil.copymode(source, target)
        known = set(names)
        for folder, _, files in os.walk(self.tree):
            for name in files:
                path = os.path.join(folder, name)
                if os.path.relpath(path, self.tree) not in known:
                    os.remove(path)
        return digest.hexdigest()

    def configure(self):
        # Warnings are errors, and a mutant may well leave a variable unused; what it reads beyond an end is not to
        # pass for right by chance.
        flags = ["-DCMAKE_CXX_FLAGS=-w -D_GLIBCXX_ASSERTIONS", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0"]
        flags += self.definitions
        command = ["cmake", "--preset", "quick", "-B", self.build, *flags]
        done = subprocess.run(command, cwd=self.tree, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode != 0:
            sys.exit(done.stdout)

    def make(self, targets, is_mutant=True):
        """Builds; returns what went wrong, nothing when all went well."""
        # A mutant is built once: it has no place in the compiler's cache.
        environment = {**os.environ, "CCACHE_READONLY": "1"} if is_mutant else dict(os.environ)
        command = ["ninja", "-C", self.build, "-j", str(self.jobs), *targets]
        done = subprocess.run(
            command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace"
        )
        return "" if done.returncode == 0 else done.stdout

    def executables(self):
        lines = subprocess.run(
            ["ninja", "-C", self.build, "-t", "targets", "all"], check=True, stdout=subprocess.PIPE, text=True
        ).stdout
        return re.findall(r"^(bin/\S+): CXX_EXECUTABLE_LINKER", lines, re.MULTILINE)

    def sources_reading(self, header, folders):
        """The sources in the folders (src/view, tests/view) that include the header, by the compiler's own word."""
        text = subprocess.run(
            ["ninja", "-C", self.build, "-t", "deps"], check=True, stdout=subprocess.PIPE, text=True
        ).stdout
        wanted = os.path.join(self.tree, header)
        sources = set()
        for block in text.split("\n\n"):
            read = [os.path.normpath(os.path.join(self.build, line.strip())) for line in block.split("\n")[1:]]
            if wanted in read:
                sources.update(path for path in read if path.endswith(".cpp"))
        places = tuple(os.path.join(self.tree, folder) + os.sep for folder in folders)
        return sorted(path for path in sources if path.startswith(places))

    def put(self, mutant, source, unseen_by_others):
        """Puts a mutant in the file's place. A header's may hide from all but the sources that are touched."""
        path = os.path.join(self.tree, mutant.file)
        self.original = (path, source, os.stat(path).st_mtime_ns)
        write(path, mutant.apply(source))
        if unseen_by_others:
            os.utime(path, ns=(self.original[2], self.original[2]))

    def restore(self, unseen_by_others):
        path, source, time = self.original
        write(path, source)
        if unseen_by_others:
            os.utime(path, ns=(time, time))
        self.original = None

    def command_tests(self):
        """The tests of the build's list, by name."""
        text = subprocess.run(
            ["ctest", "--show-only=json-v1"], cwd=self.build, check=True, stdout=subprocess.PIPE, text=True
        ).stdout
        return {test["name"]: test.get("command", []) for test in json.loads(text)["tests"]}


def same(path, content):
    if not os.path.isfile(path) or os.path.getsize(path) != len(content):
        return False
    with open(path, "rb") as file:
        return file.read() == content


def write(path, text):
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write(text)


def touch(path):
    os.utime(path)
