"""The list of recent projects from run to run, whatever becomes of the settings file."""

import os
import resource
import subprocess
import unittest

from program import DONE, Flow, as_nobody, done, text_of, warning, write


class RecentList(Flow):
    def recent(self):
        """The list that a new run shows; the run is stopped without an end, so that it saves nothing."""
        drive = self.drive()
        shown = drive.state("recentProjects")
        drive.close()
        return shown

    def put(self, *lines):
        write(self.settings, "\r\n".join(lines).encode() + b"\r\n")

    def not_saved(self, why):
        return f"Kestra B: The list of recent projects could not be saved. {self.settings}: {why}\n"

    def test_lasts_over_restarts(self):
        for number in range(3):
            drive = self.drive()
            drive.new(self.base, f"p{number}")
            drive.ask("quit")
            self.assertEqual(drive.end(), ("", "", 0))
        self.assertEqual(self.recent(), [self.at(f"p{number}") for number in (2, 1, 0)])

    def test_is_empty_where_the_count_is_none_or_out_of_range(self):
        for count in ("0", "11", "-1", "ten", "", "1.5", "99999999999999999999"):
            self.put("[ProjectHistory]", f"n={count}", "1Project=/a", "2Project=/b")
            self.assertEqual(self.recent(), [], count)

    def test_takes_counts_from_1_to_10_and_keeps_the_order(self):
        for count in (1, 2, 10):
            self.put("[ProjectHistory]", f"n={count}", *(f"{k}Project=/p{k}" for k in range(1, 12)))
            self.assertEqual(self.recent(), [f"/p{k}" for k in range(1, count + 1)])

    def test_reads_sections_and_keys_in_any_case(self):
        self.put("[projecthistory]", "N = 2", "1PROJECT=/a", "2project = \"/b\\n\"")
        self.assertEqual(self.recent(), ["/a", "/b\n"])

    def test_passes_over_entries_that_are_missing_or_stand_twice(self):
        self.put("[ProjectHistory]", "n=4", "1Project=/a", "3Project=/a", "4Project=/c")
        self.assertEqual(self.recent(), ["/a", "/c"])

    def test_is_empty_without_a_settings_file(self):
        self.assertEqual(self.recent(), [])
        self.assertFalse(os.path.exists(self.settings))

    def test_reads_what_there_is_of_a_half_written_file(self):
        self.put("[ProjectHistory]", "n=2", "1Project=/a", "2Proj")
        self.assertEqual(self.recent(), ["/a"])
        write(self.settings, b"\0\0\0\xff\xfe[ProjectHis")
        self.assertEqual(self.recent(), [])

    def test_leaves_other_settings_as_they_stand(self):
        before = "; mine\r\n[Window]\r\nLeft = 1\r\n"
        write(self.settings, before.encode() + b"[ProjectHistory]\r\nn=0\r\n[Other]\r\na=b\r\n")
        self.make_project("dam")
        self.assertEqual(text_of(self.settings).decode(),
                         f"{before}[ProjectHistory]\r\nn=1\r\n1Project={self.at('dam')}\r\n[Other]\r\na=b\r\n")

    def test_tells_when_a_directory_stands_where_the_settings_should(self):
        os.makedirs(self.settings)
        drive = self.drive()
        self.assertEqual(drive.state("recentProjects"), [])
        self.assertEqual(drive.new(self.base, "dam"), DONE)
        self.assertEqual(drive.end(), ("", self.not_saved("Is a directory"), 0))

    def test_tells_in_the_answer_that_ended_the_program(self):
        os.makedirs(self.settings)
        drive = self.drive()
        text = f"The list of recent projects could not be saved. {self.settings}: Is a directory"
        self.assertEqual(drive.click("frmTopScreen", "mnuExit"), done(boxes=[warning("Kestra B", text)]))
        self.assertEqual(drive.end(), ("", "", 0))

    def test_tells_when_the_settings_may_not_be_read_or_written(self):
        self.put("[ProjectHistory]", "n=1", "1Project=/a")
        before = text_of(self.settings)
        self.let_nobody_in()
        for mode, shown in ((0o000, []), (0o444, ["/a"])):
            os.chmod(self.settings, mode)
            drive = self.drive(before=as_nobody)
            self.assertEqual(drive.state("recentProjects"), shown)
            drive.ask("call", name="UpdateRecentProjects", args=["/b"])
            out, err, code = drive.end()
            self.assertEqual((out, code), ("", 0))
            self.assertIn(err, (self.not_saved("Permission denied"), self.not_saved("The file is read-only")))
            os.chmod(self.settings, 0o644)
            self.assertEqual(text_of(self.settings), before)

    def test_keeps_the_old_file_whole_on_a_full_disk(self):
        self.put("[ProjectHistory]", "n=1", "1Project=/a", "[Other]", "text=" + "x" * 300)
        before = text_of(self.settings)

        def few_bytes():
            resource.setrlimit(resource.RLIMIT_FSIZE, (200, resource.RLIM_INFINITY))

        drive = self.drive(before=few_bytes)
        drive.ask("call", name="UpdateRecentProjects", args=["/b"])
        out, err, code = drive.end()
        self.assertEqual((out, code), ("", 0))
        self.assertTrue(err.startswith("Kestra B: The list of recent projects could not be saved. "), err)
        self.assertEqual(text_of(self.settings), before)
        self.assertEqual(self.names_in("config/kestra-b"), ["settings.ini"])

    def test_of_two_programs_is_that_of_the_one_that_ends_last(self):
        first = self.drive()
        second = self.drive()
        first.new(self.base, "a")
        second.new(self.base, "b")
        self.assertEqual(first.end(), ("", "", 0))
        self.assertEqual(self.recent(), [self.at("a")])
        self.assertEqual(second.end(), ("", "", 0))
        self.assertEqual(self.recent(), [self.at("b")])

    def test_goes_to_the_home_directory_where_no_other_is_named(self):
        os.makedirs(self.at("home"))
        for config in ({}, {"XDG_CONFIG_HOME": ""}, {"XDG_CONFIG_HOME": "relative"}):
            made = subprocess.run([self.program, "new", self.at(f"dam{len(self.names_in())}")], cwd=self.base,
                                  env={"HOME": self.at("home"), **config}, capture_output=True)
            self.assertEqual((made.stderr, made.returncode), (b"", 0))
        self.assertEqual(self.names_in("home/.config/kestra-b"), ["settings.ini"])
        self.assertIn(b"n=3\r\n", text_of(self.at("home/.config/kestra-b/settings.ini")))


if __name__ == "__main__":
    unittest.main()
