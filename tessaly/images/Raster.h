#ifndef VRK_TESSALY_IMAGES_RASTER_H
#define VRK_TESSALY_IMAGES_RASTER_H

#include "tessaly/images/CellAllocator.h"
#include "tessaly/images/Grid.h"
#include "tessaly/images/Image.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Tessaly {

// What one cell of a raster holds in memory. Rasters read from files of narrower
// integer types hold Int32; of unsigned 32-bit integers, Float64.
enum class CellType { Int32, Float32, Float64 };

// A raster in memory: its grid, cells line by line, and the value that marks a null
// cell (NoData), if any. Formulas read a NoData cell, and a NaN cell, as null.
//
// A raster may hold only a strip of its grid's lines, [getFirstLine(), getEndLine()),
// so that maps larger than memory are calculated strip by strip; it still answers for
// the whole grid's size, and reading a line it does not hold is a programming error.
//
// A raster may borrow cells that it does not own (an array of another language), kept
// alive by an owner handle while any raster refers to them. Such a raster is read-only;
// a copy of it owns its cells.
class Raster : public Image {
public:
    // Every cell 0.
    Raster(const Grid& grid, CellType cellType);
    // The strip of lines [firstLine, endLine), every cell 0.
    Raster(const Grid& grid, CellType cellType, int firstLine, int endLine);
    Raster(const Raster& other);
    Raster& operator=(const Raster& other);
    Raster(Raster&&) = default;
    Raster& operator=(Raster&&) = default;
    ~Raster() override;
    // The strip [firstLine, endLine) of `like`'s grid, with its cell type and NoData, its
    // cells left as they come: for a strip whose every cell is written next.
    static Raster stripOf(const Raster& like, int firstLine, int endLine);
    // The whole grid over `cells`, line by line, which `owner` keeps alive: read-only.
    static Raster borrowing(const Grid& grid, CellType cellType, const void* cells,
                            std::shared_ptr<const void> owner);

    const Grid& getGrid() const { return grid_; }
    CellType getCellType() const { return cellType_; }
    int getFirstLine() const { return firstLine_; }
    int getEndLine() const { return endLine_; }
    bool holdsLines(int firstLine, int endLine) const
    {
        return firstLine >= firstLine_ && endLine <= endLine_;
    }

    bool hasNoData() const { return hasNoData_; }
    double getNoData() const { return noData_; }
    void setNoData(double noData);
    void clearNoData();
    // NoData when the raster has one, else NaN.
    double getNoDataValue() const override;

    int getLineCount() const override { return grid_.lines; }
    int getColumnCount() const override { return grid_.columns; }
    // NaN for a null cell.
    double getValue(int line, int column) const override;
    // Writes NoData for NaN; on a raster without NoData, NaN is kept in floating
    // cells and refused by an assertion in Int32 cells.
    void setValue(int line, int column, double value);

    // The cells held, line by line from the first held; only for the raster's own cell
    // type (asserted).
    template <class T>
    T* cells();
    template <class T>
    const T* cells() const;
    // The cells of one held line.
    template <class T>
    T* lineCells(int line)
    {
        return cells<T>() + heldOffset(line, 0);
    }
    template <class T>
    const T* lineCells(int line) const
    {
        return cells<T>() + heldOffset(line, 0);
    }
    void* rawCells() { return storage(); }
    const void* rawCells() const { return storage(); }
    static size_t getCellSize(CellType cellType);
    // The bytes of every cell of the grid, whatever the raster holds.
    size_t getGridByteCount() const;

    // `count` cells of `line` from `column` as doubles, NaN for null: the fast path by
    // which calculations read blocks of cells.
    void readCells(int line, int column, int count, double* out) const;
    // Stores `count` doubles from `in`, NaN as NoData (rounded to the nearest integer,
    // halves away from zero, in Int32 cells).
    void writeCells(int line, int column, int count, const double* in);

private:
    friend class ImageCalculator;
    struct Uninitialised {};
    // For a result whose every cell is written at once: its cells are left as they come.
    Raster(const Grid& grid, CellType cellType, int firstLine, int endLine, Uninitialised);

    size_t heldOffset(int line, int column) const;
    size_t heldByteCount() const;
    std::uint8_t* storage();
    const std::uint8_t* storage() const;

    Grid grid_;
    CellType cellType_;
    int firstLine_ = 0;
    int endLine_ = 0;
    bool hasNoData_ = false;
    double noData_ = 0;
    std::vector<std::uint8_t, CellAllocator<std::uint8_t>> cells_;
    // Cells borrowed in place of cells_, if any, and what keeps them alive.
    const std::uint8_t* borrowed_ = nullptr;
    std::shared_ptr<const void> owner_;
};

} // namespace Tessaly

#endif
