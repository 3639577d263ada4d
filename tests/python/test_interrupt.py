"""Ctrl-C while a script or a calculation runs from Python: the work stops, as SIGINT
stops `vrk run`, and KeyboardInterrupt is raised once it has."""

import os
import signal
import subprocess
import sys
import textwrap

import pytest

CHILD = textwrap.dedent("""
    import sys
    import numpy as np
    import vrk

    def started(level, line):
        print(line, flush=True)

    script = vrk.Script(sys.argv[1])
    try:
        script.run(scheduler=sys.argv[2], log=started)
    except KeyboardInterrupt:
        print("interrupted", flush=True)
    print("after:", vrk.calculate("i1 + 1", np.zeros((2, 2))).sum(), flush=True)
""")


@pytest.mark.parametrize("scheduler", ["sequential", "parallel", "auto"])
def test_ctrl_c_cancels_a_run_and_raises_keyboard_interrupt(models, scheduler):
    child = subprocess.Popen([sys.executable, "-c", CHILD, str(models / "forever.vrk"), scheduler],
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                             env=os.environ)
    try:
        assert child.stdout.readline() == "started\n"
        child.send_signal(signal.SIGINT)
        stdout, stderr = child.communicate(timeout=120)
    finally:
        child.kill()
    assert (child.returncode, stdout) == (0, "interrupted\nafter: 4.0\n"), stderr
