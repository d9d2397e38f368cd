"""Seven series as a user would plot them: graph_peer.py DATA OUT [REPEATS]; prints the median milliseconds of a plot.

The import of the library and the reading of the data are not counted.
"""

import statistics
import sys
import time

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt  # noqa: E402
import numpy  # noqa: E402

data = numpy.loadtxt(sys.argv[1])


def plot():
    figure, axes = plt.subplots(figsize=(12, 8), dpi=100)
    for column in range(1, data.shape[1]):
        axes.plot(data[:, 0], data[:, column], label=f"s{column}")
    axes.legend()
    figure.savefig(sys.argv[2])
    plt.close(figure)


plot()
times = []
for _ in range(int(sys.argv[3]) if len(sys.argv) > 3 else 5):
    start = time.perf_counter()
    plot()
    times.append(1000 * (time.perf_counter() - start))
print(f"{statistics.median(times):.1f} ms")
