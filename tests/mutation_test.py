"""Tests of scripts/mutation: its parts, then a run on a tree of two functions."""

import os
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "scripts", "mutation"))

from judged import block_of, is_judged, outdated, read_judged  # noqa: E402
from mutants import mutants_of  # noqa: E402
from processes import run  # noqa: E402
from record import KILLED, SURVIVED, Record  # noqa: E402


def changes(source, kind=None, file="src/toy/toy.cpp"):
    """What the lines at fault become, by the mutants of a kind."""
    return [" / ".join(one.after) for one in mutants_of(file, source) if kind in (None, one.kind)]


def body(text):
    return "void F() {\n" + text + "\n}\n"


class Mutants(unittest.TestCase):
    def test_comparisons_are_those_between_blanks(self):
        source = body("std::vector<int> v; a = b < c; a = b->c; a = b >= c;")
        self.assertEqual(
            [one.split("; ")[1:] for one in changes(source, "comparison")],
            [["a = b <= c", "a = b->c", "a = b >= c;"], ["a = b < c", "a = b->c", "a = b > c;"]],
        )

    def test_operators_and_negations_are_turned(self):
        self.assertEqual(changes("int x = a + b;", "arithmetic"), ["int x = a - b;"])
        self.assertEqual(changes("int x = -a * b;", "arithmetic"), ["int x = -a / b;"])
        self.assertEqual(changes("bool x = a && !b;", "logic"), ["bool x = a || !b;", "bool x = a && b;"])
        self.assertEqual(changes("int&& x = std::max(a, b);", "bound"), ["int&& x = std::min(a, b);"])

    def test_operators_that_are_declared_stay(self):
        self.assertEqual(changes("bool operator == (A, A);"), [])

    def test_constants_go_one_down_and_one_up(self):
        self.assertEqual(changes("int x = 10;"), ["int x = 9;", "int x = 11;"])
        self.assertEqual(changes("int x = 0;"), ["int x = (-1);", "int x = 1;"])
        self.assertEqual(changes("int x = 0x7F;"), ["int x = 0x7E;", "int x = 0x80;"])
        self.assertEqual(changes("float x = 1.25F;"), ["float x = 0.25F;", "float x = 2.25F;"])
        self.assertEqual(changes("char x = ',';"), ["char x = '-';"])
        self.assertEqual(changes("bool x = true;"), ["bool x = false;"])
        self.assertEqual(changes("virtual void F() const = 0;"), [])

    def test_texts_are_emptied(self):
        self.assertEqual(changes('auto x = "1ST";'), ['auto x = "";'])
        self.assertEqual(changes('auto x = "";'), ['auto x = "?";'])

    def test_comments_and_directives_stay(self):
        self.assertEqual(changes('#include "a.h"\n// 1 < 2\n/* 3 */\n'), [])

    def test_branches_that_are_not_compiled_stay(self):
        source = "#ifdef _WIN32\nint a = 1;\n#elif X\nint b = 1;\n#else\nint c = 1;\n#endif\nint d = 1;\n"
        self.assertEqual([line[4] for line in changes(source)], ["b", "b", "d", "d"])
        source = "#ifndef _WIN32\nint a = 1;\n#else\nint b = 1;\n#endif\n#if X\nint c = 1;\n#else\nint d = 1;\n#endif\n"
        self.assertEqual([line[4] for line in changes(source)], ["a", "a", "c", "c"])

    def test_conditions_are_negated_once(self):
        self.assertEqual(changes(body("if (a && b) F();"), "condition"), ["if (!(a && b)) F();"])
        self.assertEqual(changes(body("if (a == b) F();"), "condition"), [], "the comparison is turned")
        self.assertEqual(changes(body("if (!a) F();"), "condition"), [], "the negation is dropped")
        self.assertEqual(changes(body("if (A* a = G()) F();"), "condition"), [])

    def test_statements_are_dropped_but_not_declarations(self):
        source = body("int x = 0;\nx = G();\nif (x) H();\nstd::vector<int> v(3);\nreturn;")
        self.assertEqual(changes(source, "drop"), [";", "if (x) {}", ";"])

    def test_statements_of_lambdas_and_cases_are_found(self):
        source = body("Call([&] { G(); });\nswitch (x) {\ncase 1:\nG();\nbreak;\n}")
        self.assertEqual(changes(source, "drop"), [";", "Call([&] { ; });", ";", ";"])

    def test_records_and_lists_hold_no_statements(self):
        self.assertEqual(changes("struct A {\nint x = G();\n};\nint y[] = {F(), G()};", "drop"), [])

    def test_neighbouring_writes_change_places(self):
        source = body("a = G();\nb.Clear();\nif (c) H();\nI();")
        self.assertEqual(changes(source, "swap"), ["b.Clear(); / a = G();"])
        self.assertEqual(changes(body("On(a, F);\nOnEach(b, G);\nc = H();"), "swap"), [])

    def test_tables_of_headers_stay_unless_asked_for(self):
        source = "// clang-format off\nint x = 1;\n// clang-format on\nint y = 1;\n"
        self.assertEqual(changes(source, file="a.h"), ["int y = 0;", "int y = 2;"])
        self.assertEqual(len(mutants_of("a.h", source, with_tables=True)), 4)
        self.assertEqual(len(mutants_of("a.cpp", source)), 4)

    def test_a_mutant_is_the_source_with_one_place_changed(self):
        source = body("a = b < c;")
        (mutant,) = [one for one in mutants_of("a.cpp", source) if one.kind == "comparison"]
        self.assertEqual(mutant.apply(source), body("a = b <= c;"))
        self.assertEqual((mutant.line, mutant.before, mutant.after), (2, ("a = b < c;",), ("a = b <= c;",)))

    def test_the_draw_does_not_mind_where_a_line_stands(self):
        (one,) = mutants_of("src/old/a.cpp", "int x = a + b;")
        (moved,) = mutants_of("src/new/a.cpp", "\n\nint x = a + b;")
        self.assertEqual(one.lot(1), moved.lot(1))
        self.assertNotEqual(one.lot(1), one.lot(2))


class JudgedOfTheTree(unittest.TestCase):
    def test_every_block_is_about_a_mutant_that_is_made(self):
        with open(os.path.join(ROOT, "tests", "mutants-judged.txt"), encoding="utf-8") as file:
            judged = read_judged(file.read())
        names = {judgement.file for judgement in judged.values()}
        mutants = []
        for folder, _, files in os.walk(os.path.join(ROOT, "src")):
            for name in names.intersection(files):
                with open(os.path.join(folder, name), encoding="utf-8") as file:
                    mutants += mutants_of(os.path.relpath(os.path.join(folder, name), ROOT), file.read())
        self.assertEqual(names - {mutant.file.rsplit("/", 1)[-1] for mutant in mutants}, set())
        self.assertEqual([judgement.key for judgement in outdated(judged, mutants)], [])


class Judged(unittest.TestCase):
    def test_a_block_is_found_by_the_lines_texts(self):
        (mutant,) = mutants_of("src/a/b.cpp", "  int x = a + b;")
        judged = read_judged("# What this is.\n\n" + block_of(mutant) + "\nIt makes\nno difference.\n")
        self.assertTrue(is_judged(mutant, judged))
        (judgement,) = judged.values()
        self.assertEqual(judgement.reason, ["It makes", "no difference."])
        (other,) = mutants_of("src/a/b.cpp", "  int x = a * b;")
        self.assertFalse(is_judged(other, judged))

    def test_a_line_may_be_judged_whatever_becomes_of_it(self):
        judged = read_judged("b.cpp\n- Fill(1, kRed);\n+ *\nAny red will do.\n")
        self.assertTrue(all(is_judged(mutant, judged) for mutant in mutants_of("src/a/b.cpp", "Fill(1, kRed);")))
        others = mutants_of("src/a/b.cpp", "Fill(2, kRed);")
        self.assertFalse(any(is_judged(mutant, judged) for mutant in others))
        self.assertEqual(len(outdated(judged, others)), 1)
        self.assertEqual(len(outdated(judged, mutants_of("src/a/b.cpp", "Fill(1, kRed);"))), 0)

    def test_a_block_without_a_reason_is_refused(self):
        with self.assertRaises(ValueError):
            read_judged("b.cpp\n- a\n+ b\n")

    def test_a_second_judgement_is_refused(self):
        with self.assertRaises(ValueError):
            read_judged("b.cpp\n- a\n+ b\nSo.\n\nb.cpp\n- a\n+ b\nSo.\n")

    def test_the_list_in_the_tree_can_be_read(self):
        with open(os.path.join(ROOT, "tests", "mutants-judged.txt"), encoding="utf-8") as text:
            self.assertTrue(read_judged(text.read()))


class Records(unittest.TestCase):
    def test_survivors_are_tried_again_when_something_changed(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "record.jsonl")
            record = Record(path, "before")
            record.add("1", "a.cpp", KILLED, "Suite.Test", 1)
            record.add("2", "a.cpp", SURVIVED, "", 1)
            again = Record(path, "before")
            self.assertEqual([again.known(key) is None for key in "123"], [False, False, True])
            later = Record(path, "after")
            self.assertEqual([later.known(key) is None for key in "12"], [False, True])


class Processes(unittest.TestCase):
    def ended(self, script, limit=20):
        return run(["sh", "-c", script], "/", limit, {}, lambda line: line if line.startswith("bad") else "")

    def test_a_failure_is_a_line_or_a_status(self):
        self.assertEqual(self.ended("echo good").failure, "")
        self.assertEqual(self.ended("echo good; echo bad 1; echo bad 2; sleep 100").failure, "bad 1")
        self.assertEqual(self.ended("exit 3").failure, "sh: status 3")
        self.assertTrue(self.ended("kill -SEGV $$").crashed)

    def test_what_does_not_end_is_ended(self):
        self.assertTrue(self.ended("sleep 100 & sleep 100", 0.2).timed_out)
        self.assertTrue(self.ended("while :; do printf x; done", 0.2).timed_out)


TREE = {
    "src/toy/toy.cpp": """#include "toy/toy.h"
bool IsLarge(int number) {
  return number > 10;
}
bool IsFour(int number) {
  return number == 4;
}
bool IsSmall(int number) {
  return number < 0;
}
""",
    "src/toy/toy.h": "#pragma once\nconstexpr int kNone = 0;\nbool IsLarge(int number);\nbool IsFour(int number);\nbool IsSmall(int number);\n",
    "tests/toy/toy_test.cpp": """#include "toy/toy.h"
int main() {
  return IsLarge(20) && !IsLarge(3) && IsFour(4) && IsSmall(-3) && !IsSmall(3) ? 0 : 1;
}
""",
    "tests/mutants-judged.txt": """toy.cpp
- return number < 0;
+ return number <= 0;
Nobody has nothing.
""",
    "CMakeLists.txt": """cmake_minimum_required(VERSION 3.25)
project(Toy LANGUAGES CXX)
enable_testing()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY bin)
add_executable(test-toy src/toy/toy.cpp tests/toy/toy_test.cpp)
target_include_directories(test-toy PRIVATE src)
add_test(NAME toy COMMAND test-toy)
""",
    "CMakePresets.json": """{"version": 6, "configurePresets": [{"name": "quick", "generator": "Ninja",
"binaryDir": "build"}]}""",
    ".gitignore": "/build/\n",
}


class WholeRun(unittest.TestCase):
    def test_tells_what_the_tests_do_not_notice(self):
        with tempfile.TemporaryDirectory() as root:
            for name, text in TREE.items():
                os.makedirs(os.path.dirname(os.path.join(root, name)), exist_ok=True)
                with open(os.path.join(root, name), "w", encoding="utf-8") as file:
                    file.write(text)
            subprocess.run(["git", "init", "-q"], cwd=root, check=True)
            command = [sys.executable, "-B", os.path.join(ROOT, "scripts", "mutation"), "toy", "--kind", "comparison"]
            told = subprocess.run(command, cwd=root, stdout=subprocess.PIPE, text=True, check=True).stdout
            self.assertIn("3 mutants, 3 of them to be tried", told)
            self.assertRegex(told, r"src/toy/toy.cpp:3: comparison \[1/3, \d+ s\] survived\n  - return number > 10;")
            self.assertRegex(told, r"src/toy/toy.cpp:6: comparison \[2/3, \d+ s\] killed by test-toy: status 1\n")
            self.assertIn("toy.cpp\n- return number > 10;\n+ return number >= 10;\n", told)
            self.assertRegex(told, r"(?m)^toy +3 +3 +1 +0 +1 +1 +33.3$")
            with open(os.path.join(root, "src/toy/toy.cpp"), encoding="utf-8") as file:
                self.assertEqual(file.read(), TREE["src/toy/toy.cpp"])
            listed = [
                subprocess.run([*command[:4], "--list", *more], cwd=root, stdout=subprocess.PIPE, text=True).stdout
                for more in ([], ["--sources"])
            ]
            self.assertEqual(["src/toy/toy.h:" in one for one in listed], [True, False])
            self.assertIn("src/toy/toy.cpp:", listed[1])
            again = subprocess.run(command, cwd=root, stdout=subprocess.PIPE, text=True, check=True).stdout
            self.assertIn("3 mutants, 0 of them to be tried", again)


if __name__ == "__main__":
    unittest.main()
