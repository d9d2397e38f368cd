#!/usr/bin/env python3
"""Opens a control file in a project of its own and prints what the program knows of it.

    open_control_file.py PROGRAM RUNS CONTROL_FILE

PROGRAM is `kestra`. The project is made in a fresh folder, RUNS/1, RUNS/2, ..., with the settings beside it, so that
neither the given file nor the user's settings are touched. Ends with 1, and says why, where something cannot be done.
"""

import json
import os
import shutil
import subprocess
import sys


class Refused(Exception):
    """What could not be done, for the user."""


def fresh_folder(runs):
    os.makedirs(runs, exist_ok=True)
    number = 1
    while True:
        folder = os.path.join(os.path.abspath(runs), str(number))
        try:
            os.mkdir(folder)
            return folder
        except FileExistsError:
            number += 1


def run(program, arguments, told=""):
    done = subprocess.run([program, *arguments], input=told, capture_output=True, encoding="utf-8",
                          errors="surrogateescape", check=False)
    if done.returncode != 0:
        name = os.path.basename(program)
        raise Refused(f"{name} {arguments[0]} ended with {done.returncode}\n{done.stderr}".rstrip())
    return done


def make_project(program, folder, control_file):
    """Gives the path of the copy of the control file in the new project."""
    project = os.path.join(folder, "project")
    run(program, ["new", project, "--settings", os.path.join(folder, "settings.ini")])
    return shutil.copy(control_file, project)


def ask(program, folder, control_file):
    """What the program answers: its state, and the records of the control file."""
    requests = [{"do": "state"}, {"do": "call", "name": "ReadRecords", "args": [control_file]}]
    told = "".join(json.dumps(request) + "\n" for request in requests)
    done = run(program, ["drive", control_file, "--settings", os.path.join(folder, "settings.ini")], told)
    answers = [json.loads(line) for line in done.stdout.splitlines()]
    for answer in answers:
        if not answer["ok"]:
            raise Refused(answer["error"])
    if len(answers) != len(requests):
        raise Refused(f"{os.path.basename(program)} drive: {len(answers)} answers to {len(requests)} requests")
    state, runs = (answer["value"] for answer in answers)
    if not state["fileHasName"]:
        raise Refused(f"{control_file} was not opened\n{done.stderr}".rstrip())
    return state, runs


def field_lines(fields):
    width = max((len(name) for name in fields), default=0)
    return [f"           {name:<{width}}  {text.strip()}".rstrip() for name, text in fields.items()]


def row_lines(rows):
    """A table with a column for each field that a row has, its texts on the right."""
    names = list(dict.fromkeys(name for row in rows for name in row))
    table = [names] + [[row.get(name, "").strip() for name in names] for row in rows]
    widths = [max(map(len, column)) for column in zip(*table)]
    laid_out = ("  ".join(f"{text:>{width}}" for text, width in zip(line, widths)) for line in table)
    return [f"           {line}".rstrip() for line in laid_out]


def run_lines(run_of_file):
    yield ""
    yield "Main run" if run_of_file["run"] == "main" else "Spillway run"
    for record in run_of_file["records"]:
        yield f"  {record['line']:>6}   {record['record']}"
        yield from field_lines(record["fields"])
        if record.get("rows"):
            yield from row_lines(record["rows"])
    for line in run_of_file["unknown"]:
        yield f"  {line['line']:>6}   not known: {line['text']}"
    if not run_of_file["ended"]:
        yield "           the file ends before this run does"


def main(arguments):
    if len(arguments) != 3:
        print("usage: open_control_file.py PROGRAM RUNS CONTROL_FILE", file=sys.stderr)
        return 2
    program, runs, control_file = arguments
    sys.stdout.reconfigure(encoding="utf-8", errors="surrogateescape")
    try:
        if not os.path.isfile(control_file):
            raise Refused(f"there is no control file {control_file}")
        folder = fresh_folder(runs)
        state, runs_of_file = ask(program, folder, make_project(program, folder, control_file))
    except (Refused, OSError) as fault:
        print(f"open_control_file: {fault}", file=sys.stderr)
        return 1
    print(f"Folder   {folder}")
    print(f"Project  {state['projectDir']}")
    print(f"File     {state['currentFile']}")
    print(f"Title    {state['titles']['frmKestra']}")
    for run_of_file in runs_of_file:
        print("\n".join(run_lines(run_of_file)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
