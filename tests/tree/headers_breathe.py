#!/usr/bin/env python3
"""Checks that a documented function or type of a header stands behind a blank line, unless it is the first in its braces or behind a
word like public:. Fields, signals and slots are lists, which may do without. A blank line stands behind #pragma once as well.

Usage: headers_breathe.py SOURCE
"""

import pathlib
import re
import sys

FOLDERS = ("src", "apps", "tests", "bench", "fuzz")
LABEL = re.compile(r"(public|protected|private|signals|Q_SIGNALS)( slots)?:$")
OPENING = re.compile(r"^( *)(class|struct|union|enum|namespace|extern)\b[^;]*$")


def is_field(lines, start):
    """Whether the declaration behind the comment that begins there is a field, which has no parameters."""
    while lines[start].lstrip().startswith("///"):
        start += 1
    text = lines[start].strip()
    if re.match(r"(class|struct|union|enum|template|using|friend|Q_\w+)\b", text):
        return False
    while not re.search(r"[;{(]", text):
        start += 1
        text += " " + lines[start].strip()
    while re.search(r"<[^<>]*>", text):
        text = re.sub(r"<[^<>]*>", "", text)
    return "(" not in re.split(r"[;{=]", text)[0]


def crowded(lines):
    """The lines of a header, counted from 0, at which a blank line is missing."""
    is_list = False
    for place, line in enumerate(lines):
        text = line.strip()
        if text and place > 0 and lines[place - 1] == "#pragma once":
            yield place
        label = LABEL.match(text)
        if label:
            is_list = "slots" in text or "ignals" in text
        elif OPENING.match(line):
            is_list = False
        if not text.startswith("///") or place == 0 or is_list:
            continue
        before = lines[place - 1].strip()
        if re.search(r"[;}]$", before) and not before.startswith(("//", "#")) and not is_field(lines, place):
            yield place


def main():
    root = pathlib.Path(sys.argv[1])
    headers = sorted(path for folder in FOLDERS for path in (root / folder).rglob("*.h"))
    problems = [f"{header.relative_to(root)}:{place + 1}: no blank line before this" for header in headers
                for place in crowded(header.read_text(encoding="utf-8").split("\n"))]
    if not headers:
        problems.append("no headers found")
    print("\n".join(problems) or f"{len(headers)} headers, with their blank lines")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
