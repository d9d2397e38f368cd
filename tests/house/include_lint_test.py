"""Plants a fault in a small tree and expects the lint to find that one and no other."""

import contextlib
import io
import os
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "cmake"))
sys.dont_write_bytecode = True
import include_lint  # noqa: E402

REPORT = (
    "base|base||base/text.h|base/text.cpp\n"
    "platform|platform|base|platform/files.h|platform/files.cpp\n"
    "native|platform/native|base platform|platform/native/spawn.h|platform/native/spawn.cpp\n"
    "state|shell|base platform|shell/state.h|shell/state.cpp\n"
    "shell|shell|platform state|shell/shell.h|shell/shell.cpp\n"
    "automation|automation|base shell|automation/json.h|automation/json.cpp\n"
    "cli|cli|native shell automation|cli/options.h|cli/options.cpp\n"
    "desktop|desktop|shell|desktop/window.h|desktop/window.cpp\n"
    "physics|physics|base|physics/weir.h|physics/weir.cpp\n"
)

CLEAN = {
    "src/base/text.h": "#pragma once\n#include <string>\n",
    "src/base/text.cpp": '#include "base/text.h"\n#include <fmt/format.h>\ndouble d = std::strtod("1", nullptr);\n',
    "src/platform/files.h": '#pragma once\n#include "base/text.h"\n',
    "src/platform/files.cpp": '#include "platform/files.h"\n#include <cstdlib>\n// printf(1), system("ls"), sh -c\n',
    "src/platform/native/spawn.h": "#pragma once\n#include <sys/types.h>\n",
    "src/platform/native/spawn.cpp": '#include "platform/native/spawn.h"\n#include <unistd.h>\n',
    "src/shell/state.h": "#pragma once\n",
    "src/shell/state.cpp": '#include "shell/state.h"\n',
    "src/shell/shell.h": '#pragma once\n#include "shell/state.h"\n',
    "src/shell/shell.cpp": '#include "shell/shell.h"\n#include "platform/files.h"\n',
    "src/automation/json.h": "#pragma once\n#include <nlohmann/json.hpp>\n",
    "src/automation/json.cpp": '#include "automation/json.h"\nvoid fileSystem(int);\n',
    "src/cli/options.h": "#pragma once\n",
    "src/cli/options.cpp": '#include "cli/options.h"\n#include <CLI/CLI.hpp>\n',
    "src/cli/main.cpp": '#include "cli/options.h"\n#include "platform/native/spawn.h"\n',
    "src/desktop/window.h": "#pragma once\n#include <QMainWindow>\n",
    "src/desktop/window.cpp": '#include "desktop/window.h"\n#include "ui_window.h"\n',
    "engines/physics/weir.h": "#pragma once\n",
    "engines/physics/weir.cpp": '#include "physics/weir.h"\n#include <cmath>\n',
    "tests/base/text_test.cpp": '#include "base/text.h"\n#include "helper.h"\n#include "support/matchers.h"\n',
    "tests/base/helper.h": "#pragma once\n",
    "tests/support/matchers.h": "#pragma once\n#include <gtest/gtest.h>\n",
    "docs/page.md": "text\n",
    "build/left/over.cpp": '#include "../nowhere.h"\n',
}

# What stands behind the last line of a file, and what has to be found there.
INCLUDE_FAULTS = {
    "an include of a module that is not in the USES": (
        "src/platform/files.cpp", '#include "shell/state.h"',
        "\"shell/state.h\" belongs to 'state', which 'platform' does not name in its USES"),
    "an include that only a transitive link makes reachable": (
        "src/shell/shell.cpp", '#include "base/text.h"',
        "\"base/text.h\" belongs to 'base', which 'shell' does not name in its USES"),
    "an include of the upper floor of the same folder": (
        "src/shell/state.cpp", '#include "shell/shell.h"',
        "\"shell/shell.h\" belongs to 'shell', which 'state' does not name in its USES"),
    "an include in a program beyond what its folder uses": (
        "src/cli/main.cpp", '#include "platform/files.h"',
        "\"platform/files.h\" belongs to 'platform', which 'cli' does not name in its USES"),
    "an include in an engine of what the system is made of": (
        "engines/physics/weir.cpp", '#include "shell/shell.h"',
        "\"shell/shell.h\" belongs to 'shell', which 'physics' does not name in its USES"),
    "a header that no module lists": (
        "src/shell/shell.cpp", '#include "shell/secret.h"', '"shell/secret.h" is a header of no module'),
    "a header of nobody in a test": (
        "tests/base/text_test.cpp", '#include "base/secret.h"', '"base/secret.h" is a header of no module'),
    "a parent-relative include": (
        "src/shell/shell.cpp", '#include "../base/text.h"', '"../base/text.h" leads out of its folder'),
    "a parent-relative include in a test": (
        "tests/base/text_test.cpp", '#include "../support/matchers.h"',
        '"../support/matchers.h" leads out of its folder'),
    "a quoted include without its folder": (
        "src/shell/shell.cpp", '# include  "shell.h"', '"shell.h" does not say its folder'),
    "a generated header outside the windows": (
        "src/shell/shell.cpp", '#include "ui_window.h"', '"ui_window.h" does not say its folder'),
    "a toolkit header in the core": (
        "src/shell/shell.h", "#include <QString>", "<QString> is for desktop and render only"),
    "a toolkit header by its module in the core": (
        "src/shell/shell.h", "#include <QtCore/QString>", "<QtCore/QString> is for desktop and render only"),
    "a system header outside platform/native": (
        "src/platform/files.cpp", "#include <unistd.h>",
        "<unistd.h> is a header of the system, which is for native only"),
    "a system header in a folder, in a window": (
        "src/desktop/window.cpp", "#include <sys/stat.h>",
        "<sys/stat.h> is a header of the system, which is for native only"),
    "a header of another system": (
        "src/cli/main.cpp", "#include <windows.h>",
        "<windows.h> is a header of the system, which is for native only"),
    "the JSON library in the core": (
        "src/shell/shell.cpp", "#include <nlohmann/json.hpp>",
        "<nlohmann/json.hpp> is for automation and cli and control and desktop and summary only"),
    "the command line library in a script's reader": (
        "src/automation/json.cpp", "#include <CLI/CLI.hpp>", "<CLI/CLI.hpp> is for cli only"),
}

CODE_FAULTS = {
    "a locale's number reader": (
        "src/shell/shell.cpp", 'double d = std::stod("1");', "stod: numbers in texts go through base/numbers.h"),
    "a C number reader": (
        "src/desktop/window.cpp", 'double d = strtod ("1", 0);', "strtod: numbers in texts go through base/numbers.h"),
    "a C number reader in an engine": (
        "engines/physics/weir.cpp", 'double d = atof("1");', "atof: numbers in texts go through base/numbers.h"),
    "a formatted scan": (
        "src/platform/native/spawn.cpp", 'sscanf(t, "%lf", &d);', "sscanf: numbers in texts go through base/numbers.h"),
    "a formatted print": (
        "src/cli/main.cpp", 'std::snprintf(t, 9, "%g", d);', "snprintf: numbers in texts go through base/numbers.h"),
    "a change of locale": (
        "src/cli/main.cpp", 'setlocale(LC_ALL, "");', "setlocale: numbers in texts go through base/numbers.h"),
    "a locale object": (
        "src/cli/main.cpp", "out.imbue(std::locale());", "std::locale: no text may depend on the locale"),
    "a command for the shell": (
        "src/cli/main.cpp", 'std::system("ls");', "system: programs are started by the process port, without a shell"),
    "a pipe from the shell": (
        "src/base/text.cpp", 'popen("ls", "r");', "popen: programs are started by the process port, without a shell"),
    "a shell by its name": (
        "src/cli/main.cpp", 'run("/bin/sh -c ls");',
        "sh -c: programs are started by the process port, without a shell"),
    "a shell in a list of arguments": (
        "src/cli/main.cpp", 'run("/bin/sh", {"sh", "-c", "ls"});',
        "sh -c: programs are started by the process port, without a shell"),
    "a shell that is given its arguments apart": (
        "src/cli/main.cpp", 'run("/bin/sh", {"-c", "ls"});',
        "sh -c: programs are started by the process port, without a shell"),
}

UNFINISHED_WORDS = ("TO" + "DO", "FIX" + "ME", "X" * 3)


class Tree(unittest.TestCase):
    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)
        self.root = os.path.join(self.directory.name, "a house")
        for path, text in CLEAN.items():
            self.put(path, text)
        self.report = os.path.join(self.directory.name, "layers.txt")
        self.write_report(REPORT)

    def write_report(self, text):
        with open(self.report, "w", encoding="utf-8") as file:
            file.write(text)

    def put(self, path, text):
        full = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)

    def append(self, path, line):
        self.put(path, CLEAN[path] + line + "\n")
        return CLEAN[path].count("\n") + 1

    def lint(self, *arguments):
        """The findings; a run with findings, and no other, ends with 1."""
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            code = include_lint.main([*arguments])
        findings = said.getvalue().splitlines()
        self.assertEqual(code, 1 if findings else 0)
        return findings

    def includes(self, *more):
        return self.lint("includes", "--root", self.root, "--layers", self.report, *more)

    def bans(self):
        return self.lint("bans", "--root", self.root)


class Includes(Tree):
    def test_a_clean_tree_has_no_findings(self):
        self.assertEqual(self.includes(), [])

    def test_each_planted_fault_is_found(self):
        for name, (path, line, message) in INCLUDE_FAULTS.items():
            with self.subTest(name):
                number = self.append(path, line)
                self.assertEqual(self.includes(), [f"{path}:{number}: {message}"])
                self.put(path, CLEAN[path])

    def test_an_include_in_a_comment_is_none(self):
        self.append("src/shell/shell.cpp", '// #include "../x.h"\n/*\n#include <QString>\n*/')
        self.assertEqual(self.includes(), [])

    def test_a_source_that_no_module_lists_is_found(self):
        self.put("src/shell/forgotten.cpp", "")
        self.assertEqual(self.includes(), ["src/shell/forgotten.cpp:1: no module lists this file"])

    def test_a_header_that_no_module_lists_is_found(self):
        self.put("src/shell/forgotten.h", "")
        self.assertEqual(self.includes(), ["src/shell/forgotten.h:1: no module lists this file"])

    def test_a_file_that_git_ignores_is_none_of_the_house(self):
        subprocess.run(["git", "init", "--quiet", self.root], check=True)
        self.put(".gitignore", "/build/\n*.orig.cpp\n")
        self.put("src/shell/shell.orig.cpp", '#include "../x.h"\n')
        self.assertEqual(self.includes(), [])
        self.put("src/shell/forgotten.cpp", "")
        self.assertEqual(self.includes(), ["src/shell/forgotten.cpp:1: no module lists this file"])

    def test_a_program_in_a_folder_without_a_module_is_found(self):
        self.put("src/stray/main.cpp", "")
        self.assertEqual(self.includes(), ["src/stray/main.cpp:1: no module lists this file"])

    def test_a_listed_header_that_is_missing_is_found(self):
        self.write_report(REPORT.replace("shell/shell.h|", "shell/shell.h shell/gone.h|"))
        self.assertEqual(self.includes(), ["shell/gone.h:1: listed by 'shell' and not there"])

    def test_a_header_that_two_modules_list_is_found(self):
        self.write_report(REPORT.replace("desktop/window.h|", "desktop/window.h cli/options.h|"))
        self.assertIn("cli/options.h:1: listed by 'cli' and by 'desktop'", self.includes())

    def test_a_folder_that_this_build_leaves_out_is_passed_over(self):
        self.write_report("".join(row for row in REPORT.splitlines(True) if not row.startswith("desktop")))
        self.assertEqual(self.includes("--unbuilt", "desktop"), [])
        self.assertIn("src/desktop/window.cpp:1: no module lists this file", self.includes())

    def test_a_header_of_a_folder_that_this_build_leaves_out_may_be_named(self):
        self.write_report("".join(row for row in REPORT.splitlines(True) if not row.startswith("desktop")))
        number = self.append("src/shell/shell.cpp", '#include "desktop/window.h"')
        self.assertEqual(self.includes("--unbuilt", "desktop"), [])
        self.assertIn(f'src/shell/shell.cpp:{number}: "desktop/window.h" is a header of no module', self.includes())
        self.put("src/shell/shell.cpp", CLEAN["src/shell/shell.cpp"])


class Bans(Tree):
    def test_a_clean_tree_has_no_findings(self):
        self.assertEqual(self.bans(), [])

    def test_each_planted_call_is_found(self):
        for name, (path, line, message) in CODE_FAULTS.items():
            with self.subTest(name):
                number = self.append(path, line)
                self.assertEqual(self.bans(), [f"{path}:{number}: {message}"])
                self.put(path, CLEAN[path])

    def test_unfinished_work_is_found_in_every_kind_of_file(self):
        for path in ("src/shell/shell.cpp", "docs/page.md", "tests/base/helper.h"):
            for word in UNFINISHED_WORDS:
                with self.subTest(path=path, word=word):
                    number = self.append(path, f"// {word}: later")
                    self.assertEqual(self.bans(), [f"{path}:{number}: {word}: finish it, or say what is so"])
                    self.put(path, CLEAN[path])

    def test_a_file_that_has_grown_too_long_is_found(self):
        for path, longest in (("src/shell/shell.cpp", 400), ("tests/base/helper.h", 400),
                              ("src/desktop/window.cpp", 450)):
            with self.subTest(path):
                self.put(path, "\n" * longest)
                self.assertEqual(self.bans(), [])
                self.put(path, "\n" * (longest + 1))
                self.assertEqual(self.bans(), [f"{path}:{longest + 1}: {longest + 1} lines, {longest} at most"])
                self.put(path, CLEAN[path])

    def test_a_table_of_data_may_be_long(self):
        self.put("src/control/record_table.cpp", "\n" * 1000)
        self.assertEqual(self.bans(), [])


if __name__ == "__main__":
    unittest.main()
