#!/usr/bin/env python3
"""Checks that every script of the tree can be read by its interpreter: none of them is run by every test.

Usage: scripts_parse.py SOURCE
A script is what says so in its first line or by its suffix.
"""
import os
import pathlib
import re
import subprocess
import sys

SHEBANG = re.compile(rb"#! ?\S*?(?:/env )?/?(bash|sh|python3?)\b")
SUFFIXES = {".sh": "bash", ".bash": "bash", ".py": "python"}
# What is made, and what is not the project's.
LEFT_OUT = re.compile(r"build(-.*)?|\..*|__pycache__")


def files(root):
    for folder, folders, names in os.walk(root):
        folders[:] = [name for name in folders if not LEFT_OUT.fullmatch(name)]
        yield from (pathlib.Path(folder) / name for name in names)


def interpreter(path):
    """What runs the file; nothing for one that is no script."""
    with path.open("rb") as file:
        if found := SHEBANG.match(file.readline(200)):
            return found[1].decode().rstrip("3")
    return SUFFIXES.get(path.suffix)


def complaint_about(path, program):
    """Why the script cannot be read; empty when it can."""
    if program == "python":
        try:
            compile(path.read_bytes(), str(path), "exec", dont_inherit=True)
        except (SyntaxError, ValueError) as error:
            return f"{path}: {error}"
        return ""
    # Its words count, not its code: of a text that nothing ends bash only warns.
    return subprocess.run([program, "-n", str(path)], capture_output=True, text=True, check=False).stderr.strip()


def main():
    scripts = [(path, program) for path in sorted(files(sys.argv[1])) if path.is_file() and (program := interpreter(path))]
    complaints = [complaint for path, program in scripts if (complaint := complaint_about(path, program))]
    missing = {"bash", "python"} - {program for _, program in scripts}
    complaints += [f"no script for {program} was found" for program in sorted(missing)]
    print("\n".join(complaints) or f"{len(scripts)} scripts can be read")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
