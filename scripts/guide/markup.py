"""The markup that the guide is written in, a small part of Markdown, into HTML.

Blocks: headings with their anchors (`## Title {#name}`), paragraphs, lists, tables, pictures of their own line,
lines fenced by ```. Inside of a line: `code`, **words on the screen**, __what weighs__, [link](place), [[keys]]
and {{menu > entry}}.
"""

import html
import re

HEADING = re.compile(r"(#{1,3}) (.+?)(?: \{#([a-z0-9-]+)\})?$")
PICTURE = re.compile(r"!\[(.+)\]\(([^)]+)\)$")
ITEM = re.compile(r"(?:- |\d+\. )")
INLINE = re.compile(
    r"`(?P<code>[^`]+)`"
    r"|\[\[(?P<key>[^\]]+)\]\]"
    r"|\{\{(?P<menu>[^}]+)\}\}"
    r"|\*\*(?P<word>.+?)\*\*"
    r"|__(?P<weight>.+?)__"
    r"|\[(?P<link>[^\]]+)\]\((?P<place>[^)]+)\)"
)


class MarkupError(Exception):
    """A line that is none of the markup."""


def inline(text, link_to):
    """The HTML of a line's text. `link_to` gives the place that a link of the source leads to."""
    parts, at = [], 0
    for found in INLINE.finditer(text):
        parts.append(html.escape(text[at : found.start()], quote=False))
        parts.append(_marked(found, link_to))
        at = found.end()
    parts.append(html.escape(text[at:], quote=False))
    return "".join(parts)


def _marked(found, link_to):
    if found["code"] is not None:
        return "<code>" + html.escape(found["code"], quote=False) + "</code>"
    if found["key"] is not None:
        return "+".join("<kbd>" + html.escape(key) + "</kbd>" for key in found["key"].split("+"))
    if found["menu"] is not None:
        return '<span class="menu">' + html.escape(found["menu"]).replace(" &gt; ", " ▸ ") + "</span>"
    if found["word"] is not None:
        return "<b>" + html.escape(found["word"], quote=False) + "</b>"
    if found["weight"] is not None:
        return "<strong>" + inline(found["weight"], link_to) + "</strong>"
    return f'<a href="{html.escape(link_to(found["place"]))}">{inline(found["link"], link_to)}</a>'


class Document:
    """The blocks of a source as HTML, and its headings as (level, text, anchor)."""

    def __init__(self, source, picture_tag, link_to):
        self.headings = []
        self._picture_tag = picture_tag
        self._link_to = link_to
        self._lines = source.split("\n")
        self._at = 0
        blocks = []
        while self._at < len(self._lines):
            if self._lines[self._at].strip():
                blocks.append(self._block())
            else:
                self._at += 1
        self.body = "\n".join(blocks)

    @property
    def title(self):
        return self.headings[0][1]

    def _inline(self, text):
        return inline(text, self._link_to)

    def _take_while(self, belongs):
        lines = []
        while self._at < len(self._lines) and belongs(self._lines[self._at]):
            lines.append(self._lines[self._at])
            self._at += 1
        return lines

    def _block(self):
        line = self._lines[self._at]
        if line.startswith("```"):
            return self._fenced()
        if line.startswith("#"):
            return self._heading(line)
        if line.startswith("|"):
            return self._table(self._take_while(lambda one: one.startswith("|")))
        if line.startswith("!["):
            return self._picture(line)
        if ITEM.match(line):
            return self._list(self._take_while(lambda one: ITEM.match(one) or one.startswith("  ")))
        text = self._take_while(lambda one: one.strip() and not one.startswith(("#", "|", "```", "![")))
        return "<p>" + self._inline(" ".join(text)) + "</p>"

    def _fenced(self):
        self._at += 1
        lines = self._take_while(lambda one: not one.startswith("```"))
        if self._at == len(self._lines):
            raise MarkupError("``` without its end")
        self._at += 1
        return "<pre><code>" + html.escape("\n".join(lines), quote=False) + "</code></pre>"

    def _heading(self, line):
        found = HEADING.match(line)
        if not found:
            raise MarkupError(f"no heading: {line}")
        self._at += 1
        level, text, anchor = len(found[1]), found[2], found[3]
        self.headings.append((level, text, anchor))
        identity = f' id="{anchor}"' if anchor else ""
        return f"<h{level}{identity}>{self._inline(text)}</h{level}>"

    def _picture(self, line):
        found = PICTURE.match(line)
        if not found:
            raise MarkupError(f"no picture: {line}")
        self._at += 1
        tag = self._picture_tag(found[2], html.escape(found[1]))
        return f"<figure>{tag}<figcaption>{self._inline(found[1])}</figcaption></figure>"

    def _table(self, lines):
        def cells(line, tag):
            inner = re.split(r"(?<!\\)\|", line.strip().strip("|"))
            texts = [self._inline(text.strip().replace("\\|", "|")) for text in inner]
            return "<tr>" + "".join(f"<{tag}>{text}</{tag}>" for text in texts) + "</tr>"

        if len(lines) < 3 or not re.fullmatch(r"[|\s:-]+", lines[1]):
            raise MarkupError(f"no table: {lines[0]}")
        rows = "\n".join(cells(line, "td") for line in lines[2:])
        return f"<table>\n<thead>{cells(lines[0], 'th')}</thead>\n<tbody>\n{rows}\n</tbody>\n</table>"

    def _list(self, lines):
        tag = "ul" if lines[0].startswith("- ") else "ol"
        items = []
        for line in lines:
            if ITEM.match(line):
                items.append(ITEM.sub("", line, count=1))
            else:
                items[-1] += " " + line.strip()
        inner = "\n".join(f"<li>{self._inline(item)}</li>" for item in items)
        return f"<{tag}>\n{inner}\n</{tag}>"
