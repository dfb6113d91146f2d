#!/usr/bin/env python3
"""Checks that the house has floors: by what CMake knows of the targets, so that nothing is typed twice.

Usage: includes_run_downwards.py SOURCE PARTS
PARTS has a line "target NAME" for each target of src/ and apps/, behind it its lines "source PATH" and "link NAME". Every file
there belongs to a target and includes only files of its own target and of those that this links; no targets link each other in
a circle, and no files include each other in one.
"""

import collections
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#include "([^"]+)"', re.MULTILINE)
ENDINGS = (".h", ".cpp", ".def")


def read_parts(path):
    """The targets' sources and links, by the name of the target."""
    sources, links = collections.defaultdict(set), collections.defaultdict(set)
    target = None
    for line in path.read_text(encoding="utf-8").splitlines():
        kind, _, value = line.partition(" ")
        if kind == "target":
            target = value
            sources[target], links[target] = set(), set()
        elif kind == "source":
            sources[target].add(pathlib.Path(value))
        else:
            links[target].add(value)
    return sources, links


def reached_from(start, graph):
    """Everything that the arrows of `graph` lead to from `start`."""
    stack, seen = [start], set()
    while stack:
        for target in graph.get(stack.pop(), ()):
            if target not in seen:
                seen.add(target)
                stack.append(target)
    return seen


def circles(graph):
    """A road from each name that leads back to itself, one for each circle."""
    told = set()
    for start in sorted(graph):
        stack = [[start]]
        seen = set()
        while stack and start not in told:
            road = stack.pop()
            for target in sorted(graph.get(road[-1], ())):
                if target == start:
                    told.update(road)
                    yield [*road, start]
                    break
                if target not in seen:
                    seen.add(target)
                    stack.append([*road, target])


def includes_among(files, root):
    """For each of the files those of them that it includes: by its own folder, from src/ and apps/ or a program's folder."""
    folders = [root / "src", root / "apps", *sorted(path for path in (root / "apps").iterdir() if path.is_dir())]
    return {
        file: {found for name in INCLUDE.findall(file.read_text(encoding="utf-8"))
               if (found := next((road / name for road in (file.parent, *folders) if road / name in files), None))}
        for file in files
    }


def main():
    root = pathlib.Path(sys.argv[1])
    sources, links = read_parts(pathlib.Path(sys.argv[2]))
    files = {path for folder in ("src", "apps") for path in (root / folder).rglob("*") if path.suffix in ENDINGS}
    owners = {file: {target for target in sources if file in sources[target]} for file in files}
    graph = includes_among(files, root)
    within = {target: {target} | reached_from(target, links) for target in sources}

    problems = [f"{file.relative_to(root)} belongs to no target" for file in sorted(files) if not owners[file]]
    for file in sorted(files):
        for target in sorted(owners[file]):
            problems += [
                f"{file.relative_to(root)} ({target}) includes {found.relative_to(root)}, whose {'/'.join(sorted(owners[found]))} it"
                " does not link" for found in sorted(graph[file]) if owners[found] and not owners[found] & within[target]
            ]
    problems += [f"circle of targets: {' > '.join(road)}" for road in circles(links)]
    problems += [
        f"circle of files: {' > '.join(str(file.relative_to(root)) for file in road)}" for road in circles(graph)
    ]
    if not files or not any(graph.values()):
        problems.append("no sources found")
    print("\n".join(problems) or f"{len(files)} files of {len(sources)} targets, every include runs downwards")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
