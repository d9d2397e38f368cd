"""The work of hydrograph_bench in Python with numpy, run by hand beside it: python3 bench/hydrograph_peer.py

read_text     5,000 tab-delimited lines to two arrays (numpy.loadtxt, and the loop over str.split that is faster)
resample      to a constant step (numpy.interp)
to_texts      the times and discharges of a step as texts of at most ten characters
undo          200 states of two columns of texts kept as copies, and taken back
"""

import time
import timeit
from io import StringIO

import numpy as np

POINTS = 5000


def tab_text():
    lines = []
    for i in range(POINTS):
        lines.append(f"{i * 0.05 + (i % 7) * 0.001:.10g}\t{i * 7919 % 100000 / 100:.10g}\r\n")
    return "".join(lines)


def read_loadtxt(text):
    return np.loadtxt(StringIO(text), delimiter="\t", unpack=True)


def read_split(text):
    rows = [line.split("\t") for line in text.splitlines()]
    return np.array([float(r[0]) for r in rows]), np.array([float(r[1]) for r in rows])


def resample(times, flows, step):
    count = int((times[-1] - times[0]) / step + 0.51) + 1
    return np.maximum(np.interp(times[0] + np.arange(count) * step, times, flows), 0.0)


def to_texts(flows, step):
    return [(f"{i * step:.15g}"[:10], f"{q:.15g}"[:10]) for i, q in enumerate(flows)]


def undo(texts):
    table = list(texts)
    history = []
    for _ in range(200):
        history.append(table)
        table = list(texts)
    while history:
        table = history.pop()
    return table


def report(name, action, number):
    best = min(timeit.repeat(action, timer=time.process_time, number=number, repeat=5)) / number
    print(f"{name:22} {best * 1000:9.3f} ms")


def main():
    text = tab_text()
    times, flows = read_split(text)
    even = resample(times, flows, 0.05)
    texts = to_texts(even, 0.05)
    report("read_text loadtxt", lambda: read_loadtxt(text), 20)
    report("read_text split", lambda: read_split(text), 20)
    report("resample", lambda: resample(times, flows, 0.05), 200)
    report("to_texts", lambda: to_texts(even, 0.05), 20)
    report("resample + to_texts", lambda: to_texts(resample(times, flows, 0.05), 0.05), 20)
    report("undo, 200 steps", lambda: undo(texts), 5)


if __name__ == "__main__":
    main()
