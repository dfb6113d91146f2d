#!/usr/bin/env python3
"""Checks that every wait of a test says how long it waits: what Qt waits by itself is too little on a busy machine.

Usage: tests_wait_patiently.py SOURCE
"""
import pathlib
import re
import sys

# The waits that have a default, and with how many arguments one says its own; these macros never do.
WAITS = {
    r"QTRY_VERIFY|QTRY_VERIFY2|QTRY_COMPARE": None,
    r"qWaitFor|qWaitForWindowActive|qWaitForWindowExposed": 2,
    r"waitFor(?:Finished|Started|ReadyRead|BytesWritten|Connected|Disconnected)": 1,
}
OPENING, CLOSING = "([{", ")]}"
LITERAL = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'')


def arguments(text, begin):
    """How many arguments stand between the bracket at `begin` and its other half."""
    depth, count = 0, 0
    for sign in text[begin:]:
        depth += (sign in OPENING) - (sign in CLOSING)
        count += depth == 1 and sign == ","
        if depth == 0:
            break
    return count + (text[begin + 1] != ")")


def complaints_about(source):
    text = LITERAL.sub("0", source.read_text(encoding="utf-8"))
    for names, wanted in WAITS.items():
        for found in re.finditer(rf"\b({names})\(", text):
            if wanted is None or arguments(text, found.end() - 1) < wanted:
                line = text.count("\n", 0, found.start()) + 1
                yield f"{source}:{line}: {found[1]} waits no longer than Qt's default; cPatienceMs is what tests wait"


def main():
    tests = pathlib.Path(sys.argv[1]) / "tests"
    sources = sorted((*tests.rglob("*.cpp"), *tests.rglob("*.h")))
    complaints = [complaint for source in sources for complaint in complaints_about(source)]
    if not sources:
        complaints.append("no test sources found")
    print("\n".join(complaints) or f"{len(sources)} sources say how long they wait")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
