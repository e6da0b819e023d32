"""CHANGELOG.md in the form of Debian's changelogs.

usage: changelog.py CHANGELOG.md MAINTAINER OUTPUT
"""

import datetime
import re
import sys
import textwrap

VERSION = re.compile(r"## (\d+\.\d+\.\d+) \((\d{4}-\d{2}-\d{2})\)$")


def versions(text):
    """(version, date, points) of each section, in their order; a point's lines are joined."""
    found = []
    for line in text.split("\n"):
        heading = VERSION.match(line)
        if heading:
            found.append((heading[1], datetime.date.fromisoformat(heading[2]), []))
        elif line.startswith("- ") and found:
            found[-1][2].append(line[2:])
        elif line.startswith("  ") and found and found[-1][2]:
            found[-1][2][-1] += " " + line.strip()
    return found


def plain(point):
    """A point without the marks for words of the screen."""
    return re.sub(r"[*`]", "", point)


def section(version, date, points, maintainer):
    lines = [f"veldrin ({version}) stable; urgency=medium", ""]
    for point in points:
        lines += textwrap.wrap(plain(point), 76, initial_indent="  * ", subsequent_indent="    ")
    lines += ["", f" -- {maintainer}  {date:%a, %d %b %Y} 12:00:00 +0000", ""]
    return "\n".join(lines)


def main(source, maintainer, output):
    with open(source, encoding="utf-8") as file:
        found = versions(file.read())
    if not found or not all(points for _, _, points in found):
        sys.exit(f"{source}: no version, or one that tells nothing")
    with open(output, "w", encoding="utf-8", newline="\n") as file:
        file.write("\n".join(section(*one, maintainer) for one in found))


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
