"""vrk from Python: run model scripts, read their outputs, and calculate formulas of
the map language over numpy arrays.

    import vrk
    script = vrk.Script("model.vrk")
    script.set("threshold.value", 2.5)
    script.run(log_level=".result")
    built = script.output("grown.result").to_array()
    doubled = vrk.calculate("if i1 > 0 then i1 * 2 + i2 else 0", a, b)
"""

from . import errors, logs, picture
from ._core import Map, Script, calculate, load_map
from .errors import Error, RunError, ScriptError


def _repr_png_(self):
    return picture.png(self.to_array(), self.nodata)


Map._repr_png_ = _repr_png_

__all__ = ["Error", "Map", "RunError", "Script", "ScriptError", "calculate", "load_map"]
