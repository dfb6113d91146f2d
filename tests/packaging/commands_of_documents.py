#!/usr/bin/python3
"""Prints every command that stands in README.md and docs/*.md, one a line, each once.

Usage: commands_of_documents.py SOURCE BUILD
A command is a line of a block whose first line begins with a program, or a piece of code in a sentence that does so. A program is
one that the system knows, one that was built, or an executable file of the project.
"""
import os
import pathlib
import re
import shutil
import sys

SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
BUILT = {path.name for path in (BUILD / "bin").rglob("*") if path.is_file() and os.access(path, os.X_OK)}
# Programs that a sentence may name without more words; all others are taken for plain words there.
ALONE = {"cmake", "cpack", "ctest", "lintian", "ninja"}
# Statements of the scenario language that are programs of the system too.
STATEMENTS = ("split ", "expect ", "wait ", "timeout ", "join ")
BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.DOTALL | re.MULTILINE)
INDENTED = re.compile(r"(?:^|(?<=\n\n))(?:    .*\n)+(?=\n|$)")
CODE = re.compile(r"`([^`\n]+)`")


def program(command):
    """The word of the command that names its program, without settings before it."""
    words = [word for word in command.split() if not re.match(r"[A-Z_]+=", word)]
    return words[0] if words else ""


def is_command(text):
    name = program(text)
    if not name or name.startswith("tests/"):
        return False
    if name in BUILT or re.match(r"\./|build/[\w-]+$|.*/bin/", name):
        return True
    path = SOURCE / name
    return path.is_file() and os.access(path, os.X_OK) or re.fullmatch(r"[a-z][\w-]+", name) and shutil.which(name)


def commands_of_block(block):
    lines = [re.sub(r"(^| +)# .*", "", line.strip()) for line in block.splitlines()]
    lines = [line.removeprefix("$ ") for line in lines if line]
    return lines if lines and is_command(lines[0]) else []


def is_spoken(code):
    """Whether the code of a sentence is a command and not a name that some program has too."""
    if code.startswith(STATEMENTS) or not is_command(code):
        return False
    name = program(code)
    if re.search(r"[*<>]|/$|\.\w+$", name) and not os.access(SOURCE / name, os.X_OK):
        return False
    return len(code.split()) > 1 or "/" in name or name in ALONE


def commands(document):
    text = document.read_text()
    for language, block in BLOCK.findall(text):
        if language in ("", "sh", "console"):
            yield from commands_of_block(block)
    text = BLOCK.sub("", text)
    for block in INDENTED.findall(text):
        yield from commands_of_block(block)
    yield from filter(is_spoken, CODE.findall(INDENTED.sub("", text)))


for command in sorted({command for document in (SOURCE / "README.md", *(SOURCE / "docs").glob("*.md")) for command in commands(document)}):
    print(command)
