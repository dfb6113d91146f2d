#!/usr/bin/env python3
"""Checks that no test is forgotten, and that the test classes of one program do not get into each other's way.

Usage: tests_are_entered.py SOURCE BUILD
Every tst_X.cpp of tests/ enters its class into a program by VOIP_TEST and has no main function, and ctest runs the class once
under its name. A type of a room's sources has its name to itself, since the linker takes two types of one name for one;
in a namespace without name it may have any.
"""
import collections
import json
import pathlib
import re
import subprocess
import sys

OWN_MAIN = re.compile(r"^(QTEST_\w*MAIN\w*|int main)\b.*", re.MULTILINE)
NAMESPACE = re.compile(r"^(?:inline )?namespace ?([\w:]*) ?\{$")
TYPE = re.compile(r"^(?:class|struct|union|enum class|enum) (\w+)[^;]*$")
# Rooms whose headers and sources are part of the programs of all others.
SHARED = ("fakes", "support")


def complaints_about(source):
    """What is wrong with the end of a test source."""
    text = source.read_text(encoding="utf-8")
    name = source.stem
    for found in OWN_MAIN.finditer(text):
        yield f"{source}: {found[0]} makes a program of its own"
    if not re.search(rf'^VOIP_TEST\({name}, (Appless|Guiless|Widgets)\)\n+#include "{name}\.moc"\n\Z', text, re.MULTILINE):
        yield f"{source}: does not end with VOIP_TEST({name}, ...) and the include of {name}.moc"


def classes_of_ctest(build):
    """How often ctest runs a class under its own name: by the commands PROGRAM CLASS of its tests."""
    shown = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], capture_output=True, check=True).stdout
    tests = [(test["name"], test.get("command", [])) for test in json.loads(shown)["tests"]]
    return collections.Counter(name for name, command in tests if command[-1:] == [name])


def types_of(source):
    """The types that a source or header defines for every source of its program."""
    namespaces = []
    for line in source.read_text(encoding="utf-8").splitlines():
        if found := NAMESPACE.match(line):
            namespaces.append(found[1])
        elif line.startswith("} // namespace"):
            namespaces.pop()
        elif "" not in namespaces and (found := TYPE.match(line)):
            yield "::".join((*namespaces, found[1]))


def complaints_about_types(tests):
    rooms = [room for room in sorted(tests.iterdir()) if room.is_dir() and room.name not in SHARED]
    for room in rooms:
        places = collections.defaultdict(set)
        for folder in (room, *(tests / name for name in SHARED)):
            for source in (*folder.rglob("*.h"), *folder.rglob("*.cpp")):
                for name in types_of(source):
                    places[name].add(str(source.relative_to(tests)))
        for name, sources in sorted(places.items()):
            if len(sources) > 1:
                yield f"{name} is defined in {', '.join(sorted(sources))}"


def main():
    tests, build = pathlib.Path(sys.argv[1]) / "tests", sys.argv[2]
    sources = sorted(tests.rglob("tst_*.cpp"))
    run = classes_of_ctest(build)
    complaints = [complaint for source in sources for complaint in complaints_about(source)]
    complaints += [f"{source}: ctest runs it {run[source.stem]} times" for source in sources if run[source.stem] != 1]
    complaints += complaints_about_types(tests)
    if not sources:
        complaints.append("no test sources found")
    print("\n".join(complaints) or f"{len(sources)} test classes, each run by ctest")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
