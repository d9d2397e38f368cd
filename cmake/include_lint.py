#!/usr/bin/env python3
"""Proves the rules of the house that no compiler sees, over the files of a checkout.

    include_lint.py includes --root DIR --layers FILE [--unbuilt FOLDER]...
    include_lint.py bans --root DIR

`includes` holds every #include against the layer report, the file that cmake/Layers.cmake writes into the build tree.
`--unbuilt` names a folder of src/ whose modules this build leaves out; its files are then passed over.
`bans` looks for calls whose answer depends on the locale or that start a shell, for marks of unfinished work and for
files that have grown too long.

Prints a finding a line, "file:line: what", and ends with 1 when there are any.
"""

import argparse
import os
import re
import subprocess
import sys
from typing import NamedTuple

MODULE_ROOTS = ("src", "engines")
CODE_ROOTS = MODULE_ROOTS + ("tests", "fuzz", "bench")

# Who may include the headers of a library, by how they begin: modules, or None for everybody.
LIBRARIES = {
    "fmt/": None,
    "nlohmann/": {"automation", "cli", "control", "desktop", "summary"},
    "xlsxwriter.h": {"summary"},
    "CLI/": {"cli"},
    "Q": {"render", "desktop"},
}
SYSTEM_HEADERS = {"native"}  # modules that may include headers of the operating system

NUMBER_CALLS = ("strtod", "strtof", "strtold", "stod", "stof", "stold", "atof", "wcstod", "wcstof", "scanf", "sscanf",
                "fscanf", "vsscanf", "printf", "fprintf", "sprintf", "snprintf", "vprintf", "vfprintf", "vsprintf",
                "vsnprintf", "setlocale", "newlocale", "uselocale")
# What code may not call, in which words that is told, and the files that it is not for.
CODE_BANS = (
    (re.compile(r"\b(%s)\s*\(" % "|".join(NUMBER_CALLS)), "{0}: numbers in texts go through base/numbers.h",
     ("src/base/",)),
    (re.compile(r"\b(std::locale)\b"), "{0}: no text may depend on the locale", ("src/base/",)),
    (re.compile(r"\b(system|popen)\s*\("), "{0}: programs are started by the process port, without a shell", ()),
    # The guard of a process group is a constant script, into which no name or path goes.
    (re.compile(r'\b(sh"?\s*,?[\s{]*"?-c)\b'), "sh -c: programs are started by the process port, without a shell",
     ("src/platform/native/process_group.cpp",)),
)

# Put together from pieces, so that this file passes its own ban.
UNFINISHED = re.compile(r"\b(%s)\b" % "|".join(("TO" + "DO", "FIX" + "ME", "X" * 3)))

LONGEST_FILE = 400
LONGEST_BELOW = (("src/desktop/", 450),)
# Tables of data may be as long as what they describe.
DATA_TABLES = {"src/control/record_table.cpp"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
STANDARD_HEADER = re.compile(r"[a-z_0-9]+")
GENERATED_HEADER = re.compile(r"ui_\w+\.h|moc_\w+\.cpp|\w+\.moc")


class Module(NamedTuple):
    name: str
    folder: str
    uses: list
    headers: list
    sources: list


class Include(NamedTuple):
    path: str  # of the file that includes, from the root
    line: int
    quoted: bool
    name: str


def read_report(path):
    with open(path, encoding="utf-8") as report:
        rows = [line.rstrip("\n").split("|") for line in report if line.strip()]
    return [Module(name, folder, uses.split(), headers.split(), sources.split())
            for name, folder, uses, headers, sources in rows]


def files_of(root):
    """The files that git knows or would take up, or all but the build where `root` is no checkout."""
    git = subprocess.run(["git", "-C", root, "rev-parse", "--show-toplevel"], capture_output=True, text=True)
    if git.returncode == 0 and os.path.realpath(git.stdout.rstrip("\n")) == os.path.realpath(root):
        listed = subprocess.run(["git", "-C", root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                                capture_output=True, check=True).stdout
        names = [os.fsdecode(name) for name in listed.split(b"\0") if name]
    else:
        names = []
        for directory, below, files in os.walk(root):
            below[:] = [name for name in below if name not in (".git", "build", ".cache")]
            names += [os.path.relpath(os.path.join(directory, name), root) for name in files]
    return sorted(name for name in set(names) if os.path.isfile(os.path.join(root, name)))


def is_code(path):
    return path.startswith(tuple(top + "/" for top in CODE_ROOTS)) and path.endswith((".h", ".cpp"))


def read_text(root, path):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
        return file.read()


def without_comments(text):
    """The code with its comments blanked out; texts and line ends stand."""
    token = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.S)

    def blank(match):
        found = match.group()
        return re.sub(r"[^\n]", " ", found) if found.startswith("/") else found

    return token.sub(blank, text)


def includes_of(root, path):
    for number, line in enumerate(without_comments(read_text(root, path)).split("\n"), 1):
        found = INCLUDE.match(line)
        if found:
            yield Include(path, number, found.group(1) == '"', found.group(2))


class House:
    """The modules of the report, and which of them a file belongs to."""

    def __init__(self, modules):
        self.modules = {module.name: module for module in modules}
        self.header_owner = {header: module for module in modules for header in module.headers}
        self.file_owner = {file: module for module in modules for file in module.headers + module.sources}

    def owners(self, path):
        """The module of a file; for a program's main.cpp, the modules of its folder."""
        inner = path.partition("/")[2]
        if inner in self.file_owner:
            return [self.file_owner[inner]]
        folder = os.path.dirname(inner)
        if os.path.basename(inner) == "main.cpp":
            return [module for module in self.modules.values() if module.folder == folder]
        return []


def check_project_include(house, owners, include):
    """What is wrong with an include of one of this project's headers, or None."""
    owner = house.header_owner.get(include.name)
    if owner is None:
        return f'"{include.name}" is a header of no module'
    for module in owners:
        if owner.name != module.name and owner.name not in module.uses:
            return f"\"{include.name}\" belongs to '{owner.name}', which '{module.name}' does not name in its USES"
    return None


def check_foreign_include(owners, include):
    """What is wrong with an include in angle brackets, or None."""
    names = {module.name for module in owners}
    for begin, allowed in LIBRARIES.items():
        if include.name.startswith(begin):
            if allowed is None or names <= allowed:
                return None
            return f"<{include.name}> is for {' and '.join(sorted(allowed))} only"
    if STANDARD_HEADER.fullmatch(include.name) or names <= SYSTEM_HEADERS:
        return None
    return f"<{include.name}> is a header of the system, which is for {' and '.join(sorted(SYSTEM_HEADERS))} only"


def check_include(root, house, include):
    """What is wrong with an include, or None."""
    if ".." in include.name.split("/") or "." in include.name.split("/"):
        return f'"{include.name}" leads out of its folder'
    in_module = include.path.startswith(tuple(top + "/" for top in MODULE_ROOTS))
    owners = house.owners(include.path) if in_module else []
    if not include.quoted:
        return check_foreign_include(owners, include) if owners else None
    if "/" not in include.name:
        beside = os.path.join(root, os.path.dirname(include.path), include.name)
        generated = GENERATED_HEADER.fullmatch(include.name) and {m.name for m in owners} == {"desktop"}
        if generated or (not in_module and os.path.isfile(beside)):
            return None
        return f'"{include.name}" does not say its folder'
    if not in_module and os.path.isfile(os.path.join(root, "tests", include.name)):
        return None
    return check_project_include(house, owners, include)


def check_lists(house, paths):
    """Files that no module lists, headers that are listed and missing, headers that are listed twice."""
    for path in paths:
        if path.startswith("src/") and not house.owners(path):
            yield f"{path}:1: no module lists this file"
    found = {path.partition("/")[2] for path in paths}
    seen = {}
    for module in house.modules.values():
        for header in module.headers:
            if header not in found:
                yield f"{header}:1: listed by '{module.name}' and not there"
            if header in seen:
                yield f"{header}:1: listed by '{seen[header]}' and by '{module.name}'"
            seen[header] = module.name


def check_includes(root, layers, unbuilt):
    house = House(read_report(layers))
    left_out = tuple(f"src/{folder}/" for folder in unbuilt)
    # What is behind a switch of the preprocessor may name them.
    unseen = tuple(f"{folder}/" for folder in unbuilt)
    paths = [path for path in files_of(root) if is_code(path) and not path.startswith(left_out)]
    in_modules = [path for path in paths if path.startswith(tuple(top + "/" for top in MODULE_ROOTS))]
    yield from check_lists(house, in_modules)
    for path in paths:
        for include in includes_of(root, path):
            fault = check_include(root, house, include)
            if fault and not include.name.startswith(unseen):
                yield f"{include.path}:{include.line}: {fault}"


def check_calls(root, path):
    for number, line in enumerate(without_comments(read_text(root, path)).split("\n"), 1):
        for pattern, message, exempt in CODE_BANS:
            found = pattern.search(line)
            if found and not path.startswith(exempt):
                yield f"{path}:{number}: {message.format(found.group(1))}"


def check_unfinished(root, path):
    for number, line in enumerate(read_text(root, path).split("\n"), 1):
        found = UNFINISHED.search(line)
        if found:
            yield f"{path}:{number}: {found.group(1)}: finish it, or say what is so"


def check_length(root, path):
    if path in DATA_TABLES:
        return
    length = read_text(root, path).count("\n")
    longest = next((lines for below, lines in LONGEST_BELOW if path.startswith(below)), LONGEST_FILE)
    if length > longest:
        yield f"{path}:{longest + 1}: {length} lines, {longest} at most"


def check_bans(root):
    for path in files_of(root):
        yield from check_unfinished(root, path)
        if is_code(path):
            yield from check_length(root, path)
        if path.startswith(tuple(top + "/" for top in MODULE_ROOTS)) and is_code(path):
            yield from check_calls(root, path)


def main(arguments):
    parser = argparse.ArgumentParser(description="Proves the rules of the house over the files of a checkout.")
    commands = parser.add_subparsers(dest="command", required=True)
    for command in ("includes", "bans"):
        commands.add_parser(command).add_argument("--root", required=True)
    commands.choices["includes"].add_argument("--layers", required=True)
    commands.choices["includes"].add_argument("--unbuilt", action="append", default=[])
    options = parser.parse_args(arguments)
    if options.command == "includes":
        findings = list(check_includes(options.root, options.layers, options.unbuilt))
    else:
        findings = list(check_bans(options.root))
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
