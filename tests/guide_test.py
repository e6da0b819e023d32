"""The pages of the user's guide, and what the document on files says of the programs.

usage: guide_test.py VELDRIN_PLAN VELDRIN_SCRIPT
"""

import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
GUIDE = ROOT / "scripts" / "guide"
EXAMPLES = ROOT / "docs" / "examples"
LANGUAGES = ("en", "ja")
DOCUMENTS = {"en": ROOT / "docs" / "file-formats.md", "ja": ROOT / "docs" / "file-formats.ja.md"}

sys.path.insert(0, str(GUIDE))
from markup import Document, MarkupError  # noqa: E402

PLAN, SCRIPT = (pathlib.Path(program).resolve() for program in sys.argv[1:3])


class Page(html.parser.HTMLParser):
    """Tags that are closed in their order, and where a page leads to."""

    def __init__(self, path):
        super().__init__()
        self.path, self.open, self.ids, self.links, self.images = path, [], [], [], []
        self.feed(path.read_text(encoding="utf-8"))
        assert not self.open, f"{path}: {self.open} stay open"

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        if tag not in ("meta", "link", "img"):
            self.open.append(tag)
        if "id" in attributes:
            self.ids.append(attributes["id"])
        if tag in ("a", "link"):
            self.links.append(attributes["href"])
        if tag == "meta" and attributes.get("http-equiv") == "refresh":
            self.links.append(attributes["content"].split("url=")[1])
        if tag == "img":
            self.images.append(attributes)

    def handle_endtag(self, tag):
        assert self.open and self.open.pop() == tag, f"{self.path}: </{tag}> at {self.getpos()}"


def body(source):
    return Document(source, lambda place, caption: f"<img {place}>", lambda place: place).body


class Markup(unittest.TestCase):
    def test_words_keys_and_menus(self):
        self.assertEqual(
            body("**O<C** `a*b` [[Ctrl+S]] {{File > Save}} __so__"),
            "<p><b>O&lt;C</b> <code>a*b</code> <kbd>Ctrl</kbd>+<kbd>S</kbd> "
            '<span class="menu">File ▸ Save</span> <strong>so</strong></p>',
        )

    def test_lines_of_a_paragraph_or_item_belong_together(self):
        self.assertEqual(body("one\ntwo\n\n- a\n  b\n- c"), "<p>one two</p>\n<ul>\n<li>a b</li>\n<li>c</li>\n</ul>")

    def test_headings_have_anchors(self):
        self.assertEqual(body("## Two & two {#two}"), '<h2 id="two">Two &amp; two</h2>')

    def test_tables(self):
        self.assertEqual(
            body("| a | b |\n|---|---|\n| 1 | |"),
            "<table>\n<thead><tr><th>a</th><th>b</th></tr></thead>\n<tbody>\n"
            "<tr><td>1</td><td></td></tr>\n</tbody>\n</table>",
        )

    def test_fenced_lines_stay_as_they_are(self):
        self.assertEqual(body("```\n **a** <b>\n\n| c\n```"), "<pre><code> **a** &lt;b&gt;\n\n| c</code></pre>")

    def test_what_is_no_markup_is_refused(self):
        for wrong in ("```\nopen", "####", "| a |", "![no place]"):
            with self.assertRaises(MarkupError, msg=wrong):
                body(wrong)


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.scratch.name) / "guide"
        subprocess.run([sys.executable, "-B", str(GUIDE), str(cls.folder)], check=True)
        cls.pages = {path: Page(path) for path in sorted(cls.folder.rglob("*.html"))}

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def test_links_lead_somewhere(self):
        for path, page in self.pages.items():
            for link in page.links:
                place, _, anchor = link.partition("#")
                target = (path.parent / place).resolve() if place else path
                self.assertTrue(target.is_file(), f"{path.name}: {link}")
                if anchor:
                    self.assertIn(anchor, self.pages[target].ids, f"{path.name}: {link}")

    def test_headings_have_names_of_their_own(self):
        for path, page in self.pages.items():
            self.assertEqual(len(page.ids), len(set(page.ids)), path.name)

    def test_every_heading_of_the_guide_has_a_page_that_leads_there(self):
        for language in LANGUAGES:
            ids = self.pages[self.folder / language / "index.html"].ids
            leading = sorted(path.stem for path in (self.folder / language / "at").iterdir())
            self.assertEqual(leading, sorted(ids))

    def test_the_languages_have_the_same_headings_in_the_same_order(self):
        for name in ("index.html", "file-formats.html"):
            english, japanese = (self.pages[self.folder / language / name].ids for language in LANGUAGES)
            self.assertEqual(english, japanese)

    def test_pictures_are_there_and_none_is_left_over(self):
        shown = set()
        for path, page in self.pages.items():
            for image in page.images:
                target = (path.parent / image["src"]).resolve()
                self.assertTrue(target.is_file(), image["src"])
                self.assertTrue(image["alt"])
                shown.add(target)
        self.assertEqual(shown, set((self.folder / "pictures").resolve().iterdir()))

    def test_nothing_is_needed_from_elsewhere(self):
        for path, page in self.pages.items():
            self.assertEqual([link for link in page.links if ":" in link], [], path.name)


def fenced(document):
    return re.findall(r"^```\n(.*?)^```$", document, re.MULTILINE | re.DOTALL)


def mistakes(document):
    """The rows of the table: line, right text, wrong text, what the check says."""
    table = document[document.index("{#mistakes}") :]
    row = re.compile(r"^\| (\d+) \| `(.+?)` \| (?:`(.+?)`|—) \| `(.+?)` \|", re.MULTILINE)
    return [(int(line), right, wrong, says) for line, right, wrong, says in row.findall(table[: table.index("\n## ")])]


class FileFormats(unittest.TestCase):
    def setUp(self):
        self.scratch = tempfile.TemporaryDirectory()
        self.addCleanup(self.scratch.cleanup)
        self.list = pathlib.Path(self.scratch.name) / "TR1.RAT"

    def document(self, language):
        return DOCUMENTS[language].read_text(encoding="utf-8")

    def spoil(self, line, right, wrong):
        """Writes the example with one mistake; no wrong text takes the line away."""
        lines = (EXAMPLES / "TR1.RAT").read_text(encoding="utf-8").split("\n")
        self.assertIn(right, lines[line - 1])
        if wrong:
            lines[line - 1] = lines[line - 1].replace(right, wrong, 1)
        else:
            self.assertEqual(lines.pop(line - 1), right)
        self.list.write_text("\n".join(lines), encoding="utf-8")

    def check(self, path):
        done = subprocess.run([PLAN, "--check", path], capture_output=True, text=True, encoding="utf-8")
        return done.returncode, done.stdout + done.stderr

    def opens(self):
        """Whether the program takes the list, chosen in its own window."""
        nx4 = ROOT / "share" / "veldrin" / "LIST" / "NX4.RAT"
        script = f"""import "C:\\VELDRIN\\LIST\\NX4.RAT" "{nx4}"
import "C:\\VELDRIN\\LIST\\TR1.RAT" "{self.list}"
start
advance 100
click Form2.menu_list_load
select Form3.File1 TR1.RAT
click Form3.Command1
show Form3.Visible
"""
        done = subprocess.run([SCRIPT, "-"], input=script, capture_output=True, text=True, encoding="utf-8", check=True)
        return done.stdout == "Form3.Visible = False\n"

    def test_the_documents_show_the_examples(self):
        texts = [
            (EXAMPLES / name).read_text(encoding="utf-8")
            for name in ("TR1.RAT", "TR1.CMB", "SHORT.tr1", "SPEEDS.TXT", "YASASII.CAP", "MINI.csv")
        ]
        for language in LANGUAGES:
            self.assertEqual(fenced(self.document(language))[1:], texts, language)

    def test_the_example_is_fine(self):
        status, says = self.check(EXAMPLES / "TR1.RAT")
        self.assertEqual(status, 0)
        self.assertTrue(says.endswith("fine: machine TR1, 2 primary, 21 final and 4 gear rows\n"), says)

    def test_each_mistake_is_told_as_the_document_says(self):
        for language in LANGUAGES:
            rows = mistakes(self.document(language))
            self.assertEqual(len(rows), 20)
            for line, right, wrong, says in rows:
                self.spoil(line, right, wrong)
                answer = self.check(self.list)[1]
                told = [text for text in answer.splitlines() if re.search(r"TR1\.RAT:\d+: ", text) and says in text]
                self.assertTrue(told, f"{line}, {wrong}: {answer}")

    def test_the_program_takes_and_refuses_what_the_document_says(self):
        document = self.document("en")
        for line, right, wrong, _ in mistakes(document):
            self.spoil(line, right, wrong)
            row = next(text for text in document.split("\n") if text.startswith(f"| {line} | `{right}` | " + (f"`{wrong}`" if wrong else "—")))
            does = row.rsplit("|", 2)[1]
            self.assertNotEqual(self.opens(), bool(re.search("[Rr]efuses", does)), row)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
