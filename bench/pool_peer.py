"""The bare routing loop of pool_bench in Python, run by hand beside it: python3 bench/pool_peer.py

5,000 steps of one minute by storage indication, as an engineer writes it with numpy.interp and as a loop over lists.
"""

import timeit

import numpy as np

STEPS, ROWS, SECONDS = 5000, 64, 60.0
INFLOW = 120 * np.exp(-(((np.arange(STEPS) - 1500) / 500.0) ** 2))
HEAD = np.arange(ROWS) * 0.25
OUTFLOW = 12 * HEAD**1.5
INDICATION = 2 * 20000 * HEAD * (1 + 0.05 * HEAD) / SECONDS + OUTFLOW


def by_interp():
    x = peak = 0.0
    for i in range(1, STEPS):
        x += INFLOW[i - 1] + INFLOW[i]
        outflow = np.interp(x, INDICATION, OUTFLOW)
        x -= 2 * outflow
        peak = max(peak, outflow)
    return peak


def by_lists(inflow, indication, outflow):
    x = peak = 0.0
    k = 0
    for i in range(1, STEPS):
        x += inflow[i - 1] + inflow[i]
        while k < ROWS - 2 and x > indication[k + 1]:
            k += 1
        while k > 0 and x < indication[k]:
            k -= 1
        slope = (outflow[k + 1] - outflow[k]) / (indication[k + 1] - indication[k])
        o = outflow[k] + slope * (x - indication[k])
        x -= 2 * o
        peak = max(peak, o)
    return peak


def report(name, action, number):
    best = min(timeit.repeat(action, number=number, repeat=5)) / number
    print(f"{name:20} {best * 1000:8.3f} ms  peak {action():.4f} cfs")


if __name__ == "__main__":
    report("numpy.interp", by_interp, 5)
    LISTS = INFLOW.tolist(), INDICATION.tolist(), OUTFLOW.tolist()
    report("lists", lambda: by_lists(*LISTS), 20)
