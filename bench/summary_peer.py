"""The summary tables of 10,000 instances beside what one would use instead, in one run:
python3 bench/summary_peer.py [KESTRA]

Writes the digests of 10,000 instances of one run and finds those of highest, lowest and nearest-to-mean measure, of
each way the best of several turns, the ways in alternation, warm and cold: for a cold turn the system is asked to
forget the contents of all files first. All ways have to find the same three.

kestra          LoadSummaryStore and ComputeTableValues in a running `kestra drive`: all 65 values of each entry
kestra summary  a process of its own: opens the project, prints the table
python          reads the files line by line, max, min, and min by the distance to the mean
pandas          the same values in a Series: idxmax, idxmin, where pandas is installed
"""

import json
import os
import resource
import subprocess
import sys
import tempfile
import time

try:
    import pandas
except ImportError:
    pandas = None

INSTANCES = 10000
MEASURE = 29
TURNS = 5


def write_project(project):
    os.makedirs(os.path.join(project, "dam"))
    names = [f"dam1_{k}" for k in range(INSTANCES)]
    with open(os.path.join(project, "SUMMARY.IDE"), "w", encoding="ascii", newline="\r\n") as file:
        file.write("1\n12\n1\n2\n" + "".join(f'"{name}"\n' for name in names))
    with open(os.path.join(project, "owner"), "w", encoding="ascii"):
        pass
    with open(os.path.join(project, "dam.DIS"), "w", encoding="ascii", newline="\r\n") as file:
        file.write("Larkmoor\n" + "N/A\n" * 39)
    for k, name in enumerate(names):
        measure = "N/A" if k % 17 == 0 else f"{(k * 7919) % 100003 / 1000:.3f}"
        with open(os.path.join(project, "dam", name + ".DIS"), "w", encoding="ascii", newline="\r\n") as file:
            file.write(f"EAST\n{k}.5\n" + "12.5\n" * 27 + measure + "\n" + "0\n" * 5)
    os.sync()
    return [os.path.join(project, "dam", name + ".DIS") for name in names]


def forget(paths):
    for path in paths:
        file = os.open(path, os.O_RDONLY)
        os.posix_fadvise(file, 0, 0, os.POSIX_FADV_DONTNEED)
        os.close(file)


def measures(paths):
    values = []
    for path in paths:
        with open(path, encoding="ascii") as file:
            text = file.read().splitlines()[MEASURE]
        values.append(None if text in ("N/A", "") else float(text))
    return values


def python(paths):
    values = measures(paths)
    known = [(value, -i) for i, value in enumerate(values) if value is not None]
    as_zero = [value or 0.0 for value in values]
    mean = sum(as_zero) / len(values)
    lowest = min((value, -i) for value, i in known)
    nearest = min((abs(value - mean), i) for i, value in enumerate(as_zero))
    return [f"dam1_{i}" for i in (-max(known)[1], lowest[1], nearest[1])]


def with_pandas(paths):
    values = pandas.Series(measures(paths), dtype="float64")
    as_zero = values.fillna(0.0)
    return [f"dam1_{i}" for i in (values.idxmax(), values.idxmin(), (as_zero - as_zero.mean()).abs().idxmin())]


class Kestra:
    def __init__(self, program, project, settings):
        os.environ["XDG_CONFIG_HOME"] = settings
        self.process = subprocess.Popen([program, "drive"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, cwd=project)
        self.ask({"do": "set", "screen": "frmOpenProject", "control": "dirList", "value": project})
        self.ask({"do": "click", "screen": "frmOpenProject", "control": "cmdOK"})

    def ask(self, request):
        self.process.stdin.write(json.dumps(request).encode() + b"\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        assert answer["ok"], answer
        return answer["value"]

    def __call__(self, _):
        self.ask({"do": "call", "name": "LoadSummaryStore", "args": []})
        self.ask({"do": "call", "name": "ComputeTableValues", "args": []})
        return self.ask({"do": "variable", "name": "shownNames"})

    def memory(self):
        with open(f"/proc/{self.process.pid}/status", encoding="ascii") as status:
            return next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))


def summary_of(program, project):
    def run(_):
        done = subprocess.run([program, "summary", "--project", project, "--format", "csv"], capture_output=True,
                              check=True)
        return [line.split(",")[0] for line in done.stdout.decode().splitlines()[1:]]
    return run


def measure(ways, paths, cold):
    best = {}
    wanted = python(paths)
    for _ in range(TURNS):
        for name, way in ways.items():
            if cold:
                forget(paths)
            begin = time.perf_counter()
            found = way(paths)
            taken = time.perf_counter() - begin
            best[name] = min(best.get(name, taken), taken)
            assert found == wanted, (name, found, wanted)
    print(f"{INSTANCES} instances, {'cold' if cold else 'warm'}")
    for name, taken in best.items():
        print(f"  {name:16} {taken * 1000:10.1f} ms {taken / best['kestra']:8.1f}")


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    program = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else os.path.join(here, "../build/release/bin/kestra")
    with tempfile.TemporaryDirectory() as directory:
        project = os.path.join(directory, "p")
        paths = write_project(project)
        kestra = Kestra(program, project, directory)
        ways = {"kestra": kestra, "kestra summary": summary_of(program, project), "python": python}
        if pandas is not None:
            ways["pandas"] = with_pandas
        for cold in (False, True):
            measure(ways, paths, cold)
        print(f"kestra: {kestra.memory() / 1024:.0f} MB, python: "
              f"{resource.getrusage(resource.RUSAGE_SELF).ru_maxrss / 1024:.0f} MB"
              + ("" if pandas is not None else "; pandas is not installed"))
        kestra.process.stdin.close()
        kestra.process.wait()


if __name__ == "__main__":
    main()
