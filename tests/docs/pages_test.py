"""Whether the pages are true: their tables of names, their transcripts, their links.

A transcript is a block marked `console`: commands behind "$ ", each up to its line end or the END of its here-document,
and below each all that it prints. The transcripts of a page are run in order, from the top directory of the project,
with a fresh home directory, which the pages call /home/ann.
"""

import contextlib
import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["KESTRA_SOURCE_DIR"])
PROGRAMS = os.environ["KESTRA_BIN_DIR"]
HOME_IN_PAGES = "/home/ann"
AUTOMATION = "docs/automation.md"


def pages():
    """The markdown pages of the project, by their paths from the top."""
    found = [page for form in ("*.md", "src/*.md", "docs/**/*.md", "examples/*.md") for page in SOURCE.glob(form)]
    return sorted(str(page.relative_to(SOURCE)) for page in found)


def read(page):
    return (SOURCE / page).read_text(encoding="utf-8")


def section(page, heading):
    """The text below a heading, up to the next heading of any level."""
    match = re.search(rf"^#+ {re.escape(heading)}\n(.*?)(?=^#|\Z)", read(page), re.MULTILINE | re.DOTALL)
    if match is None:
        raise AssertionError(f"{page} has no heading {heading!r}")
    return match.group(1)


def first_cells(text):
    """The first cells of the rows of a table, heading and rule left out."""
    rows = [line.split("|")[1].strip() for line in text.splitlines() if line.startswith("|")]
    return rows[2:]


def names_in(cells):
    return [name for cell in cells for name in re.findall(r"`([^`]+)`", cell)]


def run(command, home):
    """What a command prints on both of its outputs."""
    environment = dict(os.environ, LC_ALL="C", HOME=home, PATH=PROGRAMS + os.pathsep + os.environ["PATH"])
    environment.pop("XDG_CONFIG_HOME", None)
    done = subprocess.run(["bash", "-c", command], cwd=SOURCE, env=environment, text=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return done.stdout


def drive(requests):
    """The answers of a fresh program to requests."""
    with tempfile.TemporaryDirectory() as home:
        lines = "".join(json.dumps(request) + "\n" for request in requests)
        done = subprocess.run([os.path.join(PROGRAMS, "kestra"), "drive", "--settings", home + "/settings.ini"],
                              input=lines, text=True, stdout=subprocess.PIPE, check=True)
    return [json.loads(line) for line in done.stdout.splitlines()]


def transcripts(page):
    """The commands of a page, each with what the page says it prints."""
    for block in re.findall(r"^```console\n(.*?)^```$", read(page), re.MULTILINE | re.DOTALL):
        for piece in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            end = re.search(r"^END\n", piece, re.MULTILINE) if "<<'END'" in piece else re.search(r"\n", piece)
            yield piece[:end.end()], piece[end.end():]


class AutomationPage(unittest.TestCase):
    def test_lists_no_verb_that_the_program_does_not_know(self):
        verbs = names_in(first_cells(section(AUTOMATION, "Verbs")))
        self.assertGreater(len(verbs), 20)
        for verb in verbs:
            answer = drive([{"do": verb}])[0]
            self.assertNotIn("no verb named", answer.get("error", ""), verb)

    def test_lists_the_operations_with_their_arguments_as_the_program_does(self):
        known = {f"{o['name']}({', '.join(o['arguments'])})" for o in drive([{"do": "operations"}])[0]["value"]}
        named = {o for o in known if not o.endswith("_Click()") and not o.startswith("frmTopScreen.")}
        self.assertEqual(set(names_in(first_cells(section(AUTOMATION, "Operations")))), named)

    def test_lists_the_screens_and_their_controls_as_the_program_does(self):
        rows = [line for line in section(AUTOMATION, "Screens").splitlines() if line.startswith("| `")]
        shows = {names_in([row.split("|")[1]])[0]: row.split("|")[2].strip() for row in rows}
        screens = drive([{"do": "screens"}])[0]["value"]
        wanted = []
        for screen, answer in zip(screens, drive([{"do": "controls", "screen": name} for name in screens])):
            names = dict.fromkeys(re.sub(r"\(\d+\)$", "(n)", control["name"]) for control in answer["value"])
            controls = ", ".join(f"`{name}`" for name in names)
            wanted.append(f"| `{screen}` | {shows.get(screen, 'what it shows is to be told')} | {controls} |")
        if "KESTRA_REWRITE_PAGES" in os.environ:
            page = read(AUTOMATION).replace("\n".join(rows), "\n".join(wanted))
            (SOURCE / AUTOMATION).write_text(page, encoding="utf-8")
            return
        self.assertEqual(rows, wanted)

    def test_lists_variables_that_can_be_read_and_all_of_the_state(self):
        names = names_in(first_cells(section(AUTOMATION, "Variables")))
        for name, answer in zip(names, drive([{"do": "variable", "name": name} for name in names])):
            self.assertTrue(answer["ok"], f"{name}: {answer}")
        state = set(drive([{"do": "state"}])[0]["value"]) - {"visible", "titles", "focus"}
        self.assertEqual(state - set(names), set())


@contextlib.contextmanager
def fresh_home():
    """A directory whose path has no underscore, which no path of a saved file may hold."""
    while True:
        with tempfile.TemporaryDirectory() as directory:
            if "_" not in os.path.basename(directory):
                yield os.path.realpath(directory)
                return


class Transcripts(unittest.TestCase):
    maxDiff = None

    def test_print_what_the_page_says(self):
        tried = 0
        for page in pages():
            with fresh_home() as home:
                for command, expected in transcripts(page):
                    with self.subTest(page=page, command=command):
                        printed = run(command, home).replace(home, HOME_IN_PAGES)
                        self.assertEqual(printed, expected)
                    tried += 1
        self.assertGreater(tried, 10)


class Links(unittest.TestCase):
    def test_lead_to_files_that_are_there(self):
        for page in pages():
            for target in re.findall(r"\]\(([^)#:]+)(?:#[^)]*)?\)", read(page)):
                with self.subTest(page=page, target=target):
                    self.assertTrue((SOURCE / page).parent.joinpath(target).exists())


class Map(unittest.TestCase):
    def test_has_a_paragraph_for_each_folder_of_the_source(self):
        folders = {path.name for path in (SOURCE / "src").iterdir() if path.is_dir()}
        told = set(re.findall(r"^\*\*`([a-z]+)/`\*\*", read("src/README.md"), re.MULTILINE))
        self.assertEqual(told, folders)


class Decisions(unittest.TestCase):
    def test_stand_in_their_list_each_with_its_three_headings(self):
        index = read("docs/decisions/README.md")
        for page in (SOURCE / "docs/decisions").glob("[0-9]*.md"):
            with self.subTest(page=page.name):
                self.assertIn(f"({page.name})", index)
                headings = re.findall(r"^## (.*)$", page.read_text(encoding="utf-8"), re.MULTILINE)
                self.assertEqual(headings, ["Context", "Choice", "Consequence"])


if __name__ == "__main__":
    unittest.main()
