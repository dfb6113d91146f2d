#!/usr/bin/python3
"""Writes src/common/text/ChineseInitials.cpp: the first letter of the Mandarin reading of each character U+4E00 to U+9FA5.

The common characters, the 3755 of the first level of GB 2312, stand in that standard in the order of their readings and
take their letter from there: where a character has several readings, that is the one which people sort and search by.
All others have the first reading of Unicode's own table, from Debian's package unicode-data.
Usage: tools/make_initials.py [--check] [Unihan_Readings.txt.bz2]
With --check nothing is written; the committed file has to be what the readings give.
"""
import argparse
import bz2
import itertools
import pathlib
import sys
import unicodedata

FIRST, LAST = 0x4E00, 0x9FA5
PER_LINE = 100
READINGS = "/usr/share/unicode/Unihan_Readings.txt.bz2"
TABLE = pathlib.Path(__file__).resolve().parent.parent / "src" / "common" / "text" / "ChineseInitials.cpp"

# The first level of GB 2312: how many characters it has, and with which of them a letter begins.
COMMON = 3755
FIRST_OF_LETTERS = dict(zip("啊芭擦搭蛾发噶哈击喀垃妈拿哦啪期然撒塌挖昔压匝", "ABCDEFGHJKLMNOPQRSTWXYZ"))

# Characters without a Mandarin reading in either: metric units made in Japan and the like, by the sound of their parts.
OTHERS = {
    "兙": "S",  # shi ke
    "兡": "B",  # bai ke
    "嗧": "J",  # jia lun
    "桛": "L",
    "烪": "G",
    "瓧": "S",  # shi wa
    "瓰": "F",  # fen wa
    "瓱": "M",  # mao wa
    "瓼": "L",  # li wa
    "甅": "L",  # li
}

HEAD = """// Made by tools/make_initials.py from GB 2312 and Unicode's readings; not to be edited by hand.

#include "common/text/ChineseSpell.h"

// clang-format off
const QString strChineseFirstPY = QStringLiteral(
"""
TAIL = """);
// clang-format on
"""


def common_letters():
    """The letters of the common characters by their code points."""
    places = itertools.product(range(0xB0, 0xD8), range(0xA1, 0xFF))
    letters, letter = {}, None
    for place in itertools.islice(places, COMMON):
        character = bytes(place).decode("gb2312")
        letter = FIRST_OF_LETTERS.get(character, letter)
        letters[ord(character)] = letter
    return letters


def initials(path):
    letters = {ord(character): letter for character, letter in OTHERS.items()}
    with bz2.open(path, "rt", encoding="utf-8") as readings:
        for line in readings:
            fields = line.rstrip("\n").split("\t")
            if len(fields) == 3 and fields[1] == "kMandarin":
                # The first of several readings is the one of the mainland.
                letters[int(fields[0][2:], 16)] = unicodedata.normalize("NFD", fields[2])[0].upper()
    letters.update(common_letters())
    return "".join(letters[code] for code in range(FIRST, LAST + 1))


def source(path):
    text = initials(path)
    rows = [text[start:start + PER_LINE] for start in range(0, len(text), PER_LINE)]
    return HEAD + "\n".join(f'    "{row}"' for row in rows) + TAIL


def main():
    arguments = argparse.ArgumentParser(description="Writes the table of initials.")
    arguments.add_argument("--check", action="store_true", help="compare with the committed table instead")
    arguments.add_argument("readings", nargs="?", default=READINGS)
    given = arguments.parse_args()
    text = source(given.readings)
    if given.check:
        if TABLE.read_text(encoding="utf-8") != text:
            sys.exit(f"{TABLE} is not what {given.readings} gives: run {sys.argv[0]}")
        return
    TABLE.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
