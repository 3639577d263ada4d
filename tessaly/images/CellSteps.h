#ifndef VRK_TESSALY_IMAGES_CELLSTEPS_H
#define VRK_TESSALY_IMAGES_CELLSTEPS_H

#include "tessaly/images/BlockStep.h"

namespace Tessaly {

class LookupTable;

// The steps that read the inputs at the block's cells.

// The block's cells of one image (its dictionary index), null as NaN.
class ImageLoadStep : public BlockStep {
public:
    ImageLoadStep(int image, int result) : image_(image), result_(result) {}
    void run(BlockFrame& frame) const override;

private:
    int image_;
    int result_;
};

// The line, or the column, of each cell.
class CellPlaceStep : public BlockStep {
public:
    CellPlaceStep(bool column, int result) : column_(column), result_(result) {}
    void run(BlockFrame& frame) const override;

private:
    bool column_;
    int result_;
};

// 1 where a loaded image register holds null, else 0.
class IsNullStep : public BlockStep {
public:
    IsNullStep(int loaded, int result) : loaded_(loaded), result_(result) {}
    void run(BlockFrame& frame) const override;

private:
    int loaded_;
    int result_;
};

// A table lookup under a key that varies from cell to cell.
class TableLookupStep : public BlockStep {
public:
    using Lookup = double (LookupTable::*)(double) const;
    TableLookupStep(int table, Lookup lookup, Operand key, int result)
        : table_(table), lookup_(lookup), key_(key), result_(result)
    {
    }
    void run(BlockFrame& frame) const override;

private:
    int table_;
    Lookup lookup_;
    Operand key_;
    int result_;
};

// i[line, column] at computed coordinates, rounded down; null outside the image.
class ImageCellStep : public BlockStep {
public:
    ImageCellStep(int image, Operand line, Operand column, int result)
        : image_(image), line_(line), column_(column), result_(result)
    {
    }
    void run(BlockFrame& frame) const override;
    void widenReach(const std::vector<double>&, LineReach& reach) const override
    {
        reach.whole = true;
    }

private:
    int image_;
    Operand line_, column_;
    int result_;
};

} // namespace Tessaly

#endif
