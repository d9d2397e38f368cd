"""Configures small projects that use cmake/Layers.cmake and compares what it refuses, and in which words.

layers_test.py SOURCE SCRATCH CMAKE CXX: the house, a directory to empty and use, the programs.
"""

import os
import re
import shutil
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True

SOURCE, SCRATCH, CMAKE, CXX = sys.argv[1:5]
del sys.argv[1:5]

HEAD = f"""cmake_minimum_required(VERSION 3.25)
project(small LANGUAGES CXX)
set(CMAKE_LINK_LIBRARIES_ONLY_TARGETS ON)
include("{SOURCE}/cmake/Warnings.cmake")
include("{SOURCE}/cmake/Layers.cmake")
"""

# A refusal comes before anything is compiled, so that no compiler need be looked for.
HEAD_WITHOUT_COMPILER = HEAD.replace("LANGUAGES CXX", "LANGUAGES NONE")

BASE = "kestra_module(base FOLDER base SOURCES a.cpp HEADERS a.h)\n"
PLATFORM = "kestra_module(platform FOLDER platform SOURCES p.cpp HEADERS p.h USES base)\n"

REFUSED = {
    "an upward use": (
        {"base": "kestra_module(base FOLDER base SOURCES a.cpp HEADERS a.h USES platform)\n"},
        "layers: 'base' may not use 'platform'"),
    "a use of a neighbour": (
        {"base": BASE, "records": "kestra_module(records FOLDER control SOURCES r.cpp HEADERS r.h USES base results)\n"},
        "layers: 'records' may not use 'results'"),
    "a use of a face in a face": (
        {"base": BASE, "automation": "kestra_module(automation FOLDER automation SOURCES j.cpp HEADERS j.h USES cli)\n"},
        "layers: 'automation' may not use 'cli'"),
    "a module without a row": (
        {"cellar": "kestra_module(cellar FOLDER cellar SOURCES c.cpp HEADERS c.h)\n"},
        "layers: module 'cellar' has no row in cmake/Layers.cmake"),
    "a use of a module that stands nowhere": (
        {"base": BASE, "platform": PLATFORM.replace("USES base", "USES cellar")},
        "layers: 'platform' may not use 'cellar'"),
    "a use of a module that comes later": (
        {"platform": PLATFORM, "base": BASE},
        "layers: 'platform' uses 'base', which is not built yet"),
}

PROGRAMS = """add_executable(near programs/near.cpp)
target_link_libraries(near PRIVATE kestra::base)
add_executable(through programs/through.cpp)
target_link_libraries(through PRIVATE kestra::platform)
add_executable(far EXCLUDE_FROM_ALL programs/far.cpp)
target_link_libraries(far PRIVATE kestra::base)
add_executable(bare EXCLUDE_FROM_ALL programs/bare.cpp)
target_link_libraries(bare PRIVATE kestra::base)
kestra_write_layer_report()
"""

FILES = {
    "base/a.h": "#pragma once\nint a();\n",
    "base/a.cpp": '#include "base/a.h"\nint a() { return 1; }\n',
    "platform/p.h": '#pragma once\n#include "base/a.h"\nint p();\n',
    "platform/p.cpp": '#include "platform/p.h"\nint p() { return a(); }\n',
    "programs/near.cpp": '#include "base/a.h"\nint main() { return a(); }\n',
    "programs/through.cpp": '#include "platform/p.h"\nint main() { return p(); }\n',
    "programs/far.cpp": '#include "platform/p.h"\nint main() { return 0; }\n',
    "programs/bare.cpp": '#include "a.h"\nint main() { return 0; }\n',
}


def run(*command):
    done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False,
                          env={**os.environ, "LC_ALL": "C"})
    return done.returncode, done.stdout + done.stderr


class Project:
    """A project in a directory of its own, its modules in the order in which they are given."""

    def __init__(self, name, head, modules, tail="", files=()):
        self.directory = os.path.join(SCRATCH, re.sub(r"\W+", "-", name))
        self.build = os.path.join(self.directory, "build")
        folders = "".join(f"add_subdirectory({folder})\n" for folder in modules)
        self.put("CMakeLists.txt", head + folders + tail)
        for folder, text in modules.items():
            self.put(f"{folder}/CMakeLists.txt", text)
        for path, text in dict(files).items():
            self.put(path, text)

    def put(self, path, text):
        full = os.path.join(self.directory, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)

    def configure(self):
        return run(CMAKE, "-S", self.directory, "-B", self.build, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={CXX}")

    def make(self, *targets):
        return run(CMAKE, "--build", self.build, *(["--target", *targets] if targets else []))


def messages(output):
    """The texts of the errors that CMake shows, each on one line."""
    found = re.findall(r"^CMake Error at [^\n]*:\n(.*?)\n(?:\S|\Z)", output, re.M | re.S)
    return [" ".join(text.partition("Call Stack")[0].split()) for text in found]


class Layers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(SCRATCH, ignore_errors=True)

    def test_what_breaks_the_layers_is_refused_by_name(self):
        for name, (modules, message) in REFUSED.items():
            with self.subTest(name):
                code, output = Project(name, HEAD_WITHOUT_COMPILER, modules).configure()
                self.assertEqual(messages(output), [message], output)
                self.assertNotEqual(code, 0)

    def test_a_proper_house_is_built_and_a_header_reaches_only_who_links_its_module(self):
        project = Project("a proper house", HEAD, {"base": BASE, "platform": PLATFORM}, PROGRAMS, FILES)
        code, output = project.configure()
        self.assertEqual(code, 0, output)
        code, output = project.make()
        self.assertEqual(code, 0, output)
        for program, header in (("far", "platform/p.h"), ("bare", "a.h")):
            code, output = project.make(program)
            self.assertNotEqual(code, 0, output)
            self.assertIn(f"{program}.cpp:1:10: fatal error: {header}: No such file or directory", output)
        with open(os.path.join(project.build, "layers.txt"), encoding="utf-8") as report:
            self.assertEqual(report.read(), "base|base||base/a.h|base/a.cpp\n"
                                            "platform|platform|base|platform/p.h|platform/p.cpp\n")


if __name__ == "__main__":
    unittest.main()
