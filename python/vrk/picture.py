"""A map as a PNG picture, for notebooks: grey levels from the smallest value (black)
to the greatest (white), null cells transparent. Written with the standard library."""

import struct
import zlib

import numpy as np


def _chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)


def grey_levels(cells, nodata):
    """The cells as grey levels and opacities (uint8 arrays of the same shape)."""
    values = cells.astype(np.float64)
    valid = ~np.isnan(values)
    if nodata is not None:
        valid &= values != nodata
    grey = np.zeros(values.shape, dtype=np.uint8)
    if valid.any():
        low, high = values[valid].min(), values[valid].max()
        span = high - low if high > low else 1.0
        grey[valid] = np.round((values[valid] - low) / span * 255).astype(np.uint8)
    return grey, np.where(valid, 255, 0).astype(np.uint8)


def png(cells, nodata=None):
    """PNG bytes of a 2-D array of cells, 8-bit grey with alpha."""
    grey, alpha = grey_levels(cells, nodata)
    lines, columns = grey.shape
    pixels = np.empty((lines, columns * 2 + 1), dtype=np.uint8)
    pixels[:, 0] = 0  # no filter
    pixels[:, 1::2] = grey
    pixels[:, 2::2] = alpha
    header = struct.pack(">IIBBBBB", columns, lines, 8, 4, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header)
            + _chunk(b"IDAT", zlib.compress(pixels.tobytes(), 6)) + _chunk(b"IEND", b""))
