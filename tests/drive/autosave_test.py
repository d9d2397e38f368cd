"""Input that was not saved, and what stays of it when the program is killed.

KESTRA_KILLS says how often it is killed; the suite is content with a few, and a hundred take some minutes with
KESTRA_KILL_DELAY=2, the delay of the program with windows.
"""

import json
import os
import random
import re
import shutil
import threading
import time
import unittest

from program import DONE, Flow, done, text_of

KILLS = int(os.environ.get("KESTRA_KILLS", "6"))
DELAY = float(os.environ.get("KESTRA_KILL_DELAY", "0.1"))  # seconds from an edit to its being kept
MOST_LOST = 5.0  # seconds
EXAMPLE = os.path.join(os.path.dirname(__file__), "../../examples/stock-pond.KSC")
TEMPORARY = re.compile(r"\.kestra-\d+\.tmp")


def question(name, answer):
    return {"title": "Unsaved Input",
            "text": f"A program that ended without saving has left input for {name} behind. Do you want it back?\r\n\r\n"
                    "Yes puts it on the screens, where you can look at it before you save. No throws it away. Cancel "
                    "keeps it until you open the project again.",
            "icon": "question", "buttons": ["Yes", "No", "Cancel"], "answer": answer}


class Project(Flow):
    def setUp(self):
        super().setUp()
        self.dam = self.make_project("dam")
        self.file = os.path.join(self.dam, "pond.KSC")
        shutil.copy(EXAMPLE, self.file)

    def autosave(self, drive, seconds, *answers):
        more = {"answers": list(answers)} if answers else {}
        return drive.ask("call", name="Autosave", args=[seconds], **more)

    def type_title(self, drive, text):
        return drive.ask("set", screen="frmProjectInformation", control="txtWatershedID", value=text)

    def title(self, drive):
        return drive.value("get", screen="frmProjectInformation", control="txtWatershedID")["value"]

    def kept(self):
        folder = os.path.join(self.dam, ".kestra")
        names = os.listdir(folder) if os.path.isdir(folder) else []
        return sorted(name for name in names if name.startswith("unsaved-"))


class Unsaved(Project):
    def left_behind(self, title):
        """A killed program leaves this title."""
        drive = self.drive(self.file)
        self.assertEqual(self.autosave(drive, 0), DONE)
        self.assertEqual(self.type_title(drive, title), DONE)
        drive.close()
        self.assertEqual(self.kept(), ["unsaved-1.json"])

    def test_a_script_that_does_not_ask_for_it_leaves_nothing(self):
        drive = self.drive(self.file)
        self.type_title(drive, "Lake")
        drive.close()
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "owner", "pond.KSC"])
        self.assertEqual(self.drive(self.file).end(), ("", "", 0))

    def test_it_is_offered_and_taken_back_only_when_wanted(self):
        self.left_behind("Lake")
        saved = text_of(self.file)
        drive = self.drive(self.file)
        self.assertEqual(self.title(drive), "Larkmoor Farm stock pond")
        self.assertEqual(self.autosave(drive, 0, "Yes"), done(boxes=[question("pond.KSC", "Yes")]))
        self.assertEqual(self.title(drive), "Lake")
        self.assertTrue(drive.state("fileDirty"))
        self.assertEqual(text_of(self.file), saved)
        self.assertEqual(self.kept(), ["unsaved-2.json"])
        self.assertEqual(drive.end(), ("", "", 0))
        self.assertEqual(self.kept(), [])

    def test_it_goes_when_it_is_not_wanted(self):
        self.left_behind("Lake")
        drive = self.drive(self.file)
        self.assertEqual(self.autosave(drive, 0, "No"), done(boxes=[question("pond.KSC", "No")]))
        self.assertEqual(self.title(drive), "Larkmoor Farm stock pond")
        self.assertEqual(self.kept(), [])

    def test_it_stays_where_nobody_answers(self):
        self.left_behind("Lake")
        drive = self.drive(self.file)
        self.assertEqual(self.autosave(drive, 0), done(boxes=[question("pond.KSC", "Cancel")], unanswered=1))
        self.assertEqual(drive.end(), ("", "", 0))
        self.assertEqual(self.kept(), ["unsaved-1.json"])

    def test_a_program_that_may_only_look_is_offered_nothing(self):
        self.left_behind("Lake")
        first = self.drive(self.file)
        self.assertEqual(self.title(first), "Larkmoor Farm stock pond")
        second = self.drive(self.file)
        self.assertEqual(self.autosave(second, 0), DONE)
        self.type_title(second, "River")
        self.assertEqual(self.kept(), ["unsaved-1.json"])
        box = {"title": "Build", "icon": "warning", "buttons": ["OK"], "answer": "OK",
               "text": "This project is open in another program. You can look at it here, but nothing in it can be "
                       "changed."}
        self.assertEqual(second.ask("click", screen="frmKestra", control="mnuBuildFile", answers=["No"])["boxes"][1:],
                         [box])
        saves = second.ask("click", screen="frmKestra", control="mnuSaveAs", answers=[{"file": self.file}, "Yes"])
        self.assertEqual(saves["boxes"][1:], [{**box, "title": "Save As..."}])


class Victim:
    """A program that is edited, saved and built until it is killed, and what is known of its edits."""

    def __init__(self, test, chance, first):
        self.test = test
        self.chance = chance
        self.drive = test.drive(test.file)
        self.number = first
        self.answered = {}  # edit: when its answer came
        self.sent = 0.0  # when the last request was sent that was answered
        self.offer = test.autosave(self.drive, DELAY, "Yes")

    def run(self):
        test, lives = self.test, self.chance.uniform(0.05, 3 * DELAY + 0.3)
        killer = threading.Timer(lives, self.kill)
        killer.start()
        try:
            while True:
                self.step()
        except (BrokenPipeError, ConnectionResetError, json.JSONDecodeError, test.failureException):
            killer.join()
            test.assertIsNotNone(self.drive.process.wait())

    def kill(self):
        self.killed = time.monotonic()
        self.drive.process.kill()

    def step(self):
        sent = time.monotonic()
        act = self.chance.random()
        if act < 0.02:
            answers = [{"file": self.test.file}, "Yes"]
            self.drive.ask("click", screen="frmKestra", control="mnuSaveAs", answers=answers)
        elif act < 0.04:
            self.drive.ask("click", screen="frmKestra", control="mnuBuildFile", answers=["No"])
        else:
            self.number += 1
            self.test.type_title(self.drive, f"edit {self.number}")
            self.answered[self.number] = time.monotonic()
        self.sent = sent

    def surely_kept(self):
        """The last edit after which, once the delay was over, another request was answered."""
        return max((edit for edit, when in self.answered.items() if when + DELAY < self.sent), default=0)


class Killed(Project):
    def edit_in(self, title):
        found = re.fullmatch(r"edit (\d+)", title)
        return int(found[1]) if found else 0

    def check_files(self):
        lines = text_of(self.file).split(b"\r\n")
        self.assertTrue(lines[0].startswith(b"KESTRA    "), lines[0])
        self.assertEqual(lines[-2:], [b"ENDRUN", b""])
        self.assertTrue(text_of(os.path.join(self.dam, "owner")).endswith(b"TORVE\r\n"))
        self.assertNotEqual(text_of(os.path.join(self.dam, "SUMMARY.IDE")), b"")
        for name in self.kept():
            json.loads(text_of(os.path.join(self.dam, ".kestra", name)))
        for place, _, names in os.walk(self.dam):
            unknown = [name for name in names if name.startswith(".") and not TEMPORARY.fullmatch(name)]
            self.assertEqual(unknown, [], place)

    def survivor(self):
        """The last edit that the next user gets."""
        drive = self.drive(self.file)
        self.assertEqual(self.autosave(drive, DELAY, "Yes")["ok"], True)
        edit = self.edit_in(self.title(drive))
        drive.close()
        return edit

    def test_killed_at_any_moment_it_loses_little_and_breaks_nothing(self):
        last, worst = 0, 0.0
        for kill in range(KILLS):
            with self.subTest(kill=kill):
                victim = Victim(self, random.Random(kill), last)
                self.assertTrue(victim.offer["ok"])
                victim.run()
                self.check_files()
                left = self.survivor()
                self.assertGreaterEqual(left, max(victim.surely_kept(), last if not victim.answered else 0))
                lost = [when for edit, when in victim.answered.items() if edit > left]
                worst = max(worst, victim.killed - min(lost, default=victim.killed))
                last = max(victim.number, left)
        self.assertLess(worst, MOST_LOST)
        if KILLS > 20:
            print(f"killed {KILLS} times, at most {worst:.2f} s lost")


if __name__ == "__main__":
    unittest.main()
