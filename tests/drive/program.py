"""Runs the built `kestra` for the flows of this folder, each in a directory of its own."""

import json
import locale
import os
import shutil
import signal
import subprocess
import tempfile
import unittest

KESTRA = os.environ["KESTRA_PROGRAM"]
SANITIZED = bool(os.environ.get("KESTRA_SANITIZE"))
NOBODY = 65534
PATIENCE = 60  # seconds that a program may take to end

if "KESTRA_DECIMAL_COMMA" in os.environ:
    locale.setlocale(locale.LC_ALL, "")
    assert locale.localeconv()["decimal_point"] == ",", "the locale with a decimal comma did not take effect"


def as_nobody():
    """In a child, before the program starts: gives up the rights of root."""
    if os.geteuid() == 0:
        os.setgroups([])
        os.setgid(NOBODY)
        os.setuid(NOBODY)


def text_of(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content=b""):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(content)


def warning(title, text):
    """A box with one button, as an answer reports it."""
    return {"title": title, "text": text, "icon": "warning", "buttons": ["OK"], "answer": "OK"}


def question(title, text, answer):
    return {"title": title, "text": text, "icon": "question", "buttons": ["Yes", "No"], "answer": answer}


DONE = {"ok": True, "value": None}


def done(**more):
    return {**DONE, **more}


class Drive:
    """A running `kestra drive`."""

    def __init__(self, flow, words, **how):
        self._errors = tempfile.TemporaryFile()
        self.process = flow.start(["drive", *words], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                  stderr=self._errors, **how)
        self._flow = flow

    def line(self, text):
        """Sends one line and gives the answer's line."""
        self.process.stdin.write(text.encode("utf-8", "surrogateescape") + b"\n")
        self.process.stdin.flush()
        return self.process.stdout.readline().decode("utf-8")

    def ask(self, verb, **fields):
        answer = self.line(json.dumps({"do": verb, **fields}, ensure_ascii=False))
        self._flow.assertTrue(answer.endswith("}\n"), answer)
        return json.loads(answer)

    def value(self, verb, **fields):
        answer = self.ask(verb, **fields)
        self._flow.assertEqual(list(answer), ["ok", "value"], answer)
        return answer["value"]

    def state(self, name):
        return self.value("state")[name]

    def click(self, screen, control, *answers):
        more = {"answers": list(answers)} if answers else {}
        return self.ask("click", screen=screen, control=control, **more)

    def choose(self, command, directory):
        """Shows one of the project screens and chooses a directory."""
        self._flow.assertEqual(self.click("frmTopScreen", "mnu" + command), DONE)
        self._flow.assertEqual(self.ask("set", screen="frm" + command, control="dirList", value=directory), DONE)

    def new(self, parent, name):
        self.choose("NewProject", parent)
        self._flow.assertEqual(self.ask("set", screen="frmNewProject", control="txtEnterName", value=name), DONE)
        return self.click("frmNewProject", "cmdOK")

    def open(self, directory):
        self.choose("OpenProject", directory)
        return self.click("frmOpenProject", "cmdOK")

    def delete(self, directory, *answers):
        self.choose("DeleteProject", directory)
        return self.click("frmDeleteProject", "cmdOK", *answers)

    def end(self):
        """Ends its input: what it still wrote on standard output, on standard error, and the exit code."""
        if not self.process.stdin.closed:
            self.process.stdin.close()
        rest = self.process.stdout.read()
        code = self.process.wait(PATIENCE)
        self._errors.seek(0)
        return rest.decode("utf-8"), self._errors.read().decode("utf-8", "surrogateescape"), code

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        for stream in (self.process.stdin, self.process.stdout, self._errors):
            try:
                stream.close()
            except BrokenPipeError:
                pass


class Flow(unittest.TestCase):
    """A test in an empty directory `base` that anybody may enter, with settings of its own."""

    maxDiff = None

    def setUp(self):
        self.base = self._new_directory()
        os.chmod(self.base, 0o755)
        self.addCleanup(self._remove)
        self.settings = self.at("config/kestra-b/settings.ini")
        self.program = KESTRA

    def _new_directory(self):
        """Without an underscore, which no path of a saved file may hold."""
        while True:
            path = os.path.realpath(tempfile.mkdtemp(prefix="kestra-flow-"))
            if "_" not in os.path.basename(path):
                return path
            os.rmdir(path)

    def _remove(self):
        for place, directories, _ in os.walk(self.base):
            for name in directories:
                if not os.path.islink(os.path.join(place, name)):
                    os.chmod(os.path.join(place, name), 0o755)
        shutil.rmtree(self.base)

    def at(self, *names):
        return os.path.join(self.base, *names)

    def start(self, words, before=None, cwd=None, **how):
        environment = {**os.environ, "XDG_CONFIG_HOME": self.at("config")}

        def prepare():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)  # a file that may grow no more is a failed write
            if before is not None:
                before()

        return subprocess.Popen([self.program, *words], cwd=cwd or self.base, env=environment, preexec_fn=prepare,
                                **how)

    def run_kestra(self, *words, stdin=b"", **how):
        """Standard output, standard error and exit code of a whole run."""
        process = self.start(words, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **how)
        out, err = process.communicate(stdin, PATIENCE)
        return out.decode("utf-8", "surrogateescape"), err.decode("utf-8", "surrogateescape"), process.returncode

    def drive(self, *words, **how):
        drive = Drive(self, words, **how)
        self.addCleanup(drive.close)
        return drive

    def make_project(self, name):
        path = self.at(name)
        self.assertEqual(self.run_kestra("new", path), (path + "\n", "", 0))
        return path

    def let_nobody_in(self, *names):
        """Makes the program, and the named things, nobody's, so that runs as that user can use them."""
        os.makedirs(self.at("program"), exist_ok=True)
        self.program = shutil.copy(KESTRA, self.at("program"))
        os.makedirs(self.at("config"), exist_ok=True)
        if os.geteuid() == 0:
            for name in ("config", *names):
                for place, _, files in os.walk(self.at(name)):
                    for path in (place, *(os.path.join(place, file) for file in files)):
                        os.chown(path, NOBODY, NOBODY)

    def names_in(self, *names):
        return sorted(os.listdir(self.at(*names)))
