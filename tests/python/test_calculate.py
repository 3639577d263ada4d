"""vrk.calculate: formulas of the map language over numpy arrays, with the engine's
results and messages."""

import numpy as np
import pytest

import vrk


def test_a_formula_gives_what_numpy_gives_with_null_cells_as_nan(arrays):
    a, b = arrays
    result = vrk.calculate("if i1 > 0 then i1 * 2 + i2 else 0", a, b)
    with np.errstate(invalid="ignore"):
        expected = np.where(a > 0, a * 2 + b, 0).astype(np.float32)
    expected[5, 7] = np.nan
    assert result.dtype == np.float32 and result.shape == a.shape
    np.testing.assert_array_equal(result, expected)
    assert result.flags.writeable
    for processors in [1, 2, 3]:
        np.testing.assert_array_equal(vrk.calculate("if i1 > 0 then i1 * 2 + i2 else 0", a, b,
                                                    processors=processors), expected)


def test_values_tables_and_named_maps_are_given_by_name_or_number(arrays):
    a, _ = arrays
    classes = np.arange(12, dtype=np.int32).reshape(3, 4) % 3
    result = vrk.calculate("%weights[#classes] * $scale + v1 + t1[i1]", classes,
                           values={"scale": 10, 1: 0.5}, tables={"weights": {0: 1, 1: 2, 2: 4},
                                                                 1: {0: 100, 1: 200}},
                           maps={"classes": classes})
    weights = np.array([1, 2, 4])[classes] * 10 + 0.5 + np.array([100, 200, np.nan])[classes]
    np.testing.assert_array_equal(result, weights.astype(np.float32))
    window = vrk.calculate("nbsum(i1, 3, 3, 1, 1)", np.ones((4, 5)))
    assert window[0].tolist() == [4, 6, 6, 6, 4] and window[1, 1] == 9


def test_categorical_results_are_rounded_whole_numbers_with_the_first_maps_nodata():
    cells = np.array([[0.5, 1.5, -0.5], [2.49, -9999, 7]])
    result = vrk.calculate("i1", vrk.Map.from_array(cells, nodata=-9999), categorical=True)
    assert result.dtype == np.int32
    assert result.tolist() == [[1, 2, -1], [2, -9999, 7]]
    assert vrk.calculate("i1 / 0", np.ones((1, 2)), categorical=True).tolist() == [[-9999, -9999]]


def test_a_bad_formula_gets_the_message_a_script_gets(tmp_path, vrk_binary):
    formula = "if i1 > 0 then i1 * 2 + else 0"
    with pytest.raises(vrk.ScriptError) as raised:
        vrk.calculate(formula, np.ones((2, 2)))
    error = raised.value
    assert (error.file, error.line, error.column) == ("formula", 1, formula.index("else") + 1)
    assert str(error).splitlines()[1:] == [formula, " " * formula.index("else") + "^"]
    script = tmp_path / "bad.vrk"
    script.write_text("CalculateMap expression = [ " + formula + " ];\n")
    status, _, stderr = vrk_binary("check", script)
    assert status == 2 and stderr.splitlines()[0].endswith("error: " + error.message)


def test_inputs_that_do_not_fit_the_formula_raise_run_errors():
    one = np.ones((2, 2))
    for formula, arrays, words in [("i1 + i3", (one, one, one), "Index 3 .* must be changed to 2"),
                                   ("i1 + i2", (one, np.ones((3, 2))), "grid"),
                                   ("$rate * i1", (one,), "rate"),
                                   ("%table[i1]", (one,), "table")]:
        with pytest.raises(vrk.RunError, match=words) as raised:
            vrk.calculate(formula, *arrays)
        assert raised.value.file == "formula" and raised.value.functor is None
    with pytest.raises(vrk.RunError, match="The key \"i1\" is already in use"):
        vrk.calculate("i1", one, maps={"i1": one})
