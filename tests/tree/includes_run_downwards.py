#!/usr/bin/env python3
"""Checks the floors of src/: an include never runs upwards, no files include each other in a circle, and the call process
and the checker take nothing of the plug-in but the words of the wire."""

import pathlib
import re
import sys

FLOORS = ["common and wire", "model", "front", "store and passport", "widgets and host requests", "ui", "engine", "plugin"]

FOLDER_FLOOR = {
    "common": 0, "wire": 0, "model": 1, "store": 3, "passport": 3, "widgets": 4, "ui": 5, "engine": 6, "plugin": 7,
}

# Files that stand on another floor than their folder: the front of the common code, and the plug-in's side of what is
# asked of the host, which windows and engine use.
FILE_FLOOR = {
    "common/CommonFun": 2, "common/CLogManger": 2, "common/FileIcons": 2, "common/HeadImages": 2,
    "common/HtmlImages": 2, "common/IconFont": 2, "common/ImagePath": 2, "common/MessageHtml": 2,
    "common/PictureFolders": 2, "common/PictureFun": 2, "common/PictureNames": 2, "common/WaterMark": 2,
    "plugin/BaseEvent": 4, "plugin/EMsgId": 4, "plugin/EventPayload": 4, "plugin/HostCommands": 4,
    "plugin/HostEvents": 4, "plugin/HostRequests": 4, "plugin/PluginIds": 4, "plugin/PluginInterface": 4, "plugin/StrangerCards": 4,
    "plugin/VoipManageEventProcess": 4, "plugin/VoipManageMessageProcess": 4,
}

# The programs that stand at the other end of the wire.
FAR_END = ["callprocess", "callcheck", "robots"]

INCLUDE = re.compile(r'^\s*#include "([^"]+)"', re.MULTILINE)


def floor_of(name):
    return FILE_FLOOR.get(name.rsplit(".", 1)[0], FOLDER_FLOOR[name.split("/")[0]])


def circle_from(start, graph):
    """A list of files that leads from `start` back to it, or None."""
    stack, seen = [(start, [start])], set()
    while stack:
        name, road = stack.pop()
        for target in graph.get(name, ()):
            if target == start:
                return road + [start]
            if target not in seen:
                seen.add(target)
                stack.append((target, road + [target]))
    return None


def taken_too_much(src):
    """What the programs of the far end include of src/ besides wire/."""
    apps = src.parent / "apps"
    for path in sorted(p for folder in FAR_END for p in (apps / folder).rglob("*") if p.suffix in (".h", ".cpp", ".def")):
        for target in INCLUDE.findall(path.read_text(encoding="utf-8")):
            if (src / target).is_file() and not target.startswith("wire/"):
                yield f"{path.relative_to(apps.parent)} includes {target}, which is the plug-in's own"


def main():
    src = pathlib.Path(sys.argv[1])
    files = sorted(p.relative_to(src).as_posix() for p in src.rglob("*") if p.suffix in (".h", ".cpp", ".def"))
    graph = {}
    for name in files:
        targets = INCLUDE.findall((src / name).read_text(encoding="utf-8"))
        graph[name] = [t for t in targets if t in files]
    problems = [
        f"{name} ({FLOORS[floor_of(name)]}) includes {target} ({FLOORS[floor_of(target)]}), which stands above it"
        for name, targets in graph.items() for target in targets if floor_of(target) > floor_of(name)
    ]
    problems += [f"circle: {' > '.join(road)}" for road in filter(None, (circle_from(f, graph) for f in files))]
    stale = [name for name in FILE_FLOOR if not any(f.startswith(name + ".") for f in files)]
    problems += [f"{name} has a floor of its own but does not exist" for name in stale]
    problems += taken_too_much(src)
    if not files:
        problems.append("no sources found")
    print("\n".join(problems) or f"{len(files)} files, every include runs downwards")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
