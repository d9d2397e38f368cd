"""ParseDamOutput beside what one would use instead, in one run: python3 bench/digest_peer.py [KESTRA]

Writes a dam's output with a routing table of 17,000 and of 1,000,000 rows and takes the peaks of five of its columns,
of each way the best of several turns, the ways in alternation. All but `wc -l`, the floor, have to find the same peaks.

kestra        the operation in a running `kestra drive`: reads the file, counts errors and warnings, writes the digest
                  to the disk and waits until it is there
awk           substr and a maximum, in a process of its own
wc -l         counts the lines, in a process of its own
python        slices of the lines, float
pandas        read_fwf, where pandas is installed
"""

import json
import os
import subprocess
import sys
import tempfile
import time

try:
    import pandas
except ImportError:
    pandas = None

COLUMNS = [(20, 30), (30, 40), (40, 50), (50, 60), (60, 70)]
HEAD = ["Solver"] + [f" ASSURFACE {n}\n ENDTABLE" for n in (1, 2, 3)] + ["     Hydrograph Routing", "a", "b", "c",
                                                                          "      (hr)", "  ----"]
AWK = """/Hydrograph Routing/ { heading = 6 } heading > 0 { heading--; table = !heading; next }
table && NF == 0 { exit } table { for (i = 0; i < 5; i++) { v = substr($0, 21 + i * 10, 10) + 0; if (v > p[i]) p[i] = v } }
END { for (i = 0; i < 5; i++) printf "%.2f ", p[i] }"""


def write_output(path, rows):
    with open(path, "w", encoding="ascii", newline="") as file:
        file.write("".join(line.replace("\n", "\r\n") + "\r\n" for line in HEAD))
        for row in range(rows):
            file.write("".join(f"{(row * 7919 + field * 977) % 100000 / 100:10.2f}" for field in range(11)) + "\r\n")
        file.write("\r\nFinal breach width was   41.50 ft\r\n")


def awk(path, _):
    return [float(peak) for peak in subprocess.run(["awk", AWK, path], capture_output=True, check=True).stdout.split()]


def count_lines(path, _):
    subprocess.run(["wc", "-l", path], capture_output=True, check=True)


def python(path, _):
    peaks = [0.0] * len(COLUMNS)
    with open(path, encoding="ascii") as file:
        for line in file:
            if line.startswith("  ----"):
                break
        for line in file:
            if not line.strip():
                break
            for i, (first, end) in enumerate(COLUMNS):
                value = float(line[first:end])
                if value > peaks[i]:
                    peaks[i] = value
    return peaks


def read_fwf(path, rows):
    table = pandas.read_fwf(path, colspecs=COLUMNS, header=None, skiprows=sum(h.count("\n") + 1 for h in HEAD),
                            nrows=rows)
    return [float(peak) for peak in table.max()]


class Kestra:
    def __init__(self, program, directory):
        self.process = subprocess.Popen([program, "drive", "--settings", directory + "/settings.ini"],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ask(self, request):
        self.process.stdin.write(json.dumps(request).encode() + b"\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        assert answer["ok"], answer
        return answer["value"]

    def __call__(self, path, _):
        self.ask({"do": "call", "name": "ParseDamOutput", "args": [path]})

    def peaks(self):
        fields = self.ask({"do": "variable", "name": "digestFields"})
        return [float(text) for text in (fields[12], *fields[13:16], fields[16])]


def compare(kestra, path, rows, turns):
    ways = {"kestra": kestra, "awk": awk, "wc -l": count_lines, "python": python}
    if pandas is not None:
        ways["pandas read_fwf"] = read_fwf
    best = {}
    for _ in range(turns):
        for name, way in ways.items():
            begin = time.perf_counter()
            peaks = way(path, rows)
            taken = time.perf_counter() - begin
            best[name] = min(best.get(name, taken), taken)
            peaks = kestra.peaks() if name == "kestra" else peaks
            if peaks is not None:
                assert [round(peak, 1) for peak in peaks] == [round(peak, 1) for peak in python(path, rows)], name
    print(f"{rows} rows, {os.path.getsize(path) / 1e6:.1f} MB")
    for name, taken in best.items():
        print(f"  {name:16} {taken * 1000:10.1f} ms {taken / best['kestra']:8.1f}")
    if pandas is None:
        print("  pandas is not installed")


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    program = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "build", "release", "bin", "kestra")
    with tempfile.TemporaryDirectory() as directory:
        kestra = Kestra(program, directory)
        for rows, turns in ((17000, 11), (1000000, 3)):
            path = os.path.join(directory, "run.OUT")
            write_output(path, rows)
            compare(kestra, path, rows, turns)
        with open(f"/proc/{kestra.process.pid}/status", encoding="ascii") as status:
            print("kestra:", next(line.strip() for line in status if line.startswith("VmHWM")))
        kestra.process.stdin.close()
        kestra.process.wait()


if __name__ == "__main__":
    main()
