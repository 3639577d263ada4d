"""vrk.Map and numpy: arrays into maps and back, files, maps bound to a script's
inputs, and the picture a notebook shows."""

import struct
import zlib

import numpy as np
import pytest

import vrk

GEOTRANSFORM = (420000.0, 100.0, 0.0, 5104800.0, 0.0, -100.0)


def test_arrays_become_maps_of_the_nearest_cell_type_and_come_back_unchanged():
    cases = [(np.bool_, "int32"), (np.int8, "int32"), (np.uint16, "int32"), (np.int32, "int32"),
             (np.uint32, "float64"), (np.int64, "float64"), (np.float32, "float32"),
             (np.float64, "float64")]
    cells = np.arange(12).reshape(3, 4) % 2
    for kind, cell_type in cases:
        array = cells.astype(kind)
        map_ = vrk.Map.from_array(array)
        assert (map_.lines, map_.columns, map_.dtype) == (3, 4, cell_type)
        assert (map_.to_array() == array).all()
    strided = np.arange(40, dtype=np.float32).reshape(5, 8)[::2, ::3]
    assert (vrk.Map.from_array(strided).to_array() == strided).all()
    for wrong, error in [(np.zeros(4), ValueError), (np.zeros((2, 2, 2)), ValueError),
                         (np.zeros((2, 2), dtype=complex), TypeError),
                         (np.array([["a"]]), TypeError)]:
        with pytest.raises(error):
            vrk.Map.from_array(wrong)


def test_a_map_lends_its_cells_without_a_copy_and_they_cannot_be_changed():
    array = np.random.default_rng(3).random((64, 32)).astype(np.float16)
    map_ = vrk.Map.from_array(array)
    first, second = map_.to_array(), map_.to_array()
    assert np.shares_memory(first, second)
    assert not np.shares_memory(first, array)
    assert not first.flags.writeable
    with pytest.raises(ValueError):
        first[0, 0] = 1
    del map_
    assert (second == array).all()


def test_nodata_geotransform_and_projection_are_kept():
    map_ = vrk.Map.from_array(np.array([[1, -9999], [3, 4]], dtype=np.int16), nodata=-9999,
                              geotransform=GEOTRANSFORM, projection="LOCAL_CS[\"grid\"]")
    assert (map_.nodata, map_.geotransform, map_.projection) == (-9999.0, GEOTRANSFORM,
                                                                 "LOCAL_CS[\"grid\"]")
    assert vrk.Map.from_array(np.zeros((2, 2))).nodata is None
    assert vrk.Map.from_array(np.zeros((2, 2)), nodata=float("nan")).nodata is None
    for nodata in [0.5, 2.0 ** 40]:
        with pytest.raises(ValueError, match="Int32"):
            vrk.Map.from_array(np.zeros((2, 2), dtype=np.int32), nodata=nodata)
    with pytest.raises(ValueError, match="6 numbers"):
        vrk.Map.from_array(np.zeros((2, 2)), geotransform=(0, 1, 0))


@pytest.mark.parametrize("name", ["map.tif", "map.asc"])
def test_maps_saved_and_loaded_keep_cells_nodata_and_grid(tmp_path, name):
    array = np.arange(30, dtype=np.float32).reshape(5, 6) / 4
    array[2, 3] = -1
    map_ = vrk.Map.from_array(array, nodata=-1, geotransform=GEOTRANSFORM)
    map_.save(str(tmp_path / name))
    back = vrk.load_map(str(tmp_path / name))
    assert (back.to_array() == array).all()
    assert back.nodata == -1 and back.geotransform == pytest.approx(GEOTRANSFORM)
    with pytest.raises(vrk.Error):
        vrk.load_map(str(tmp_path / "none.tif"))
    with pytest.raises(vrk.Error):
        map_.save(str(tmp_path / "no-folder" / name))


def test_a_map_bound_to_an_input_feeds_the_run(models):
    array = np.array([[1, 2, 3], [4, 5, np.nan]], dtype=np.float32)
    # An input left to the caller is asked for at the run, so that it may be set first.
    unset = vrk.Script(str(models / "double-image.vrk"))
    with pytest.raises(vrk.ScriptError, match="\"image\" .* neither set nor bound"):
        unset.run()
    unset.set("calc.image", vrk.Map.from_array(array))
    unset.run()
    np.testing.assert_array_equal(unset.output("calc.result").to_array()[0], [3, 5, 7])
    script = vrk.Script(str(models / "double-image.vrk"),
                        inputs={"calc.image": vrk.Map.from_array(array)})
    script.run()
    result = script.output("calc.result")
    assert isinstance(result, vrk.Map)
    assert repr(result) == "<vrk.Map of 2 x 3 float32 cells, NoData %r>" % result.nodata
    doubled = result.to_array()
    assert (doubled[:, :2] == array[:, :2] * 2 + 1).all()
    assert doubled[1, 2] == result.nodata
    script.set("calc.image", vrk.Map.from_array(np.full((2, 2), 10, dtype=np.int32)))
    script.set("offset.constant", 0.5)
    script.run()
    assert (script.output("calc.result").to_array() == 20.5).all()
    with pytest.raises(vrk.ScriptError, match="takes Double, not Map"):
        script.set("offset.constant", vrk.Map.from_array(array))


def test_a_map_bound_in_place_of_a_loaded_one_replaces_it(town):
    script = vrk.Script(str(town))
    script.set("years.lastIterationStep", 1)
    script.run(log_level=".warning")
    assert script.output("grown.result").to_array().sum() > 6
    start = vrk.load_map(str(town.parent / "town.asc"))
    empty = vrk.Map.from_array(np.zeros((start.lines, start.columns), dtype=np.int32),
                               geotransform=start.geotransform)
    script.set("built.initial", empty)
    script.run(log_level=".warning")
    assert script.output("grown.result").to_array().sum() == 0


def png_pixels(data):
    """The size, colour type and (grey, alpha) rows of a PNG that png() wrote."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    chunks, at = {}, 8
    while at < len(data):
        (length,) = struct.unpack(">I", data[at:at + 4])
        kind, body = data[at + 4:at + 8], data[at + 8:at + 8 + length]
        (crc,) = struct.unpack(">I", data[at + 8 + length:at + 12 + length])
        assert crc == zlib.crc32(kind + body) & 0xFFFFFFFF
        chunks[kind] = body
        at += 12 + length
    columns, lines, depth, colour = struct.unpack(">IIBB", chunks[b"IHDR"][:10])
    raw = np.frombuffer(zlib.decompress(chunks[b"IDAT"]), dtype=np.uint8)
    rows = raw.reshape(lines, columns * 2 + 1)
    return (columns, lines, depth, colour), rows[:, 1::2], rows[:, 2::2]


def test_a_map_shows_as_a_png_of_grey_levels_with_null_cells_transparent():
    array = np.array([[0, 5, 10], [-9999, 10, np.nan]])
    header, grey, alpha = png_pixels(vrk.Map.from_array(array, nodata=-9999)._repr_png_())
    assert header == (3, 2, 8, 4)
    assert grey.tolist() == [[0, 128, 255], [0, 255, 0]]
    assert alpha.tolist() == [[255, 255, 255], [0, 255, 0]]
    _, grey, alpha = png_pixels(vrk.Map.from_array(np.full((2, 2), 7))._repr_png_())
    assert (grey == 0).all() and (alpha == 255).all()


def test_a_budget_too_small_for_any_map_spills_them_and_changes_no_cell(town):
    script = vrk.Script(str(town))
    script.set("years.lastIterationStep", 3)
    script.run(log_level=".warning")
    whole = script.output("grown.result").to_array().copy()
    script.run(log_level=".warning", memory="1K")
    assert np.array_equal(script.output("grown.result").to_array(), whole)
    script.run(log_level=".warning", memory=1 << 30)
    assert np.array_equal(script.output("grown.result").to_array(), whole)
    for wrong in ["lots", "12Q", "-5", -5, 1.5]:
        with pytest.raises(ValueError, match="neither a number of bytes"):
            script.run(memory=wrong)
