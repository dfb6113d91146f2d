#!/usr/bin/env python3
"""Checks that the house has floors: by what CMake knows of the targets, so that nothing is typed twice.

Usage: includes_run_downwards.py SOURCE PARTS
PARTS has a line "target NAME" for each target of src/ and apps/, behind it its lines "source PATH" and "link NAME", and the same
for each module of Qt that they link, with lines "headers FOLDER". Every file there belongs to a target and includes only files
of its own target and of those that this links. A target names just those modules of Qt whose headers it includes; those that a
named one needs itself may be left out. No targets link each other in a circle, and no files include each other in one, nor do
units, which are a header and its source, the folders of src/, the rooms of a program, or those of such a folder and the folder
itself.
"""

import collections
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#include "([^"]+)"', re.MULTILINE)
QT_INCLUDE = re.compile(r"^\s*#include <((?:Qt\w+/)?Q\w+)>", re.MULTILINE)
ENDINGS = (".h", ".cpp", ".def")
# The context holds the records of the model, and they ask it for what is the signed-in user's: not counted as a circle.
ASKED_BY_ITS_PARTS = "src/model/SharedContext"
# The inside of a class, apart so that its header need not know a library's types, is one unit with it.
INSIDES = {"apps/calls/agent/UserAgentCore": "apps/calls/agent/UserAgent"}


def read_parts(path):
    """The targets' sources and links, by the name of the target, and the folders of headers by that of the module."""
    sources, links, headers = ({} for _ in range(3))
    target = None
    for line in path.read_text(encoding="utf-8").splitlines():
        kind, _, value = line.partition(" ")
        if kind == "target":
            target = value
            sources[target], links[target], headers[target] = set(), set(), set()
        elif kind == "source":
            sources[target].add(pathlib.Path(value))
        elif kind == "headers":
            headers[target].add(pathlib.Path(value))
        else:
            links[target].add(value)
    return sources, links, {target: folders for target, folders in headers.items() if folders}


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
    """For each of the files those of them that it includes: by its own folder, from src/ and apps/ or a folder of these."""
    folders = [root / "src", root / "apps", *sorted(path for path in (*root.glob("src/*"), *root.glob("apps/*")) if path.is_dir())]
    return {
        file: {found for name in INCLUDE.findall(file.read_text(encoding="utf-8"))
               if (found := next((road / name for road in (file.parent, *folders) if road / name in files), None))}
        for file in files
    }


def units_of(graph, root):
    """Which units include from which others: a header and its source are one, a table is one by itself."""
    def unit(file):
        name = str((file if file.suffix == ".def" else file.with_suffix("")).relative_to(root))
        return INSIDES.get(name, name)

    units = collections.defaultdict(set)
    for file, reached in graph.items():
        units[unit(file)] |= {unit(found) for found in reached} - {unit(file), ASKED_BY_ITS_PARTS}
    return units


def rooms_of(graph, program):
    """Which folders of a program include from which others."""
    rooms = collections.defaultdict(set)
    for file, reached in graph.items():
        if program in file.parent.parents:
            rooms[file.parent].update(found.parent for found in reached if program in found.parent.parents)
    return {room: reached - {room} for room, reached in rooms.items()}


def places_of(graph, folder):
    """Which rooms of a folder of src/, and the folder itself, include from which others."""
    places = collections.defaultdict(set)
    for file, reached in graph.items():
        if folder in file.parents:
            places[file.parent].update(found.parent for found in reached if folder in found.parents)
    return {place: reached - {place} for place, reached in places.items()}


def folders_of(graph, top):
    """Which folders of `top`, with all their rooms, include from which others."""
    folders = collections.defaultdict(set)
    for file, reached in graph.items():
        names = [found.relative_to(top).parts[0] for found in (file, *reached) if top in found.parents]
        if top in file.parents:
            folders[names[0]].update(set(names) - {names[0]})
    return folders


def module_of(header, modules):
    """The module of Qt that <header> belongs to; None for a header of none of these."""
    return next((module for module, folders in modules.items() for folder in folders
                 if folder.name == module.replace("5::", "") and (folder / pathlib.Path(header).name).is_file()
                 and pathlib.Path(header).parent.name in ("", folder.name)), None)


def qt_headers_of(file):
    """The headers of Qt that a source of a target includes; a form stands for its widgets."""
    if file.suffix == ".ui":
        return ["QWidget"]
    return QT_INCLUDE.findall(file.read_text(encoding="utf-8")) if file.suffix in ENDINGS and file.is_file() else []


def qt_problems(sources, links, modules):
    """What the targets include of Qt without naming its module, and what they name without including it."""
    for target in sorted(set(sources) - set(modules)):
        used = collections.defaultdict(set)
        for file in sources[target]:
            for header in qt_headers_of(file):
                used[module_of(header, modules)].add(f"<{header}> in {file.name}")
        named = links[target] & set(modules)
        linked = named.union(*(reached_from(module, links) for module in named))
        for module in sorted(set(used) - linked, key=str):
            yield f"{target} includes {min(used[module])} of {module or 'no module at hand'} and does not name that among its links"
        yield from (f"{target} links {module} and includes none of its headers" for module in sorted(named - set(used)))


def main():
    root = pathlib.Path(sys.argv[1])
    sources, links, modules = read_parts(pathlib.Path(sys.argv[2]))
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
    problems += qt_problems(sources, links, modules)
    for program in sorted(path for path in (root / "apps").iterdir() if path.is_dir()):
        problems += [
            f"circle of rooms: {' > '.join(str(room.relative_to(root)) for room in road)}"
            for road in circles(rooms_of(graph, program))
        ]
    for folder in sorted(path for path in (root / "src").iterdir() if path.is_dir()):
        problems += [
            f"circle of rooms: {' > '.join(str(room.relative_to(root)) for room in road)}"
            for road in circles(places_of(graph, folder))
        ]
    problems += [f"circle of folders: {' > '.join(road)}" for road in circles(folders_of(graph, root / "src"))]
    problems += [f"circle of targets: {' > '.join(road)}" for road in circles(links)]
    problems += [f"circle of units: {' > '.join(road)}" for road in circles(units_of(graph, root))]
    problems += [
        f"circle of files: {' > '.join(str(file.relative_to(root)) for file in road)}" for road in circles(graph)
    ]
    if not files or not any(graph.values()):
        problems.append("no sources found")
    print("\n".join(problems) or f"{len(files)} files of {len(sources) - len(modules)} targets, every include runs downwards")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
