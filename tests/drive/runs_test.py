"""Builds with stub solvers: the command line's part, scripts, and the ends of programs."""

import os
import signal
import subprocess
import time
import unittest

from program import Flow, PATIENCE, text_of, warning, write

SPILLWAY = "QUIL      02/09/2002{0}         Way{0}\r\nBTMWIDTH  FEET      50\r\nENDJOB\r\nENDRUN\r\n"
CONTROL = "KESTRA    01/01/2009Dam\r\nENDRUN\r\n" + SPILLWAY.format(1)
STEM = 'stem=${1%.*}\n'
DAM = STEM + """{
echo ' KESTRA    01/01/2009Larkmoor'
echo 'Hydrograph Routing'
echo '      (hr)'
echo '     -----'
printf '%10s%10s%10s%10s\\n' 0 1 5 7
printf '%10s%10s%10s%10s\\n' 1 1 6 8
} >"$stem.OUT"
echo solving
"""
SPILL = STEM + """printf 'a\\nb\\nc\\nd\\n' >"$stem.DIS"
echo graph >"$(basename "$stem").DG1"
"""


class Runs(Flow):
    def setUp(self):
        super().setUp()
        self.make_project("dam")
        self.solver("KestraSim.exe", DAM)
        self.solver("TorveSim.exe", SPILL)
        for name in ("Summary.idt", "Summary.ids"):
            write(self.at("app", name), text_of(os.path.join(os.path.dirname(os.environ["KESTRA_PROGRAM"]), name)))

    def solver(self, name, body):
        write(self.at("app", name), b"#!/bin/sh\n" + body.encode())
        os.chmod(self.at("app", name), 0o755)

    def control(self, name, text=CONTROL):
        write(self.at("dam", name), text.encode())
        return self.at("dam", name)

    def words(self, *words):
        return ("--app-dir", self.at("app"), *words)

    def open(self, path):
        drive = self.drive(*self.words(path))
        self.assertEqual(drive.state("currentFile"), path)
        return drive

    def build(self, drive):
        return drive.value("call", name="BuildMyFiles", args=[False])


class CommandLine(Runs):
    def test_builds_and_tells_what_runs(self):
        path = self.control("pond.KSC")
        out, err, code = self.run_kestra(*self.words("build", path))
        lines = [line for line in err.splitlines() if line.startswith(path)]
        self.assertEqual(lines, [f"{path}: {text}" for text in
                                 ("building", "KestraSim.exe pond.KSC", "TorveSim.exe pond1_0.V2D", "built")])
        self.assertEqual((out, code), ("", 0))
        self.assertEqual(self.names_in("dam/pond"), ["pond1_0.DG1", "pond1_0.DIS", "pond1_0.DIS~", "pond1_0.V2D"])
        self.assertIn(b"solving\n\r\n-- KestraSim.exe ended with exit code 0\r\n", text_of(self.at("dam/pond.log")))

    def test_goes_on_behind_a_failed_build_and_says_why(self):
        paths = [self.control(name) for name in ("a.KSC", "b.KSC")]
        write(self.at("dam/a"), b"a file where the results belong")
        out, err, code = self.run_kestra(*self.words("build", *paths))
        self.assertIn(f"{paths[0]}: {self.at('dam/a')}: File exists\n{paths[0]}: not built\n", err)
        self.assertTrue(err.endswith(f"{paths[1]}: built\n"), err)
        self.assertEqual((out, code), ("", 1))

    def test_builds_a_file_of_another_extension_and_keeps_it(self):
        path = self.control("pond.dat")
        out, err, code = self.run_kestra(*self.words("build", path))
        self.assertTrue(err.endswith(f"{path}: KestraSim.exe pond.dat\n{path}: TorveSim.exe pond1_0.V2D\n"
                                     f"{path}: built\n"), err)
        self.assertEqual((out, code, text_of(path).decode()), ("", 0, CONTROL))

    def test_prints_the_summary(self):
        path = self.control("pond.KSC")
        self.run_kestra(*self.words("build", path))
        out, err, code = self.run_kestra(*self.words("summary", "--project", self.at("dam")))
        self.assertEqual((err, code), ("", 0))
        self.assertEqual([line[:45] for line in out.splitlines()],
                         ["Name  Type             Input  Project Title  ", "pond  Single Instance         Larkmoor       "])
        self.assertEqual(self.run_kestra(*self.words("summary"), cwd=self.at("dam")), (out, "", 0))
        none = "Open Project: This is not a valid QUIL project directory!\n"
        self.assertEqual(self.run_kestra(*self.words("summary")), ("", none, 1))


class Scripts(Runs):
    def test_draw_the_open_graphs_anew_after_a_build(self):
        drive = self.open(self.control("pond.KSC"))
        self.assertEqual(drive.ask("activate", screen="frmOutputGraph")["ok"], True)
        texts = lambda: [call[3] for call in drive.value("canvas", screen="frmOutputGraph", control="Pic1(0)")
                         if call[0] == "Print"]
        self.assertEqual(texts(), ["Hydrograph Graph Not Available"])
        rows = STEM + "printf 'Hydrograph Routing\\n\\n\\n\\n\\n\\n%10s%10s\\n' 2 PEAK >\"${stem}.OUT\"\n"
        for peak in (140, 280):
            self.solver("KestraSim.exe", rows.replace("PEAK", str(peak)))
            self.assertTrue(self.build(drive))
            self.assertEqual(texts()[0], "Hydrographs")
            self.assertEqual([drive.value("variable", name="Saved" + end)[0] for end in ("Xmax", "Ymax")],
                             [2, {140: 140, 280: 300}[peak]])

    def test_run_each_step_by_its_name(self):
        path = self.control("pond.KSC", CONTROL + SPILLWAY.format(2))
        drive = self.open(path)
        base = self.at("dam/pond")
        call = lambda name, *args: drive.value("call", name=name, args=list(args))
        call("SplitControlFile", path, base)
        self.assertEqual(text_of(base + ".AS2").decode(), SPILLWAY.format(2))
        call("RunDamSolver", path, False)
        self.assertTrue(os.path.exists(base + ".OUT"))
        self.assertEqual(call("ExtractSpillwayInflow", path, 1),
                         "HYD       9                   C\r\n" + " " * 20 + "1         0         \r\n" + " " * 20 +
                         "         7         8\r\nENDTABLE\r\n")
        write(base + "/pond1_0.V2D", SPILLWAY.format(1).encode())
        call("RunSpillwayInstance", base + "/pond1_0.V2D", 1)
        self.assertEqual(text_of(base + "/pond1_0.DIS"), b"\r\na\r\nb\r\nc\r\nd\r\nN/A\r\n")
        call("DeleteOldRunFiles", "pond")
        self.assertEqual(self.names_in("dam"),
                         [".kestra"] * os.path.exists(self.at("dam/.kestra")) +
                         ["SUMMARY.IDE", "owner", "pond", "pond.AS1", "pond.AS2", "pond.KSC", "pond1_0.DG1"])
        self.assertEqual(self.names_in("dam/pond"), [])
        self.assertEqual(call("RunAndWait", f"{self.at('app')}/KestraSim.exe \"{path}\""), 0)
        self.solver("KestraSim.exe", "exit 7\n")
        self.assertEqual(call("RunAndWait", f"{self.at('app')}/KestraSim.exe \"{path}\""), 7)
        self.assertEqual(call("RunAndWait", "/no/such \"x\""), 0)

    def test_build_and_find_the_run_in_the_summary(self):
        drive = self.open(self.control("pond.KSC"))
        self.assertTrue(self.build(drive))
        self.assertEqual(drive.value("variable", name="entryNames"), ["pond"])
        self.assertEqual(drive.value("variable", name="digestFields")[0].strip(), "Larkmoor")
        self.assertEqual(drive.value("variable", name="spillwayName"), ["", "", ""])
        self.assertIn(b'"pond"\r\n', text_of(self.at("dam/SUMMARY.IDE")))

    def test_build_and_show_the_run_in_the_table_at_once(self):
        drive = self.open(self.control("pond.KSC"))
        cells = lambda: drive.value("cells", screen="frmSummaryTable", control="metaSum")
        drive.click("frmKestra", "mnuBuildFile", "No")
        self.assertIn("frmSummaryTable", drive.state("visible"))
        self.assertEqual(cells(), [["Name", "pond"], ["Type", "Single Instance"], ["Input", ""]])
        self.control("pond.KSC", CONTROL.replace("Dam", "Pond"))
        drive.value("call", name="frmSummaryTable.BuildTable", args=[])
        self.assertEqual(cells()[2], ["Input", "input changed since this run"])
        drive.value("call", name="frmOutputGraph.OpenFile", args=[self.at("dam/pond.KSC")])
        self.assertTrue(self.build(drive))
        self.assertEqual(cells()[2], ["Input", ""])
        self.assertEqual(drive.value("variable", name="textFileToOpen"), self.at("dam/pond.OUT"))
        drive.click("frmSummaryTable", "cmdView(1)")
        self.assertEqual(drive.value("cells", screen="frmAuxSummaryTable", control="metaSum")[0], ["Name", "pond1_0"])

    def test_build_without_a_file_that_the_user_names(self):
        drive = self.drive(*self.words())
        drive.open(self.at("dam"))
        path = self.control("pond.KSC")
        answer = drive.ask("call", name="BuildMyFiles", args=[True])
        self.assertEqual((answer["value"], [box["text"] for box in answer["boxes"]]),
                         (False, ["No file is opened or created, choose a file to build?"]))
        answer = drive.ask("call", name="BuildMyFiles", args=[True], answers=["Yes", {"file": path}])
        self.assertTrue(answer["value"])
        self.assertEqual(answer["dialogs"],
                         [{"kind": "open", "title": "Build File", "default": "", "filterIndex": 2,
                           "filter": "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC", "answer": {"file": path}}])

    def test_build_from_the_window_and_rebuild_all(self):
        for name in ("a.KSC", "b.KSC", "c.KSC"):
            path = self.control(name)
        write(self.at("dam/b"), b"a file where the results belong")
        drive = self.open(path)
        drive.click("frmKestra", "mnuBuildFile", "No")
        self.assertEqual(self.names_in("dam/c")[0], "c1_0.DG1")
        answer = drive.click("frmKestra", "mnuRebuildAll")
        self.assertEqual(answer["boxes"], [warning("Rebuild All", "These files could not be rebuilt:\r\n\r\nb.KSC: " +
                                                   self.at("dam/b") + ": File exists")])
        self.assertTrue(os.path.exists(self.at("dam/a/a1_0.DIS")))
        self.assertEqual(drive.value("variable", name="entryNames"), ["c", "a"])

    def test_see_only_their_own_answers_while_programs_print(self):
        self.solver("KestraSim.exe", DAM + "echo to error >&2\n")
        drive = self.open(self.control("pond.KSC"))
        self.assertTrue(self.build(drive))
        self.assertEqual(drive.end()[:2], ("", ""))


class Ends(Runs):
    """Of the program while a solver runs that never ends, and has started another program."""

    def setUp(self):
        super().setUp()
        self.solver("KestraSim.exe", "sleep 600 &\necho $$ $! >pids.new\nmv pids.new pids\nsleep 600\n")

    def wait_for(self, holds):
        end = time.monotonic() + PATIENCE
        while not holds():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.01)

    def is_running(self, pid):
        try:
            return text_of(f"/proc/{pid}/stat").rpartition(b") ")[2][:1] not in (b"Z", b"X")
        except (FileNotFoundError, ProcessLookupError):
            return False

    def test_leave_no_solver_behind(self):
        path = self.control("pond.KSC")
        for number in (signal.SIGKILL, signal.SIGINT, signal.SIGTERM):
            with self.subTest(signal=number):
                process = self.start(self.words("build", path), stderr=subprocess.DEVNULL)
                self.wait_for(lambda: os.path.exists(self.at("dam/pids")))
                process.send_signal(number)
                process.wait(PATIENCE)
                for pid in text_of(self.at("dam/pids")).split():
                    self.wait_for(lambda: not self.is_running(pid.decode()))
                os.remove(self.at("dam/pids"))


if __name__ == "__main__":
    unittest.main()
