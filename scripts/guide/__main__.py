"""build: writes the user's guide as HTML pages.

usage: python3 scripts/guide FOLDER

FOLDER/en/index.html is the guide, FOLDER/en/file-formats.html the document on files, FOLDER/en/at/NAME.html
leads to a heading of the guide; the same stands in FOLDER/ja. Pages and pictures need nothing from elsewhere.
"""

import html
import pathlib
import re
import shutil
import struct
import sys

from markup import Document, MarkupError

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = ROOT / "docs" / "guide"
ZOOM = 1.25  # that the pictures were made with

LANGUAGES = {
    "en": {"own": "English", "guide": "User's guide", "formats": "File formats", "go": "The guide"},
    "ja": {"own": "日本語", "guide": "ユーザーガイド", "formats": "ファイルの書式", "go": "ガイド"},
}
PAGES = {
    "index.html": {"en": SOURCES / "en.md", "ja": SOURCES / "ja.md"},
    "file-formats.html": {"en": ROOT / "docs" / "file-formats.md", "ja": ROOT / "docs" / "file-formats.ja.md"},
}


def picture_tag(place, caption):
    """An image as large as the window itself."""
    with open(SOURCES / place, "rb") as file:
        head = file.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n":
        raise MarkupError(f"no PNG: {place}")
    width, height = (round(pixels / ZOOM) for pixels in struct.unpack(">II", head[16:24]))
    return f'<img src="../{place}" width="{width}" height="{height}" alt="{caption}">'


def link_to(place):
    """Where a link of the sources leads to among the pages."""
    place = re.sub(r"^(\.\./)?file-formats(\.ja)?\.md", "file-formats.html", place)
    place = re.sub(r"^guide/(en|ja)\.md", "index.html", place)
    return "../" + place if place.startswith("examples/") else place


def contents(document):
    """The headings with anchors as lists of links."""
    items, inside = [], False
    for level, text, anchor in document.headings[1:]:
        if anchor is None:
            continue
        link = f'<a href="#{anchor}">{html.escape(text, quote=False)}</a>'
        if level == 2:
            items.append(("</ul></li>" if inside else "</li>" if items else "") + f"<li>{link}")
            inside = False
        else:
            items.append(("" if inside else "<ul>") + f"<li>{link}</li>")
            inside = True
    return "<ul>" + "\n".join(items) + ("</ul></li>" if inside else "</li>" if items else "") + "</ul>"


def page(language, name, document):
    words = LANGUAGES[language]
    others = [f'<a href="../{other}/{name}">{its["own"]}</a>' for other, its in LANGUAGES.items() if other != language]
    pages = [
        f'<a href="{place}">{words[word]}</a>' for place, word in (("index.html", "guide"), ("file-formats.html", "formats"))
    ]
    return f"""<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{html.escape(document.title, quote=False)}</title>
<link rel="stylesheet" href="../guide.css">
</head>
<body lang="{language}">
<nav>
<p class="languages">{" · ".join(pages + others)}</p>
{contents(document)}
</nav>
<main>
{document.body}
</main>
</body>
</html>
"""


def leading_page(language, anchor):
    """A page that leads to a heading: what stands behind "#" in a link does not always reach the browser."""
    target = f"../index.html#{anchor}"
    return f"""<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<meta http-equiv="refresh" content="0; url={target}">
<title>Veldrin</title>
</head>
<body><p><a href="{target}">{LANGUAGES[language]["go"]}</a></p></body>
</html>
"""


def build(folder):
    folder = pathlib.Path(folder)
    if folder.exists():
        shutil.rmtree(folder)
    for language in LANGUAGES:
        (folder / language / "at").mkdir(parents=True)
        for name, sources in PAGES.items():
            try:
                document = Document(sources[language].read_text(encoding="utf-8"), picture_tag, link_to)
            except (MarkupError, OSError) as failure:
                sys.exit(f"{sources[language]}: {failure}")
            write(folder / language / name, page(language, name, document))
            if name != "index.html":
                continue
            for _, _, anchor in document.headings:
                if anchor is not None:
                    write(folder / language / "at" / f"{anchor}.html", leading_page(language, anchor))
    shutil.copy(SOURCES / "guide.css", folder)
    shutil.copytree(SOURCES / "pictures", folder / "pictures")
    shutil.copytree(ROOT / "docs" / "examples", folder / "examples")


def write(path, text):
    path.write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    build(sys.argv[1])
