"""examples/python/town_growth.py runs the town model over its three thresholds."""

import os
import subprocess
import sys

from conftest import SOURCE


def test_the_town_example_prints_the_built_area_of_every_year(tmp_path):
    done = subprocess.run([sys.executable, str(SOURCE / "examples" / "python" / "town_growth.py"),
                           str(tmp_path / "town.png")], capture_output=True, text=True,
                          env=os.environ, cwd=tmp_path, timeout=300)
    assert done.returncode == 0, done.stderr
    lines = done.stdout.splitlines()
    assert lines[0].split() == ["year", "0.8", "1.5", "2.0"]
    rows = [[float(word) for word in line.split()] for line in lines[1:11]]
    assert [row[0] for row in rows] == list(range(1, 11))
    for column in (1, 2, 3):
        areas = [row[column] for row in rows]
        assert areas == sorted(areas) and areas[0] > 0
    # A lower threshold lets the town grow faster.
    assert rows[-1][1] > rows[-1][2] > rows[-1][3]
    assert any(line.startswith("wrote") or "matplotlib" in line for line in lines[11:])
