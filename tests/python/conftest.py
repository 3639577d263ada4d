"""Shared fixtures of the Python module's tests. ctest runs them with the package of the
build on PYTHONPATH and the vrk binary in VRK_BINARY."""

import os
import pathlib
import shutil
import subprocess

import numpy as np
import pytest

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parents[1]


@pytest.fixture
def models():
    return HERE / "models"


@pytest.fixture
def vrk_binary():
    """Runs the command line; returns (status, stdout, stderr)."""
    binary = os.environ.get("VRK_BINARY")
    if not binary:
        pytest.skip("VRK_BINARY names no vrk binary")

    def run(*arguments, cwd=None):
        done = subprocess.run([binary, *map(str, arguments)], capture_output=True, text=True,
                              cwd=cwd, timeout=300)
        return done.returncode, done.stdout, done.stderr

    return run


@pytest.fixture
def town(tmp_path):
    """A copy of the town model of examples/maps and its inputs; returns its script."""
    for name in ["model.vrk", "landuse.asc", "town.asc", "suitability.csv"]:
        shutil.copy(SOURCE / "examples" / "maps" / name, tmp_path / name)
    return tmp_path / "model.vrk"


@pytest.fixture
def arrays():
    """Two float32 arrays of 300 x 257 cells in [-1, 1], a[5, 7] and b[9, 11] NaN."""
    generator = np.random.default_rng(7)
    a = generator.uniform(-1, 1, (300, 257)).astype(np.float32)
    b = generator.uniform(-1, 1, (300, 257)).astype(np.float32)
    a[5, 7] = b[9, 11] = np.nan
    return a, b
