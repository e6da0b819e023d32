#!/usr/bin/env python3
"""The pages that veldrin-plan draws, as their readers take them: SVG by the rules of XML and of its attributes, HTML
with every element closed and every row of a table as wide as its head. Arguments: veldrin-plan, the folder of the
sample machines."""
import html.parser
import re
import subprocess
import sys
import xml.etree.ElementTree as ET

program, share = sys.argv[1:3]
dry, rain = share + "/DAT/DRY.nx4", share + "/DAT/RAIN.nx4"
SVG = "{http://www.w3.org/2000/svg}"
NUMBER = re.compile(r"-?\d+(\.\d+)?")
COLOUR = re.compile(r"#[0-9a-f]{6}")
# Dotted, dash-dot and dash-dot-dot, of 15 twips a pixel.
DASHES = {"30 45", "150 45 30 45", "150 45 30 45 30 45"}
RULES = {
    "line": {"x1": NUMBER, "y1": NUMBER, "x2": NUMBER, "y2": NUMBER, "stroke": COLOUR},
    "text": {"x": NUMBER, "y": NUMBER, "text-anchor": re.compile("start|middle|end"), "fill": COLOUR},
    "circle": {"cx": NUMBER, "cy": NUMBER, "r": NUMBER, "stroke": COLOUR, "fill": COLOUR},
    "rect": {"width": NUMBER, "height": NUMBER},
    "clipPath": {"id": re.compile("plot")},
    "g": {"clip-path": re.compile(r"url\(#plot\)")},
    "title": {},
}


def printed(*words):
    done = subprocess.run([program, *words], stdout=subprocess.PIPE, check=True)
    return done.stdout.decode("utf-8")


def check_svg(text, plans, points):
    root = ET.fromstring(text)
    assert root.tag == SVG + "svg", root.tag
    assert root.get("viewBox") == "0 0 4620 6060" and root.get("width") == "308" and root.get("height") == "404"
    assert root.get("font-family") == "sans-serif" and root.get("font-size") == "180"
    assert root.get("stroke-width") == "15"
    elements = [(element.tag.removeprefix(SVG), element) for element in root.iter() if element is not root]
    for name, element in elements:
        for attribute, rule in RULES[name].items():
            assert rule.fullmatch(element.get(attribute, "")), ET.tostring(element)
        dashes = element.get("stroke-dasharray")
        assert dashes is None or dashes in DASHES, dashes
        if name in ("text", "title"):
            assert element.text and element.text.strip(), ET.tostring(element)
    plot = {"x": "490", "y": "0", "width": "3975", "height": "5525"}
    assert root.find(f"{SVG}clipPath/{SVG}rect").attrib == plot
    grounds = root.findall(f"{SVG}rect")
    assert grounds[0].attrib == {"width": "4620", "height": "6060", "fill": "#000080"}, grounds[0].attrib
    assert grounds[1].attrib == {**plot, "fill": "#000000"}, grounds[1].attrib
    shown = [element.text for name, element in elements if name == "text"]
    for numeral in ["5", "10", "15", "0", "100", "200", "300", "(x1000rpm)", *plans]:
        assert shown.count(numeral) == 1, (numeral, shown)
    drawn = root.find(f"{SVG}g")
    assert len(drawn.findall(f"{SVG}line")) >= 19 * len(plans)  # rays, shift line, saw-tooth
    # Of one plan: its stored speeds, the shift line and the check line.
    dashes = {line.get("stroke-dasharray") for line in drawn} - {None}
    assert dashes == DASHES or len(plans) > 1, dashes
    # Each point among the plans' lines, and one for all in the legend.
    dots = [element for name, element in elements if name == "circle"]
    assert len(dots) == (points + 1 if points else 0), len(dots)
    assert all(dot.get("r") == "45" and dot.get("stroke") == "#ffff00" for dot in dots)


class Page(html.parser.HTMLParser):
    """Knows which elements are open, and how wide the rows of each table are."""

    def __init__(self):
        super().__init__()
        self.open, self.rows, self.texts, self.language, self.headed = [], [], {}, "", False

    def handle_starttag(self, tag, attributes):
        if tag == "html":
            self.language = dict(attributes)["lang"]
        if tag == "table":
            self.rows.append([])
        if tag == "tr":
            self.rows[-1].append(0)
        if tag in ("td", "th"):
            self.rows[-1][-1] += 1
        if tag != "meta":
            self.open.append(tag)

    def handle_startendtag(self, tag, attributes):
        pass  # an element of the drawing, closed where it begins

    def handle_endtag(self, tag):
        assert self.open and self.open[-1] == tag, (tag, self.open, self.getpos())
        self.open.pop()

    def handle_decl(self, declaration):
        self.headed = declaration == "DOCTYPE html"

    def handle_data(self, text):
        if self.open and text.strip():
            self.texts.setdefault(self.open[-1], []).append(text.strip())


def check_html(text, language, words, rows):
    page = Page()
    page.feed(text)
    page.close()
    assert not page.open, page.open
    assert page.headed and page.language == language, page.language
    assert '<meta charset="utf-8">' in text
    assert [len(table) for table in page.rows] == rows, page.rows
    for table in page.rows:
        # Final and primary stand behind a plan's parts, or behind its changes, with what they are alone.
        assert table[0] == max(table) and min(table) >= 2, table
    for tag, wanted in words.items():
        for word in wanted:
            assert any(word in told for told in page.texts.get(tag, [])), (tag, word, page.texts.get(tag))


point = ["--tyre-from", "200@12000:6"]
check_svg(printed("--show", dry, "--format", "svg"), ["DRY.nx4"], 0)
check_svg(printed("--show", dry, *point, "--format", "svg"), ["DRY.nx4"], 1)
check_svg(printed("--compare", dry, rain, "--format", "svg"), ["DRY.nx4", "RAIN.nx4"], 0)
# Gears behind a head; gears, final and primary behind that of the parts; the points.
check_html(
    printed("--show", dry, *point, "--format", "html"),
    "en",
    {
        "title": ["NX4"],
        "h1": ["NX4"],
        "h2": ["DRY.nx4", "Tyre measured"],
        "h3": ["Parts"],
        "p": ["Primary 19-63 \u00a0 Final 17-39 \u00a0 Tyre 1.9 m \u00a0 Shift 13000 rpm \u00a0 Check line 10000 rpm", "1.9118 m"],
        "th": ["Gear", "Pair", "km/h", "Step", "rev/min after", "Stored", "Off", "+/- rev/min", "Main shaft", "rpm"],
        "td": ["6TH", "21.19", "215.3", "10.8", "12350", "+-0", "M-21F", "C-19F", "17-39", "19-63", "1.9118", "+0.0"],
        "pre": ["Dry, long straight."],
    },
    [7, 9, 2],
)
check_html(
    printed("--show", dry, *point, "--format", "html", "--language", "ja"),
    "ja",
    {"h2": ["タイヤ実測"], "h3": ["部品表"], "th": ["ギヤ", "組合せ", "変速後 rpm", "保存値"], "td": ["6速"]},
    [7, 9, 2],
)
print("the pages are as their readers take them")
