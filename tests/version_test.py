"""The version stands in CMakeLists.txt; wherever else it is written it is the same. And the changelog in Debian's form.

usage: version_test.py VERSION
"""

import pathlib
import re
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
VERSION = sys.argv[1]

sys.path.insert(0, str(ROOT / "packaging/debian"))
from changelog import main, plain, versions  # noqa: E402


def text(path):
    return (ROOT / path).read_text(encoding="utf-8")


class Version(unittest.TestCase):
    def test_the_changes_begin_with_it(self):
        newest = versions(text("CHANGELOG.md"))[0]
        self.assertEqual(newest[0], VERSION)
        self.assertTrue(newest[2])

    def test_the_metainfo_tells_the_same_releases(self):
        metainfo = text("share/metainfo/example.veldrin.veldrin.metainfo.xml")
        told = re.findall(r'<release version="([^"]+)" date="([^"]+)"', metainfo)
        self.assertEqual(told, [(version, str(date)) for version, date, _ in versions(text("CHANGELOG.md"))])

    def test_files_are_named_by_it(self):
        named = re.findall(r"veldrin(?:-tools)?[-_](\d[\w.]*?)(?:_amd64|-windows|-setup|\.tar)", text("README.md"))
        self.assertGreaterEqual(len(named), 3)
        self.assertEqual(set(named), {VERSION})


class Changelog(unittest.TestCase):
    SOURCE = (
        "# Changes\n\nWords.\n\n## 1.2.0 (2026-03-01)\n\nMore.\n\n- **One** `two`\n  three.\n- Four.\n\n"
        "## 1.1.0 (2025-12-31)\n\n- Five.\n"
    )

    def test_versions_are_read_with_their_points(self):
        found = [(version, str(date), points) for version, date, points in versions(self.SOURCE)]
        newer = ("1.2.0", "2026-03-01", ["**One** `two` three.", "Four."])
        self.assertEqual(found, [newer, ("1.1.0", "2025-12-31", ["Five."])])
        self.assertEqual(plain("**One** `two`"), "One two")

    def test_it_is_written_as_debian_wants_it(self):
        with tempfile.TemporaryDirectory() as folder:
            source, output = pathlib.Path(folder, "in"), pathlib.Path(folder, "out")
            source.write_text(self.SOURCE, encoding="utf-8")
            main(source, "A <a@b.example>", output)
            self.assertEqual(
                output.read_text(encoding="utf-8"),
                "veldrin (1.2.0) stable; urgency=medium\n\n  * One two three.\n  * Four.\n\n"
                " -- A <a@b.example>  Sun, 01 Mar 2026 12:00:00 +0000\n\n"
                "veldrin (1.1.0) stable; urgency=medium\n\n  * Five.\n\n"
                " -- A <a@b.example>  Wed, 31 Dec 2025 12:00:00 +0000\n",
            )

    def test_changes_without_a_version_are_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            source = pathlib.Path(folder, "in")
            source.write_text("# Changes\n\n- Nothing.\n", encoding="utf-8")
            with self.assertRaises(SystemExit):
                main(source, "A <a@b.example>", pathlib.Path(folder, "out"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
