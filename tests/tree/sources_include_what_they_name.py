#!/usr/bin/env python3
"""Checks that a source includes the header of each of Qt's classes that it names, itself or by what it includes: the precompiled
header would hide that one is missing.

Usage: sources_include_what_they_name.py SOURCE QT
QT is the folder that Qt's modules have their folders of headers in.
"""

import functools
import pathlib
import re
import sys

FOLDERS = ("src", "apps", "tests", "bench", "fuzz")
# Of one alternative after the other: what is no code, and the names in what is.
CODE = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|\b(Q[A-Z]\w*)\b', re.DOTALL)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
FORM_CLASS = re.compile(r'class="(Q\w+)"')
DECLARED = re.compile(r"^[ \t]*(?:class|struct) \w+;$", re.MULTILINE)


@functools.lru_cache(maxsize=None)
def text_of(path):
    return path.read_text(encoding="utf-8", errors="replace")


class Includes:
    """What a file reaches by its includes."""

    def __init__(self, root, qt):
        self.qt_folders = [path for path in sorted(qt.iterdir()) if path.is_dir()]
        programs = [path for path in sorted((root / "apps").iterdir()) if path.is_dir()]
        others = [root / folder for folder in FOLDERS if folder != "apps"]
        self.folders = [*others, root / "src/commonfun", root / "apps", *programs, qt, *self.qt_folders]
        self.qt = qt

    @functools.lru_cache(maxsize=None)
    def find(self, name, folder):
        return next((path for start in (folder, *self.folders) if (path := start / name).is_file()), None)

    @functools.lru_cache(maxsize=None)
    def direct(self, path):
        """What the file names; a form's header stands for the form's classes."""
        names = [quoted or angled for quoted, angled in INCLUDE.findall(text_of(path))]
        forms = [form for name in names if (form := path.parent / f"{name.removeprefix('ui_').removesuffix('.h')}.ui").is_file()]
        names += [name for form in forms for name in FORM_CLASS.findall(text_of(form))]
        return [found for name in names if (found := self.find(name, path.parent))]

    @functools.lru_cache(maxsize=None)
    def of(self, path):
        """Every file that `path` includes, however far. What a header of Qt's leads to is looked up once."""
        stack, seen = [path], set()
        while stack:
            for found in self.direct(stack.pop()):
                if found in seen:
                    continue
                seen.add(found)
                if self.qt in found.parents and self.qt not in path.parents:
                    seen |= self.of(found)
                else:
                    stack.append(found)
        return seen

    @functools.lru_cache(maxsize=None)
    def headers_of(self, name):
        """The headers that declare a class of Qt's, by Qt's file of its name; none for what has no such file."""
        named = [folder / name for folder in self.qt_folders if (folder / name).is_file()]
        return {header for path in named for header in (path, *self.direct(path))}


def is_only_handed_on(name, file, includes):
    """Whether the file knows the class by a forward declaration and only passes pointers to it on."""
    text = text_of(file)
    if not any(re.search(rf"^class {name};$", text_of(path), re.MULTILINE) for path in (file, *includes.of(file))):
        return False
    pointers = re.findall(rf"\b{name} [*&](\w*)", text)
    return len(pointers) == len(re.findall(rf"\b{name}\b", text)) and not any(f"{p}->" in text for p in pointers if p)


def main():
    root, qt = (pathlib.Path(argument) for argument in sys.argv[1:3])
    includes = Includes(root, qt)
    files = sorted(path for folder in FOLDERS for path in (root / folder).rglob("*.cpp"))
    problems = []
    named = 0
    for file in files:
        names = set(CODE.findall(DECLARED.sub("", text_of(file)))) - {""}
        for name in sorted(names):
            headers = includes.headers_of(name)
            named += bool(headers)
            if headers and not headers & includes.of(file) and not is_only_handed_on(name, file, includes):
                problems.append(f"{file.relative_to(root)} names {name} and includes no header that has it")
    if not named:
        problems.append("no class of Qt's found")
    print("\n".join(problems) or f"{len(files)} sources include what they name of Qt")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
