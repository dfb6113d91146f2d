#!/usr/bin/python3
"""Prints every command that stands in *.md and docs/*.md, one a line, each once.

Usage: commands_of_documents.py SOURCE BUILD
A command is a line of a block of shell, or of a block whose first line begins with a program, or a piece of code in a sentence
that does so. A program is one that was built, an executable file of the project, or one of those below.
"""
import os
import pathlib
import re
import sys

SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
BUILT = {path.name for path in (BUILD / "bin").rglob("*") if path.is_file() and os.access(path, os.X_OK)}
# Programs of the system that documents may name. A fixed list: what a machine happens to have must not change the outcome.
PROGRAMS = {
    "apt", "apt-get", "awk", "bash", "cat", "cd", "clang-format", "clang-tidy", "cmake", "convert", "cp", "cpack",
    "ctest", "curl", "dpkg", "dpkg-deb", "env", "export", "find", "g++", "gcc", "gdb", "git", "grep", "kill",
    "killall", "ldd", "ls", "make", "man", "mkdir", "mv", "ninja", "openssl", "perf", "pgrep", "pip", "pkill",
    "python3", "rm", "sed", "sh", "socat", "sqlite3", "strace", "su", "sudo", "tail", "tar", "touch", "unzip",
    "valgrind", "wget", "xdotool",
}
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
    if name in BUILT or name in PROGRAMS or re.match(r"\./|build/[\w-]+$|.*/bin/[\w-]", name):
        return True
    path = SOURCE / name
    return path.is_file() and os.access(path, os.X_OK)


def commands_of_block(block, is_shell):
    lines = [re.sub(r"(^| +)# .*", "", line.strip()) for line in block.splitlines()]
    lines = [line.removeprefix("$ ") for line in lines if line]
    return lines if is_shell or lines and is_command(lines[0]) else []


def is_spoken(code):
    """Whether the code of a sentence is a command and not a name that some program has too."""
    return is_command(code) and (len(code.split()) > 1 or "/" in program(code))


def commands(document):
    text = document.read_text()
    for language, block in BLOCK.findall(text):
        if language in ("", "sh", "console"):
            yield from commands_of_block(block, bool(language))
    text = BLOCK.sub("", text)
    for block in INDENTED.findall(text):
        yield from commands_of_block(block, False)
    yield from filter(is_spoken, CODE.findall(INDENTED.sub("", text)))


documents = (*SOURCE.glob("*.md"), *(SOURCE / "docs").glob("*.md"))
print("\n".join(sorted({command for document in documents for command in commands(document)})))
