#!/usr/bin/env python3
"""vrk.calculate against its peers on the same arrays, in one run: the formula
`if i1 > 0 then i1 * 2 + i2 else 0` over two 4096 x 4096 float32 arrays with a few NaN
cells, in vrk (one thread, then every processor), numpy (one thread) and numexpr
(one thread, then every processor; skipped when it is not importable). Prints one line
per run, "<name><TAB><cells per second>", the best of five repetitions, then the
ratios of vrk to the peers. vrk's figures include all that a caller of vrk.calculate
waits for: taking both arrays as maps (in place, as they are C-contiguous float32) and
handing the result back as an array.

    PYTHONPATH=build/python /usr/bin/python3 bench/python_calculate.py
"""

import os
import sys

import numpy as np

import vrk
from map_peers import best_rate, make_arrays

FORMULA = "if i1 > 0 then i1 * 2 + i2 else 0"


def main():
    a, b = make_arrays(np)
    processors = os.cpu_count() or 1
    rates = {}
    rates["vrk, 1 thread"] = best_rate(lambda: vrk.calculate(FORMULA, a, b, processors=1))
    rates["vrk, all processors"] = best_rate(
        lambda: vrk.calculate(FORMULA, a, b, processors=processors))
    with np.errstate(invalid="ignore"):
        rates["numpy, 1 thread"] = best_rate(lambda: np.where(a > 0, a * 2 + b, 0))
    try:
        import numexpr
    except ImportError:
        numexpr = None
        print("note: numexpr is not installed (Debian: python3-numexpr); its runs are skipped.")
    if numexpr is not None:
        for label, threads in (("1 thread", 1), ("all processors", processors)):
            numexpr.set_num_threads(threads)
            rates["numexpr, " + label] = best_rate(
                lambda: numexpr.evaluate("where(a > 0, a * 2 + b, 0)", local_dict={"a": a, "b": b}))
    for name, rate in rates.items():
        print("%s\t%.0f" % (name, rate))
    for peer in ("numpy, 1 thread", "numexpr, 1 thread"):
        if peer in rates:
            print("vrk, 1 thread / %s\t%.2f" % (peer, rates["vrk, 1 thread"] / rates[peer]))
    if "numexpr, all processors" in rates:
        print("vrk, all processors / numexpr, all processors\t%.2f"
              % (rates["vrk, all processors"] / rates["numexpr, all processors"]))
    return 0


if __name__ == "__main__":
    sys.exit(main())
