#!/usr/bin/env python3
"""Runs the town-growth model of examples/maps over three thresholds of suitability
times built neighbours, and plots the built area of each year (matplotlib), or prints
it where matplotlib is missing. Each run works in a folder of its own, so the example's
folder stays as it is.

    PYTHONPATH=build/python python3 examples/python/town_growth.py [picture.png]
"""

import pathlib
import shutil
import sys
import tempfile

import numpy as np

import vrk

MODEL = pathlib.Path(__file__).resolve().parents[1] / "maps"
FILES = ["model.vrk", "landuse.asc", "town.asc", "suitability.csv"]
THRESHOLDS = [0.8, 1.5, 2.0]
YEARS = 10


def built_area(threshold):
    """The built area, in hectares, at the end of each year of a run."""
    with tempfile.TemporaryDirectory() as folder:
        for name in FILES:
            shutil.copy(MODEL / name, folder)
        script = vrk.Script(str(pathlib.Path(folder) / "model.vrk"))
        script.set("threshold.value", threshold)
        script.set("years.lastIterationStep", YEARS)
        script.run(log_level=".warning")
        areas = []
        for year in range(1, YEARS + 1):
            state = vrk.load_map(str(pathlib.Path(folder) / f"state_{year:02d}.tif"))
            _, width, _, _, _, height = state.geotransform
            areas.append(float((state.to_array() == 1).sum()) * abs(width * height) / 10000)
        return areas


def plot(areas, picture):
    import matplotlib
    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
    figure, axes = plt.subplots(figsize=(6, 4))
    for threshold, area in areas.items():
        axes.plot(range(1, YEARS + 1), area, marker="o", label=f"threshold {threshold}")
    axes.set_xlabel("year")
    axes.set_ylabel("built area (ha)")
    axes.legend()
    figure.savefig(picture, dpi=100, bbox_inches="tight")
    print(f"wrote {picture}")


def main():
    areas = {threshold: built_area(threshold) for threshold in THRESHOLDS}
    print("year " + " ".join(f"{threshold:>8}" for threshold in THRESHOLDS))
    for year, row in enumerate(np.array(list(areas.values())).T, start=1):
        print(f"{year:4d} " + " ".join(f"{area:8.0f}" for area in row))
    picture = sys.argv[1] if len(sys.argv) > 1 else "town_growth.png"
    try:
        plot(areas, picture)
    except ImportError:
        print("matplotlib is not installed: no picture drawn.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
