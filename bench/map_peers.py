#!/usr/bin/env python3
"""The peers of MapBenchmark: where(a > 0, a * 2 + b, 0) over two 4096 x 4096 Float32
arrays with a few NaN cells, in numpy (one thread) and in numexpr (one thread, then all
processors). Prints one line per run, "<name><TAB><cells per second>", the best of five
repetitions, and a note instead where a module is missing."""

import os
import sys
import time

SIDE = 4096
REPEATS = 5


def best_rate(run):
    best = float("inf")
    for _ in range(REPEATS):
        start = time.perf_counter()
        run()
        best = min(best, time.perf_counter() - start)
    return SIDE * SIDE / best


def make_arrays(np):
    """The two arrays that every calculation of the benchmarks reads."""
    generator = np.random.default_rng(1)
    a = generator.uniform(-1, 1, (SIDE, SIDE)).astype(np.float32)
    b = generator.uniform(-1, 1, (SIDE, SIDE)).astype(np.float32)
    a.flat[::100003] = np.nan
    b.flat[::100019] = np.nan
    return a, b


def main():
    try:
        import numpy as np
    except ImportError:
        print("note: numpy is not installed; the peers' runs are skipped.")
        return 0
    a, b = make_arrays(np)
    with np.errstate(invalid="ignore"):
        print("numpy, 1 thread\t%.0f" % best_rate(lambda: np.where(a > 0, a * 2 + b, 0)))
    try:
        import numexpr
    except ImportError:
        print("note: numexpr is not installed; its runs are skipped.")
        return 0
    formula = "where(a > 0, a * 2 + b, 0)"
    for label, threads in (("1 thread", 1), ("all processors", os.cpu_count() or 1)):
        numexpr.set_num_threads(threads)
        rate = best_rate(lambda: numexpr.evaluate(formula, local_dict={"a": a, "b": b}))
        print("numexpr, %s\t%.0f" % (label, rate))
    return 0


if __name__ == "__main__":
    sys.exit(main())
