"""The work of hydrograph_bench in Python with numpy: reads names of work, a line each, and answers each with the seconds
of processor time that one turn of it took, or with "numpy is not installed".

paste_rows     5,000 tab-delimited lines to rows of texts
read_loadtxt   the same lines to two arrays by numpy.loadtxt
read_split     the same by the loop over str.split that is faster
resample       to a constant step by numpy.interp
convert_twice  to a constant step, to texts of at most ten characters, and these back to times and discharges
undo           200 states of two columns of texts kept as copies, and taken back
"""

import sys
import time
from io import StringIO

try:
    import numpy as np
except ImportError:
    np = None

POINTS = 5000
STEP = 0.05


def tab_text():
    lines = []
    for i in range(POINTS):
        lines.append(f"{i * STEP + (i % 7) * 0.001:.10g}\t{i * 7919 % 100000 / 100:.10g}\r\n")
    return "".join(lines)


def paste_rows(text):
    return [line.split("\t") for line in text.splitlines()]


def read_loadtxt(text):
    return np.loadtxt(StringIO(text), delimiter="\t", unpack=True)


def read_split(text):
    rows = paste_rows(text)
    return np.array([float(r[0]) for r in rows]), np.array([float(r[1]) for r in rows])


def resample(times, flows):
    count = int((times[-1] - times[0]) / STEP + 0.51) + 1
    return np.maximum(np.interp(times[0] + np.arange(count) * STEP, times, flows), 0.0)


def to_texts(flows):
    return [(f"{i * STEP:.15g}"[:10], f"{q:.15g}"[:10]) for i, q in enumerate(flows)]


def convert_twice(times, flows):
    even = to_texts(resample(times, flows))
    return [(f"{i * STEP:.15g}", flow) for i, (_, flow) in enumerate(even)]


def undo(texts):
    table = list(texts)
    history = []
    for _ in range(200):
        history.append(table)
        table = list(texts)
    while history:
        table = history.pop()
    return table


def works():
    text = tab_text()
    times, flows = read_split(text)
    texts = to_texts(resample(times, flows))
    return {
        "paste_rows": lambda: paste_rows(text),
        "read_loadtxt": lambda: read_loadtxt(text),
        "read_split": lambda: read_split(text),
        "resample": lambda: resample(times, flows),
        "convert_twice": lambda: convert_twice(times, flows),
        "undo": lambda: undo(texts),
    }


def main():
    known = works() if np else {}
    for line in sys.stdin:
        if np:
            work = known[line.strip()]
            begin = time.process_time()
            work()
            print(f"{time.process_time() - begin:.9f}", flush=True)
        else:
            print("numpy is not installed", flush=True)


if __name__ == "__main__":
    main()
