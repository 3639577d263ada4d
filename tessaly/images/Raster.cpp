#include "tessaly/images/Raster.h"

#include "tessaly/images/VectorKernel.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Tessaly {

namespace {

const double Null = std::numeric_limits<double>::quiet_NaN();

template <class T>
struct CellTypeOf;
template <>
struct CellTypeOf<std::int32_t> {
    static constexpr CellType value = CellType::Int32;
};
template <>
struct CellTypeOf<float> {
    static constexpr CellType value = CellType::Float32;
};
template <>
struct CellTypeOf<double> {
    static constexpr CellType value = CellType::Float64;
};

bool fitsInt32(double value)
{
    return value >= std::numeric_limits<std::int32_t>::min()
           && value <= std::numeric_limits<std::int32_t>::max();
}

// A NoData of NaN marks nothing, since no cell compares equal to it. The comparison is
// made in double, where every Int32 and Float32 cell is exact, so that a Float32 NoData
// read from a file matches its cells; a select keeps the loop vectorisable.
template <class T>
TESSALY_VECTOR_KERNEL void readAs(const T* __restrict cells, int count, double noData,
                                  double* __restrict out)
{
    for (int i = 0; i < count; ++i) {
        const double value = static_cast<double>(cells[i]);
        out[i] = value == noData ? Null : value;
    }
}

template <class T>
TESSALY_VECTOR_KERNEL void writeFloating(const double* __restrict in, int count, bool hasNoData,
                                         T noData, T* __restrict cells)
{
    if (!hasNoData) {
        for (int i = 0; i < count; ++i)
            cells[i] = static_cast<T>(in[i]);
        return;
    }
    // Narrowed first, then selected in T: NaN stays NaN, and a loop that compares in the
    // type it stores vectorises where one that mixes widths does not.
    for (int i = 0; i < count; ++i) {
        const T narrowed = static_cast<T>(in[i]);
        cells[i] = narrowed != narrowed ? noData : narrowed;
    }
}

std::int32_t roundToInt32(double value, bool hasNoData, std::int32_t noData)
{
    double rounded = std::round(value);
    if (std::isnan(rounded) || !fitsInt32(rounded)) {
        assert(hasNoData && "hasNoData_ || the value fits an Int32 cell");
        return noData;
    }
    return static_cast<std::int32_t>(rounded);
}

} // namespace

Raster::Raster(const Grid& grid, CellType cellType) : Raster(grid, cellType, 0, grid.lines) {}

Raster::Raster(const Grid& grid, CellType cellType, int firstLine, int endLine)
    : Raster(grid, cellType, firstLine, endLine, Uninitialised())
{
    std::fill(cells_.begin(), cells_.end(), std::uint8_t(0));
}

Raster::Raster(const Grid& grid, CellType cellType, int firstLine, int endLine, Uninitialised)
    : grid_(grid), cellType_(cellType), firstLine_(firstLine), endLine_(endLine),
      cells_(static_cast<size_t>(endLine - firstLine) * static_cast<size_t>(grid.columns)
             * getCellSize(cellType))
{
    assert(grid.lines >= 0 && grid.columns >= 0 && "a grid's size is not negative");
    assert(firstLine >= 0 && firstLine <= endLine && endLine <= grid.lines
           && "a strip of the grid's lines");
}

Raster::Raster(const Raster& other)
    : Image(other), grid_(other.grid_), cellType_(other.cellType_), firstLine_(other.firstLine_),
      endLine_(other.endLine_), hasNoData_(other.hasNoData_), noData_(other.noData_),
      cells_(other.storage(), other.storage() + other.heldByteCount())
{
}

Raster& Raster::operator=(const Raster& other)
{
    if (this != &other)
        *this = Raster(other);
    return *this;
}

Raster::~Raster() = default;

Raster Raster::borrowing(const Grid& grid, CellType cellType, const void* cells,
                         std::shared_ptr<const void> owner)
{
    assert(cells && owner && "borrowed cells and their owner");
    Raster raster(grid, cellType, 0, 0, Uninitialised());
    raster.endLine_ = grid.lines;
    raster.borrowed_ = static_cast<const std::uint8_t*>(cells);
    raster.owner_ = std::move(owner);
    return raster;
}

Raster Raster::stripOf(const Raster& like, int firstLine, int endLine)
{
    Raster strip(like.grid_, like.cellType_, firstLine, endLine, Uninitialised());
    strip.hasNoData_ = like.hasNoData_;
    strip.noData_ = like.noData_;
    return strip;
}

double Raster::getNoDataValue() const { return hasNoData_ ? noData_ : Null; }

size_t Raster::getCellSize(CellType cellType)
{
    switch (cellType) {
    case CellType::Int32:
        return sizeof(std::int32_t);
    case CellType::Float32:
        return sizeof(float);
    case CellType::Float64:
        return sizeof(double);
    }
    assert(false && "a known cell type");
    return 0;
}

size_t Raster::heldByteCount() const
{
    return size_t(endLine_ - firstLine_) * size_t(grid_.columns) * getCellSize(cellType_);
}

std::uint8_t* Raster::storage()
{
    assert(!borrowed_ && "a raster of borrowed cells is read-only");
    return cells_.data();
}

const std::uint8_t* Raster::storage() const { return borrowed_ ? borrowed_ : cells_.data(); }

size_t Raster::getGridByteCount() const
{
    return size_t(grid_.lines) * size_t(grid_.columns) * getCellSize(cellType_);
}

void Raster::setNoData(double noData)
{
    assert((cellType_ != CellType::Int32 || (fitsInt32(noData) && std::round(noData) == noData))
           && "an Int32 raster's NoData is an Int32");
    assert(!std::isnan(noData) && "NoData is a number");
    hasNoData_ = true;
    noData_ = noData;
}

void Raster::clearNoData()
{
    hasNoData_ = false;
    noData_ = 0;
}

template <class T>
T* Raster::cells()
{
    assert(cellType_ == CellTypeOf<T>::value && "cells() of the raster's own cell type");
    return reinterpret_cast<T*>(storage());
}

template <class T>
const T* Raster::cells() const
{
    assert(cellType_ == CellTypeOf<T>::value && "cells() of the raster's own cell type");
    return reinterpret_cast<const T*>(storage());
}

template std::int32_t* Raster::cells<std::int32_t>();
template float* Raster::cells<float>();
template double* Raster::cells<double>();
template const std::int32_t* Raster::cells<std::int32_t>() const;
template const float* Raster::cells<float>() const;
template const double* Raster::cells<double>() const;

double Raster::getValue(int line, int column) const
{
    double value = 0;
    readCells(line, column, 1, &value);
    return value;
}

void Raster::setValue(int line, int column, double value)
{
    assert((hasNoData_ || cellType_ != CellType::Int32 || !std::isnan(value))
           && "a null cell of an Int32 raster needs NoData");
    writeCells(line, column, 1, &value);
}

size_t Raster::heldOffset(int line, int column) const
{
    assert(line >= firstLine_ && line < endLine_ && "a line that the raster holds");
    return static_cast<size_t>(line - firstLine_) * static_cast<size_t>(grid_.columns)
           + static_cast<size_t>(column);
}

void Raster::readCells(int line, int column, int count, double* out) const
{
    assert(line >= 0 && line < grid_.lines && column >= 0 && count >= 0
           && column + count <= grid_.columns && "cells inside the raster");
    const size_t first = heldOffset(line, column);
    switch (cellType_) {
    case CellType::Int32:
        readAs(cells<std::int32_t>() + first, count, hasNoData_ ? noData_ : Null, out);
        break;
    case CellType::Float32:
        readAs(cells<float>() + first, count,
               hasNoData_ ? static_cast<double>(static_cast<float>(noData_)) : Null, out);
        break;
    case CellType::Float64:
        readAs(cells<double>() + first, count, hasNoData_ ? noData_ : Null, out);
        break;
    }
}

void Raster::writeCells(int line, int column, int count, const double* in)
{
    assert(line >= 0 && line < grid_.lines && column >= 0 && count >= 0
           && column + count <= grid_.columns && "cells inside the raster");
    const size_t first = heldOffset(line, column);
    switch (cellType_) {
    case CellType::Int32: {
        std::int32_t* out = cells<std::int32_t>() + first;
        auto noData = static_cast<std::int32_t>(noData_);
        for (int i = 0; i < count; ++i)
            out[i] = roundToInt32(in[i], hasNoData_, noData);
        break;
    }
    case CellType::Float32:
        writeFloating(in, count, hasNoData_, static_cast<float>(noData_), cells<float>() + first);
        break;
    case CellType::Float64:
        writeFloating(in, count, hasNoData_, noData_, cells<double>() + first);
        break;
    }
}

} // namespace Tessaly
