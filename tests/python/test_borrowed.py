"""Arrays whose cells a map can use in place (C-contiguous int32, float32, float64) are
borrowed, not copied, by vrk.calculate and by vrk.Map.from_array when told copy=False;
the others are copied, as from_array's arrays are by default. Either way the cells and
results are the same."""

import gc
import weakref

import numpy as np

import vrk

FORMULA = "if i1 > 0 then i1 * 2 + i2 else 0"


def test_c_contiguous_arrays_of_a_cell_type_are_shared_and_the_others_copied():
    cells = np.arange(-20, 40, dtype=np.int64).reshape(6, 10)
    for kind in [np.int32, np.float32, np.float64]:
        array = cells.astype(kind)
        lent = vrk.Map.from_array(array, copy=False).to_array()
        assert np.shares_memory(lent, array) and not lent.flags.writeable, kind
        assert lent.dtype == array.dtype and (lent == array).all()
        copied = vrk.Map.from_array(array).to_array()
        assert not np.shares_memory(copied, array) and (copied == array).all()
        array[0, 0] = 7
        assert copied[0, 0] == -20 and lent[0, 0] == 7
    big_endian = cells.astype(">f4")
    unaligned = np.frombuffer(b"\0" + cells.astype(np.float32).tobytes(), np.float32,
                              offset=1).reshape(6, 10)
    assert not unaligned.flags.aligned
    for copied in [cells.astype(np.float32)[:, ::2], np.asfortranarray(cells.astype(np.float32)),
                   cells.astype(np.int16), cells, big_endian, unaligned]:
        lent = vrk.Map.from_array(copied, copy=False).to_array()
        assert not np.shares_memory(lent, copied)
        assert (lent == copied).all()


def test_a_borrowed_array_lives_as_long_as_its_map_and_no_longer():
    array = np.linspace(0, 1, 5000, dtype=np.float32).reshape(50, 100)
    expected = array.copy()
    alive = weakref.ref(array)
    map_ = vrk.Map.from_array(array, nodata=0, copy=False)
    del array
    gc.collect()
    assert alive() is not None
    np.testing.assert_array_equal(map_.to_array(), expected)
    result = vrk.calculate("i1 * 2", map_)
    np.testing.assert_array_equal(result[1:], expected[1:] * 2)
    assert np.isnan(result[0, 0])
    del map_
    gc.collect()
    assert alive() is None


def test_borrowed_and_copied_inputs_give_the_same_results_and_stay_unchanged(arrays):
    a, b = arrays
    kept = a.copy(), b.copy()
    borrowed = vrk.calculate(FORMULA, a, b)
    copied = vrk.calculate(FORMULA, np.asfortranarray(a), b[:, ::1].astype(np.float64))
    with np.errstate(invalid="ignore"):
        expected = np.where(a > 0, a * 2 + b, 0).astype(np.float32)
    expected[5, 7] = np.nan
    np.testing.assert_array_equal(borrowed, expected)
    np.testing.assert_array_equal(copied, expected)
    np.testing.assert_array_equal(a, kept[0])
    np.testing.assert_array_equal(b, kept[1])
    assert borrowed.flags.writeable and not np.shares_memory(borrowed, a)


def test_null_cells_are_nan_and_a_calculated_nodata_stays_a_number(arrays, tmp_path):
    a, _ = arrays
    cells = np.where(np.isnan(a), -9999, np.round(a * 4)).astype(np.float32)
    in_memory = vrk.Map.from_array(cells, nodata=-9999)
    in_memory.save(str(tmp_path / "cells.tif"))
    from_file = vrk.load_map(str(tmp_path / "cells.tif"))
    doubled = cells * 2
    doubled[5, 7] = np.nan
    for map_ in [in_memory, from_file]:
        np.testing.assert_array_equal(vrk.calculate("i1 * 2", map_), doubled)
    # Over maps in memory, only null cells become NaN, not cells calculated to equal the
    # inputs' NoData.
    expected = np.where(cells == 1, -9999, doubled).astype(np.float32)
    np.testing.assert_array_equal(vrk.calculate("if i1 == 1 then -9999 else i1 * 2", in_memory),
                                  expected)
    categorical = vrk.calculate("i1 * 2", in_memory, categorical=True)
    assert categorical.dtype == np.int32 and categorical[5, 7] == -9999
