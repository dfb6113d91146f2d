#!/usr/bin/python3
"""Checks the documents against the tree: the links, pictures, paths and names of the code that they name, and the folders,
floors and rows of tables that they have to name.

Usage: documents_hold.py SOURCE
"""
import pathlib
import re
import subprocess
import sys

# Where a path in a document may begin, beside the folder of the project and that of the document.
BEGINNINGS = ("src", "src/commonfun", "tests", "apps", "apps/host", "apps/callprocess", "apps/callprocess/scenarios", "resources")
# What is there only once something was built, installed or run; tests/packaging looks at it.
MADE = re.compile(r"build(-\w+)?/|~/|/(usr|etc|run|tmp)/|(bin|include|lib|share)/|Resources/|VoipSDK/|lib\w+\.(so|a)$|allurl\.ini$|data\.db$|.*localData\.db$")
# Files of the reader's own.
READERS = {"main.cpp", "CMakeLists.txt", "run.scn"}
# Texts that look like paths: a key of the settings, the id of the interface.
KEYS = {"languageSetting/language", "kelvarim/1.0"}
# Words in code marks that are no names: what the reader fills in, programs of the system, made-up examples.
FOREIGN = {
    "DURATION", "CONTENT", "BYTES", "CODE", "VALUE", "paramN", "pkill", "diff", "callgrind", "myatlist", "quikrply",
    "sqlite_autoindex_", "uXXXX",
}
# Names that stand in a table of the sources and have to stand in a document, or in what the bench measures, as well: the table,
# how a name is read off it, the document, and how it stands there.
TOLD = (
    ("apps/robots/Robots.def", r'^ROBOT\(\w+, +"(\d+)"', "README.md", r"\({}\)"),
    ("apps/host/client/Languages.def", r"^LANGUAGE\((\w+),", "docs/gallery.md", r"\b{}\b"),
    ("apps/host/client/Languages.def", r"^LANGUAGE\((\w+),", "packaging/share/man/man1/kelvarim-gallery.1", r"\b{}\b"),
    ("apps/callprocess/Options.cpp", r'^constexpr OptionRow \w+ *\{"([\w-]+)"', "docs/wire-protocol.md", r"^\| `--{}[ `]"),
    ("src/wire/Notifications.def", r"^WIRE_NOTIFICATION\((\d+),", "bench/goals", r"callbackCode{}/"),
    ("apps/endpoint/EndpointOptions.cpp", r'^constexpr OptionRow \w+ *\{"([\w-]+)"', "docs/wire-protocol.md", r"^\| `--{}[ `]"),
    ("apps/calls/CallsOptions.cpp", r'^constexpr OptionRow \w+ *\{"([\w-]+)"', "docs/real-calls.md", r"^\| `--{}[ `]"),
    ("apps/calls/settings/CallsSettings.def", r'^CALLS_SETTING\(\w+, +\w+, +"\w+", +"([\w-]+)"', "docs/real-calls.md", r"^\| `\w+/{}` \| "),
    ("fuzz/FuzzTargets.h", r'^    \{"(\w+)", ', "docs/reliability.md", r"^\| `{}` \| "),
)
SOURCES = (".cpp", ".h", ".def", ".ui", ".cmake", ".txt", ".map", ".scn", ".py", ".ts", ".in", ".json", "")
SECTION = re.compile(r"```.*?^```", re.DOTALL | re.MULTILINE)
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
CODE = re.compile(r"`([^`\n]+)`")
PATH = re.compile(r"[\w.*@+-]*(/[\w.*@+-]+)*/?")
SUFFIX = re.compile(r"[\w*]\.(cpp|h|def|ui|py|ts|sh|scn|md|cmake|png|svg|txt|debian|ini|db|so|a|\*)$")


def documents(root):
    return [*sorted(root.glob("*.md")), *sorted((root / "docs").glob("*.md"))]


def links(document):
    """Places of the tree that the document leads to."""
    text = SECTION.sub("", document.read_text())
    targets = [target.split("#")[0] for target in LINK.findall(text) if "://" not in target]
    return [(document.parent / target).resolve() for target in targets if target]


def exists(root, document, path):
    """Whether a path as documents write it, with stars or without its suffix, is in the tree."""
    path = path.rstrip("/")
    beginnings = [root, document.parent, *(root / beginning for beginning in BEGINNINGS)]
    if "/" not in path:
        beginnings += [folder for beginning in ("src", "apps") for folder in (root / beginning).rglob("*") if folder.is_dir()]
        beginnings.append(root / "docs")
    return any(next(beginning.glob(pattern), None) for beginning in beginnings for pattern in (path, path + ".*"))


def is_path(code):
    return PATH.fullmatch(code) and ("/" in code or SUFFIX.search(code))


def words_of_the_code(root):
    files = [path for path in root.iterdir() if path.is_file()]
    for folder in ("src", "apps", "tests", "bench", "packaging", "cmake", "tools", "resources", "fuzz"):
        files += (root / folder).rglob("*")
    words = set()
    for path in files:
        if path.suffix in SOURCES and path.is_file() and path != pathlib.Path(__file__).resolve():
            words.update(re.findall(r"\w+", path.read_bytes().decode(errors="replace")))
            # ./test --only takes the name of a test class without what all begin with.
            words.add(path.stem.removeprefix("tst_"))
    return words


def complaints_about_names(root, document, words):
    for code in CODE.findall(SECTION.sub("", document.read_text())):
        if MADE.match(code) or code in READERS:
            continue
        if is_path(code):
            if not exists(root, document, code) and code not in KEYS:
                yield f"{document.name}: no {code} in the tree"
            continue
        for word in re.findall(r"[A-Za-z_]\w{2,}", code):
            if word not in words and word not in FOREIGN:
                yield f"{document.name}: {word} of `{code}` is no name of the code"


def complaints_about_told(root):
    """Names of the tables above that their documents lack."""
    for table, row, document, form in TOLD:
        names = re.findall(row, (root / table).read_text(), re.MULTILINE)
        text = (root / document).read_text()
        if not names:
            yield f"{table}: no row reads as {row}"
        for name in names:
            if not re.search(form.format(name), text, re.MULTILINE):
                yield f"{pathlib.Path(document).name}: does not tell {name} of {table}"


def complaints_about_folders(root):
    """Folders that docs/architecture.md does not name, and floors that stand in its table otherwise than in CMake."""
    text = (root / "docs/architecture.md").read_text()
    for beginning in ("src", "apps", "tests", "src/common", "apps/host", "apps/calls"):
        for folder in sorted((root / beginning).iterdir()):
            if folder.is_dir() and f"`{folder.relative_to(root)}/`" not in text:
                yield f"architecture.md: does not name {folder.relative_to(root)}/"
    listed = re.search(r"foreach\(floor ([\w ]+)\)", (root / "src/CMakeLists.txt").read_text())[1].split()
    table = re.search(r"\| floor \|.*?\n\n", text, re.DOTALL)[0]
    told = list(dict.fromkeys(reversed(re.findall(r"^\| .*?`src/(\w+)/`", table, re.MULTILINE))))
    if told != listed:
        yield f"architecture.md: the floors are {' '.join(told)}, those of src/CMakeLists.txt {' '.join(listed)}"


def settings(root):
    """Keys of calls.ini, which look like paths."""
    row = re.compile(r'^CALLS_SETTING\(\w+, +\w+, +"(\w+)", +"([\w-]+)"', re.MULTILINE)
    return {"/".join(key) for key in row.findall((root / "apps/calls/settings/CallsSettings.def").read_text())}


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    words = words_of_the_code(root)
    KEYS.update(settings(root))
    complaints = []
    reached = {document: links(document) for document in documents(root)}
    for document, targets in reached.items():
        complaints += [f"{document.name}: leads to {target}, which is not there" for target in targets if not target.exists()]
        complaints += complaints_about_names(root, document, words)
    complaints += [*complaints_about_told(root), *complaints_about_folders(root)]

    found, waiting = set(), [root / "README.md"]
    while waiting:
        document = waiting.pop()
        if document not in found:
            found.add(document)
            waiting += [target for target in reached.get(document, []) if target in reached]
    complaints += [f"{document.name}: no way leads there from README.md" for document in reached if document not in found]

    listed = subprocess.run([root / "tools/make_document_pictures", "--list"], capture_output=True, check=True, text=True).stdout
    made = {root / "docs/pictures" / (row.split()[0] + ".png") for row in listed.splitlines()}
    there = set((root / "docs/pictures").iterdir())
    shown = {target for targets in reached.values() for target in targets}
    complaints += [f"{picture.name}: tools/make_document_pictures does not make it" for picture in sorted(there - made)]
    complaints += [f"{picture.name}: made, but not in docs/pictures" for picture in sorted(made - there)]
    complaints += [f"{picture.name}: no document shows it" for picture in sorted(there - shown)]

    print("\n".join(complaints))
    sys.exit(1 if complaints else 0)


main()
