#include "tessaly/images/Raster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

namespace Tessaly {
namespace {

Grid grid(int lines, int columns)
{
    Grid result;
    result.lines = lines;
    result.columns = columns;
    result.geoTransform = {{100, 10, 0, 500, 0, -10}};
    return result;
}

TEST(RasterTest, NoDataAndNanReadAsNullInEveryCellType)
{
    for (CellType type : {CellType::Int32, CellType::Float32, CellType::Float64}) {
        Raster raster(grid(2, 3), type);
        raster.setNoData(-9999);
        const double in[] = {1.5, NAN, -2.5, 7, -9999, 0.25};
        raster.writeCells(0, 0, 3, in);
        raster.writeCells(1, 0, 3, in + 3);
        double out[3];
        raster.readCells(0, 0, 3, out);
        EXPECT_TRUE(std::isnan(out[1]));
        raster.readCells(1, 1, 2, out);
        EXPECT_TRUE(std::isnan(out[0])) << "a written NoData reads as null";
        if (type == CellType::Int32) {
            EXPECT_EQ(raster.getValue(0, 0), 2) << "halves away from zero";
            EXPECT_EQ(raster.getValue(0, 2), -3);
            EXPECT_EQ(raster.getValue(1, 2), 0);
            EXPECT_EQ(raster.cells<std::int32_t>()[1], -9999);
        } else {
            EXPECT_EQ(raster.getValue(0, 2), -2.5);
            EXPECT_EQ(out[1], 0.25);
        }
    }
}

TEST(RasterTest, FloatCellsWithoutNoDataKeepNanAndFloat32NoDataMatchesExactly)
{
    Raster plain(grid(1, 2), CellType::Float32);
    plain.setValue(0, 1, NAN);
    EXPECT_TRUE(std::isnan(plain.getValue(0, 1)));
    EXPECT_EQ(plain.getValue(0, 0), 0);

    Raster lowest(grid(1, 2), CellType::Float32);
    lowest.setNoData(-3.4028234663852886e+38);
    lowest.cells<float>()[0] = -3.4028234663852886e+38f;
    lowest.cells<float>()[1] = 0.1f;
    EXPECT_TRUE(std::isnan(lowest.getValue(0, 0)));
    EXPECT_EQ(lowest.getValue(0, 1), static_cast<double>(0.1f));
    lowest.clearNoData();
    EXPECT_FALSE(std::isnan(lowest.getValue(0, 0)));
}

// A borrowed raster reads the cells where they lie, keeps their owner alive while any
// raster refers to them, and a copy of it is a raster of its own.
TEST(RasterTest, ABorrowedRasterReadsCellsInPlaceAndACopyOwnsItsOwn)
{
    auto cells = std::make_shared<std::vector<float>>(std::vector<float>{1, -9999, NAN, 4});
    std::weak_ptr<std::vector<float>> alive = cells;
    Raster copy(grid(1, 1), CellType::Int32);
    {
        Raster borrowed = Raster::borrowing(grid(2, 2), CellType::Float32, cells->data(), cells);
        cells.reset();
        borrowed.setNoData(-9999);
        EXPECT_FALSE(alive.expired());
        const Raster& readOnly = borrowed;
        EXPECT_EQ(readOnly.rawCells(), alive.lock()->data());
        double out[4];
        borrowed.readCells(0, 0, 2, out);
        borrowed.readCells(1, 0, 2, out + 2);
        EXPECT_EQ(out[0], 1);
        EXPECT_TRUE(std::isnan(out[1]) && std::isnan(out[2]));
        EXPECT_EQ(out[3], 4);
        copy = borrowed;
        EXPECT_NE(copy.rawCells(), readOnly.rawCells());
    }
    EXPECT_TRUE(alive.expired()) << "a copy does not hold the borrowed cells";
    copy.setValue(1, 1, 5);
    EXPECT_EQ(copy.getValue(1, 1), 5);
    EXPECT_TRUE(std::isnan(copy.getValue(0, 1))) << "the copy keeps the NoData";
}

// Large rasters reuse the memory of freed ones: a new one must still start at 0.
TEST(RasterTest, ANewLargeRasterStartsAtZeroAfterAFreedOne)
{
    for (int round = 0; round < 2; ++round) {
        Raster raster(grid(1100, 1000), CellType::Float32);
        float* cells = raster.cells<float>();
        EXPECT_EQ(std::count(cells, cells + 1100 * 1000, 0.0f), 1100 * 1000);
        std::fill(cells, cells + 1100 * 1000, 7.0f);
    }
}

TEST(RasterTest, GridsMeetOnSizeAndTransformNotOnProjection)
{
    Grid a = grid(2, 3), b = grid(2, 3);
    b.projection = "LOCAL_CS[\"x\"]";
    EXPECT_TRUE(a.isSameGridAs(b));
    b.geoTransform[1] = 20;
    EXPECT_FALSE(a.isSameGridAs(b));
    EXPECT_FALSE(a.isSameGridAs(grid(3, 2)));
    EXPECT_EQ(a.describe(), "3 x 2 cells, origin (100, 500), cell size (10, -10)");
}

} // namespace
} // namespace Tessaly
