"""A long run of requests: every one answered, and no memory that grows with their number.

KESTRA_LONG_RUN sets the number of requests. A program with a sanitizer is not held to the memory: what it frees is kept
back for a while.
"""

import itertools
import json
import os
import threading
import unittest

from program import SANITIZED, Flow

REQUESTS = int(os.environ.get("KESTRA_LONG_RUN", 10_000 if SANITIZED else 1_000_000))
SETTLED = REQUESTS // 10  # by then all that is made once has been made
MOST_GROWTH = 3 << 20  # bytes


def resident(process):
    """Bytes of memory that the process holds."""
    with open(f"/proc/{process.pid}/statm") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


class LongRun(Flow):
    def requests(self):
        screen = {"screen": "frmNewProject", "control": "txtEnterName"}
        kinds = (
            {"do": "get", **screen},
            {"do": "set", **screen, "value": "näme \" 1.5"},
            {"do": "type", **screen, "keys": ["abc\b", {"key": "End"}]},
            {"do": "call", "name": "PadField", "args": ["text", 10]},
            {"do": "state"},
            {"do": "click", "screen": "frmTopScreen", "control": "mnuOpenProject"},
            {"do": "set", "screen": "frmOpenProject", "control": "dirList", "value": self.base},
            {"do": "click", "screen": "frmOpenProject", "control": "cmdOK", "answers": ["Yes"]},
            {"do": "click", "screen": "frmOpenProject", "control": "cmdCancel"},
            {"do": "close", "screen": "frmTopScreen"},
            {"do": "call", "name": "UpdateRecentProjects", "args": ["/p"]},
            {"do": "variable", "name": "ColorList"},
            {"do": "call", "name": "nothing"},
            {"do": "clipboard", "text": "x" * 1000},
        )
        for number, request in enumerate(itertools.islice(itertools.cycle(kinds), REQUESTS), 1):
            yield (json.dumps({"id": number, **request}) + "\n").encode()

    def test_answers_every_request_in_order_and_holds_no_more_memory_than_at_its_beginning(self):
        drive = self.drive()

        def write():
            for request in self.requests():
                drive.process.stdin.write(request)
            drive.process.stdin.flush()

        writer = threading.Thread(target=write)
        writer.start()
        for number in range(1, REQUESTS + 1):
            answer = drive.process.stdout.readline()
            self.assertTrue(answer.startswith(b'{"id":%d,"ok":' % number) and answer.endswith(b"}\n"), answer)
            if number == SETTLED:
                settled = resident(drive.process)
        writer.join()
        growth = resident(drive.process) - settled
        self.assertEqual(drive.end(), ("", "", 0))
        print(f"{REQUESTS} requests; {settled >> 10} KiB after {SETTLED}, {growth / 1024:+.0f} KiB since")
        if not SANITIZED:
            self.assertLess(growth, MOST_GROWTH)


if __name__ == "__main__":
    unittest.main()
