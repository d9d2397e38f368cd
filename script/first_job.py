#!/usr/bin/env python3
"""Puts a control file into a project of its own and shows what the program makes of it.

    first_job.py PROGRAMS RUNS CONTROL_FILE [--window]

PROGRAMS is the directory of the built programs. The project is made in a fresh folder, RUNS/1, RUNS/2, ..., with the
settings beside it, so that neither the given file nor the user's settings are touched. With --window the desktop
program opens the file; without, the file is built, its graphs are drawn as pictures and its summary is written, and
where all that stands is printed. Ends with 1, and says why, where something cannot be done.
"""

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


class Job:
    def __init__(self, programs, folder):
        self._programs = programs
        self._folder = folder
        self._settings = ["--settings", os.path.join(folder, "settings.ini")]

    def run(self, *arguments):
        """What `kestra` prints; refused where it fails."""
        done = subprocess.run([os.path.join(self._programs, "kestra"), *arguments, *self._settings],
                              stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8",
                              errors="surrogateescape", check=False)
        if done.returncode != 0:
            raise Refused(f"kestra {arguments[0]} ended with {done.returncode}\n{done.stderr}".rstrip())
        return done.stdout

    def make_project(self, control_file):
        """Gives the path of the copy of the control file in the new project."""
        project = os.path.join(self._folder, "project")
        self.run("new", project)
        return shutil.copy(control_file, project)

    def draw(self, control_file):
        """Draws all graphs that the run has, and gives their titles and the files of their pictures."""
        lines = [line for line in self.run("graph", control_file, "--list").splitlines()
                 if not line.endswith("(not available)")]
        titles = dict(line.split(maxsplit=1) for line in lines)
        pictures = os.path.join(self._folder, "graphs")
        os.mkdir(pictures)
        made = []
        for number, title in titles.items():
            path = os.path.join(pictures, f"graph-{number}.png")
            self.run("graph", control_file, "--graph", number, "-o", path)
            made.append((title, path))
        return made

    def summarize(self):
        path = os.path.join(self._folder, "summary.txt")
        with open(path, "w", encoding="utf-8") as file:
            file.write(self.run("summary", "--project", os.path.join(self._folder, "project")))
        return path

    def open_window(self, control_file):
        program = os.path.join(self._programs, "kestra-b")
        os.execv(program, [program, control_file, *self._settings])


def main(arguments):
    window = arguments[3:] == ["--window"]
    if len(arguments) != (4 if window else 3):
        print("usage: first_job.py PROGRAMS RUNS CONTROL_FILE [--window]", file=sys.stderr)
        return 2
    programs, runs, given = arguments[:3]
    sys.stdout.reconfigure(encoding="utf-8", errors="surrogateescape")
    try:
        if not os.path.isfile(given):
            raise Refused(f"there is no control file {given}")
        job = Job(programs, fresh_folder(runs))
        control_file = job.make_project(given)
        print(f"File     {control_file}", flush=True)
        if window:
            job.open_window(control_file)
        job.run("build", "--yes", control_file)
        print(f"Results  {os.path.splitext(control_file)[0]}.OUT")
        for title, path in job.draw(control_file):
            print(f"Graph    {path}  {title}")
        print(f"Summary  {job.summarize()}")
    except (Refused, OSError) as fault:
        print(f"first_job: {fault}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
