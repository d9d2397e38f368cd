"""The program KestraSim.exe itself: its files are the same bytes under any locale, path and directory."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["KESTRA_SOURCE_DIR"])
PROGRAM = os.path.join(os.environ["KESTRA_BIN_DIR"], "KestraSim.exe")
EXAMPLES = sorted((SOURCE / "examples").glob("*.KSC"))


def run(arguments, directory, locale="C"):
    environment = dict(os.environ, LC_ALL=locale)
    return subprocess.run([PROGRAM, *arguments], cwd=directory, env=environment, capture_output=True, check=False)


def outputs(directory):
    return {file.suffix: file.read_bytes() for file in directory.iterdir() if file.suffix in (".OUT", ".BRE", ".HCT")}


class Program(unittest.TestCase):
    def test_writes_the_same_bytes_under_any_locale_path_and_directory(self):
        self.assertTrue(EXAMPLES)
        for example in EXAMPLES:
            seen = []
            for name, locale in (("plain", "C"), ("with blank & more; $(x)", "de_DE.UTF-8"), ("\u00f6", "tr_TR.UTF-8")):
                with tempfile.TemporaryDirectory() as top:
                    directory = pathlib.Path(top, name)
                    directory.mkdir()
                    shutil.copy(example, directory)
                    inside = locale == "C"
                    argument = example.name if inside else str(directory / example.name)
                    done = run([argument], directory if inside else top, locale)
                    self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
                    seen.append(outputs(directory))
            self.assertIn(".OUT", seen[0])
            self.assertEqual(seen[0], seen[1])
            self.assertEqual(seen[0], seen[2])

    def test_fails_without_a_file(self):
        with tempfile.TemporaryDirectory() as top:
            self.assertEqual(run(["missing.KSC"], top).returncode, 1)
            self.assertEqual(run([], top).returncode, 2)


if __name__ == "__main__":
    unittest.main()
