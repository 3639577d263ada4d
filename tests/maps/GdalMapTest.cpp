#include "plugins/maps/GdalMapReader.h"
#include "plugins/maps/GdalMapWriter.h"
#include "plugins/maps/GdalUtils.h"
#include "tessaly/raster/MemoryRasterSource.h"

#include "base/error/Exception.h"

#include <boost/filesystem.hpp>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <random>
#include <set>

namespace {

namespace fs = boost::filesystem;

// Every line of the map, read through the source as calculations and writers read it.
std::shared_ptr<const Tessaly::Raster> readWhole(const fs::path& path)
{
    const auto source = Maps::GdalMapReader::open(path);
    return std::make_shared<const Tessaly::Raster>(
        source->readLines(0, source->getHeader().getLineCount()));
}

class GdalMapTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Maps::GdalUtils::registerFormats();
        folder_ = fs::temp_directory_path() / fs::unique_path("vrk_maps_%%%%%%%%");
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    fs::path file(const std::string& name) const { return folder_ / name; }
    std::set<std::string> files() const
    {
        std::set<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
            names.insert(entry.path().filename().string());
        return names;
    }

    static std::string geographicWkt()
    {
        OGRSpatialReference reference;
        reference.SetWellKnownGeogCS("WGS84");
        char* wkt = nullptr;
        reference.exportToWkt(&wkt);
        const std::string text = wkt;
        CPLFree(wkt);
        return text;
    }

    // A GeoTIFF of 3 lines and 2 columns of `type` holding `cells`.
    void makeTiff(const fs::path& path, GDALDataType type, std::vector<double> cells,
                  const double* noData)
    {
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GTiff");
        GDALDataset* dataset = driver->Create(path.string().c_str(), 2, 3, 1, type, nullptr);
        ASSERT_NE(dataset, nullptr);
        double transform[6] = {500, 30, 0, 900, 0, -30};
        dataset->SetGeoTransform(transform);
        dataset->SetProjection(geographicWkt().c_str());
        if (noData)
            dataset->GetRasterBand(1)->SetNoDataValue(*noData);
        ASSERT_EQ(dataset->GetRasterBand(1)->RasterIO(GF_Write, 0, 0, 2, 3, cells.data(), 2, 3,
                                                      GDT_Float64, 0, 0),
                  CE_None);
        GDALClose(dataset);
    }

    static bool sameProjection(const std::string& a, const std::string& b)
    {
        OGRSpatialReference first, second;
        first.importFromWkt(a.c_str());
        second.importFromWkt(b.c_str());
        return first.IsSame(&second);
    }

    static std::vector<double> valuesOf(const Tessaly::Raster& raster)
    {
        std::vector<double> values;
        for (int line = 0; line < raster.getLineCount(); ++line)
            for (int column = 0; column < raster.getColumnCount(); ++column)
                values.push_back(raster.getValue(line, column));
        return values;
    }

    static void expectSameCells(const std::vector<double>& actual,
                                const std::vector<double>& expected)
    {
        ASSERT_EQ(actual.size(), expected.size());
        for (size_t i = 0; i < actual.size(); ++i) {
            if (std::isnan(expected[i]))
                EXPECT_TRUE(std::isnan(actual[i])) << "cell " << i;
            else
                EXPECT_EQ(actual[i], expected[i]) << "cell " << i;
        }
    }

    fs::path folder_;
};

} // namespace

TEST_F(GdalMapTest, ReadsEveryCellTypeWithGridAndNoData)
{
    const double byteNoData = 255;
    makeTiff(file("byte.tif"), GDT_Byte, {0, 1, 254, 255, 7, 8}, &byteNoData);
    const auto bytes = readWhole(file("byte.tif"));
    EXPECT_EQ(bytes->getCellType(), Tessaly::CellType::Int32);
    ASSERT_TRUE(bytes->hasNoData());
    EXPECT_EQ(bytes->getNoData(), 255);
    expectSameCells(valuesOf(*bytes), {0, 1, 254, NAN, 7, 8});
    const Tessaly::Grid& grid = bytes->getGrid();
    EXPECT_EQ(grid.lines, 3);
    EXPECT_EQ(grid.columns, 2);
    EXPECT_EQ(grid.geoTransform, (std::array<double, 6>{{500, 30, 0, 900, 0, -30}}));
    EXPECT_TRUE(sameProjection(grid.projection, geographicWkt()));

    makeTiff(file("wide.tif"), GDT_UInt32, {4000000000.0, 0, 1, 2, 3, 4}, nullptr);
    const auto wide = readWhole(file("wide.tif"));
    EXPECT_EQ(wide->getCellType(), Tessaly::CellType::Float64);
    EXPECT_FALSE(wide->hasNoData());
    expectSameCells(valuesOf(*wide), {4000000000.0, 0, 1, 2, 3, 4});

    const double realNoData = -1e30;
    makeTiff(file("real.tif"), GDT_Float32, {0.5, -1e30, 2.25, 3, -4, 5}, &realNoData);
    const auto reals = readWhole(file("real.tif"));
    EXPECT_EQ(reals->getCellType(), Tessaly::CellType::Float32);
    expectSameCells(valuesOf(*reals), {0.5, NAN, 2.25, 3, -4, 5});

    makeTiff(file("short.tif"), GDT_Int16, {-32768, -1, 0, 1, 32767, 2}, nullptr);
    expectSameCells(valuesOf(*readWhole(file("short.tif"))),
                    {-32768, -1, 0, 1, 32767, 2});
}

// Whether held in memory or read from its file by strips as it is written, a map
// reads back with its cells, grid and NoData.
TEST_F(GdalMapTest, WrittenMapsReadBackWithGridAndNoData)
{
    const double noData = -9999;
    makeTiff(file("in.tif"), GDT_Float32, {0.1f, -9999, 2.5, 1e-7f, -3, 1e20f}, &noData);
    const auto map = readWhole(file("in.tif"));
    const Tessaly::MemoryRasterSource inMemory(map);
    const auto opened = Maps::GdalMapReader::open(file("in.tif"));
    EXPECT_EQ(opened->getWhole(), nullptr);
    for (const Tessaly::RasterSource* source :
         {opened.get(), (const Tessaly::RasterSource*)&inMemory})
        for (const char* name : {"out.tif", "out.tiff", "out.asc"}) {
            SCOPED_TRACE(name);
            Maps::GdalMapWriter::write(*source, file(name), 2);
            const auto back = readWhole(file(name));
            expectSameCells(valuesOf(*back), valuesOf(*map));
            EXPECT_TRUE(back->hasNoData());
            EXPECT_EQ(back->getNoData(), -9999);
            EXPECT_EQ(back->getGrid().geoTransform, map->getGrid().geoTransform);
            EXPECT_TRUE(sameProjection(back->getGrid().projection, geographicWkt()));
        }
    GDALDataset* tiff = static_cast<GDALDataset*>(GDALOpen(file("out.tif").c_str(), GA_ReadOnly));
    ASSERT_NE(tiff, nullptr);
    EXPECT_STREQ(tiff->GetMetadataItem("COMPRESSION", "IMAGE_STRUCTURE"), "DEFLATE");
    int blockWidth = 0, blockHeight = 0;
    tiff->GetRasterBand(1)->GetBlockSize(&blockWidth, &blockHeight);
    EXPECT_EQ(blockWidth, 256);
    GDALClose(tiff);
    // Nothing but the maps and the grid's projection: no temporary file stays.
    EXPECT_EQ(files(),
              (std::set<std::string>{"in.tif", "out.tif", "out.tiff", "out.asc", "out.prj"}));
}

// GeoTIFFs are written with differences along the line, which must give back every
// bit of every cell type: extremes, NoData, NaN and random bits across a tile's edge.
TEST_F(GdalMapTest, GeoTiffKeepsEveryBitOfEveryCellType)
{
    Tessaly::Grid grid;
    grid.lines = 5;
    grid.columns = 300;
    std::mt19937 random(23);
    for (Tessaly::CellType type :
         {Tessaly::CellType::Int32, Tessaly::CellType::Float32, Tessaly::CellType::Float64}) {
        SCOPED_TRACE(int(type));
        Tessaly::Raster raster(grid, type);
        raster.setNoData(-9999);
        auto* bytes = static_cast<unsigned char*>(raster.rawCells());
        const size_t size = raster.getGridByteCount();
        for (size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<unsigned char>(random());
        raster.setValue(0, 0, -9999);
        raster.setValue(1, 1, 2147483647);
        raster.setValue(1, 2, -2147483647 - 1.0);
        raster.setValue(4, 299, 0);
        if (type != Tessaly::CellType::Int32)
            raster.setValue(2, 3, NAN);
        const Tessaly::MemoryRasterSource source(std::make_shared<const Tessaly::Raster>(raster));
        Maps::GdalMapWriter::write(source, file("bits.tif"), 2);
        const auto back = readWhole(file("bits.tif"));
        ASSERT_EQ(back->getCellType(), type);
        EXPECT_EQ(back->getNoData(), -9999);
        EXPECT_EQ(std::memcmp(back->rawCells(), raster.rawCells(), size), 0);
        GDALDataset* tiff =
            static_cast<GDALDataset*>(GDALOpen(file("bits.tif").c_str(), GA_ReadOnly));
        ASSERT_NE(tiff, nullptr);
        EXPECT_STREQ(tiff->GetMetadataItem("PREDICTOR", "IMAGE_STRUCTURE"), "2");
        GDALClose(tiff);
    }
}

TEST_F(GdalMapTest, AsciiGridWithoutProjectionDropsAnOldOne)
{
    Tessaly::Grid grid;
    grid.lines = 1;
    grid.columns = 3;
    Tessaly::Raster raster(grid, Tessaly::CellType::Int32);
    raster.setValue(0, 0, -7);
    raster.setValue(0, 2, 2147483647);
    std::ofstream(file("grid.prj").string()) << "stale";
    Maps::GdalMapWriter::write(
        Tessaly::MemoryRasterSource(std::make_shared<Tessaly::Raster>(raster)), file("grid.asc"),
        1);
    EXPECT_EQ(files(), (std::set<std::string>{"grid.asc"}));
    expectSameCells(valuesOf(*readWhole(file("grid.asc"))), {-7, 0, 2147483647});
}

TEST_F(GdalMapTest, RefusalsNameTheFile)
{
    Tessaly::Grid grid;
    grid.lines = grid.columns = 1;
    const Tessaly::Raster raster(grid, Tessaly::CellType::Float32);
    try {
        Maps::GdalMapWriter::write(
            Tessaly::MemoryRasterSource(std::make_shared<Tessaly::Raster>(raster)), file("map.png"),
            1);
        ADD_FAILURE() << "a PNG was written";
    } catch (const VRK::Exception& error) {
        EXPECT_EQ(std::string(error.what()),
                  "The map file \"" + file("map.png").string()
                      + "\" can not be written: only GeoTIFF (\".tif\", \".tiff\") and ASCII "
                        "grid (\".asc\") files are written.");
    }
    std::ofstream(file("text.asc").string()) << "not a grid\n";
    try {
        readWhole(file("text.asc"));
        ADD_FAILURE() << "text was read as a map";
    } catch (const VRK::Exception& error) {
        const std::string prefix =
            "The map file \"" + file("text.asc").string() + "\" can not be read as a map";
        EXPECT_EQ(std::string(error.what()).substr(0, prefix.size()), prefix);
    }
    EXPECT_EQ(files(), (std::set<std::string>{"text.asc"}));
}

TEST_F(GdalMapTest, AsciiGridCellsThatAreNoNumbersAreRefusedAtTheirLine)
{
    const std::string header = "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n";
    const auto refusal = [&](const std::string& text) {
        std::ofstream(file("grid.asc").string(), std::ios::binary) << text;
        try {
            readWhole(file("grid.asc"));
        } catch (const VRK::Exception& error) {
            return std::string(error.what());
        }
        return std::string("accepted");
    };
    const std::string at = file("grid.asc").string() + ":";
    EXPECT_EQ(refusal(header + "1 2 3\n4 abc 6\n"), at + "7: The cell \"abc\" is not a number.");
    EXPECT_EQ(refusal(header + "abc 2 3\n4 5 6\n"), at + "6: The cell \"abc\" is not a number.");
    EXPECT_EQ(refusal(header + "1 2 0x10\n4 5 6\n"), at + "6: The cell \"0x10\" is not a number.");
    EXPECT_EQ(refusal(header + "1 2 3\r\n4 5 1e400\r\n"),
              at + "7: The cell \"1e400\" is beyond the range of double precision reals.");
    EXPECT_EQ(refusal(header + "NODATA_value none\n1 2 3\n4 5 6\n"),
              at + "6: The value of NODATA_value \"none\" is not a number.");
    EXPECT_EQ(refusal("ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize one\n1 2 3\n4 5 6\n"),
              at + "5: The value of cellsize \"one\" is not a number.");

    // Numbers in every form a grid may hold, NoData and a null written as "nan" read.
    std::ofstream(file("good.asc").string())
        << header << "NODATA_value -9999\n  1.5\t-2e1 +3\r\n-9999 .5 nan\n";
    expectSameCells(valuesOf(*readWhole(file("good.asc"))),
                    {1.5, -20, 3, NAN, 0.5, NAN});
}
