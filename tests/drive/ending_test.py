"""How `kestra drive` ends, and what it has said by then."""

import os
import unittest

from program import DONE, Flow, done, question, text_of

SURE = "Do you really want to exit from this application?"


class Ending(Flow):
    def test_at_the_end_of_the_input(self):
        self.assertEqual(self.run_kestra("drive"), ("", "", 0))
        self.assertEqual(self.run_kestra("drive", stdin=b"\n \r\n\t\n"), ("", "", 0))
        self.assertEqual(self.run_kestra("drive", stdin=b'{"do":"clipboard","text":"last"}'),
                         ('{"ok":true,"value":"last"}\n', "", 0))

    def test_by_quit_which_asks_nothing(self):
        drive = self.drive()
        drive.new(self.base, "dam")
        self.assertEqual(drive.ask("quit"), DONE)
        self.assertEqual(drive.end(), ("", "", 0))
        self.assertTrue(os.path.exists(self.settings))

    def test_and_leaves_the_lines_behind_it_unanswered(self):
        for last in ('{"do":"quit"}', '{"do":"click","screen":"frmTopScreen","control":"mnuExit"}',
                     '{"do":"close","screen":"frmTopScreen","answers":["Yes"]}'):
            out, err, code = self.run_kestra("drive", stdin=f'{last}\n{{"do":"state"}}\n'.encode())
            self.assertEqual((out.count("\n"), err, code), (1, "", 0), last)

    def test_by_the_exit_command_without_a_question_when_nothing_was_edited(self):
        drive = self.drive()
        drive.new(self.base, "dam")
        self.assertEqual(drive.click("frmTopScreen", "mnuExit"), DONE)
        self.assertEqual(drive.end(), ("", "", 0))
        self.assertEqual(text_of(self.settings),
                         f"[ProjectHistory]\r\nn=1\r\n1Project={self.at('dam')}\r\n".encode())

    def test_by_the_frame_after_the_question_under_the_screens_title(self):
        drive = self.drive()
        self.assertEqual(drive.ask("close", screen="frmTopScreen", answers=["No"]),
                         done(boxes=[question("Kestra B", SURE, "No")]))
        self.assertEqual(drive.ask("close", screen="frmTopScreen"),
                         done(boxes=[question("Kestra B", SURE, "No")], unanswered=1))
        drive.new(self.base, "dam")
        title = f"Kestra B [ Project  {self.at('dam')}]"
        self.assertEqual(drive.ask("close", screen="frmTopScreen", answers=[{"cancel": True}]),
                         done(boxes=[question(title, SURE, "No")]))
        self.assertFalse(drive.state("bExiting"))
        self.assertEqual(drive.ask("close", screen="frmTopScreen", answers=["Yes"]),
                         done(boxes=[question(title, SURE, "Yes")]))
        self.assertEqual(drive.end(), ("", "", 0))

    def test_not_by_the_input_window_which_goes_back_to_the_top_screen(self):
        drive = self.drive()
        for leave in (lambda: drive.click("frmKestra", "mnuExit"), lambda: drive.ask("close", screen="frmKestra")):
            self.assertEqual(drive.new(self.base, f"dam{len(self.names_in())}"), DONE)
            self.assertEqual(leave(), DONE)
            state = drive.value("state")
            self.assertEqual((state["projectDir"], state["visible"], state["titles"]),
                             ("", ["frmTopScreen"], {"frmTopScreen": "Kestra B"}))
        self.assertEqual(drive.end(), ("", "", 0))

    def test_lets_go_of_the_project(self):
        dam = self.make_project("dam")
        for _ in range(2):
            drive = self.drive(os.path.join(dam, "a.KSC"))
            self.assertFalse(drive.value("variable", name="projectReadOnly"))
            drive.end()

    def test_answers_each_line_before_it_reads_the_next(self):
        drive = self.drive()
        for number in range(100):
            self.assertEqual(drive.line(f'{{"do":"clipboard","id":{number}}}'),
                             f'{{"id":{number},"ok":true,"value":""}}\n')

    def test_survives_whatever_stands_in_a_line(self):
        lines = [b"\xff\xfe", b"{", b"\0", b'{"do":"get"}', b"[" * 100000, b'"' + b"x" * 1000000, b'{"do":"x"}\r']
        out, err, code = self.run_kestra("drive", stdin=b"\n".join(lines))
        self.assertEqual(out, "".join(f'{{"ok":false,"error":"{why}"}}\n' for why in (
            "malformed JSON at column 1", "malformed JSON at column 2", "malformed JSON at column 1",
            'field \\"screen\\" is missing', "the request is nested too deeply", "malformed JSON at column 1000002",
            'no verb named \\"x\\"')))
        self.assertEqual((err, code), ("", 0))


if __name__ == "__main__":
    unittest.main()
