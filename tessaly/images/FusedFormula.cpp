#include "tessaly/images/FusedFormula.h"

#include "tessaly/images/CalculationData.h"
#include "tessaly/images/ImageExpression.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace Tessaly {

namespace {

const double NoNoData = std::numeric_limits<double>::quiet_NaN();
// Results of more bytes than this are written past the caches: they would not stay in
// them for the next calculation anyway, and reading their memory in before writing it
// would add half as much again to the memory traffic of a two-image formula.
constexpr size_t StreamedBytes = size_t(16) << 20;

} // namespace

std::unique_ptr<FusedFormula> FusedFormula::match(const ImageExpression& root,
                                                  const LeafFinder& findLeaf)
{
    std::unique_ptr<FusedFormula> fused(new FusedFormula());
    std::string signature;
    if (fused->appendSignature(root, findLeaf, signature))
        fused->kernel_ = FusedKernels::find(signature);
    return fused->kernel_ ? std::move(fused) : nullptr;
}

// Appends the node's shape signature, its leaves numbered as they come; false when some
// node is neither a leaf nor an operator, the leaves are too many, or the signature
// grows longer than any kernel's. Each level down adds a name to the signature, so
// that bound also bounds how deep the walk goes, whatever the depth of the tree.
bool FusedFormula::appendSignature(const ImageExpression& node, const LeafFinder& findLeaf,
                                   std::string& signature)
{
    if (signature.size() > FusedKernels::getLongestSignature())
        return false;
    Leaf leaf;
    if (findLeaf(node, leaf)) {
        const std::string name = nameLeaf(leaf);
        signature += name;
        return !name.empty();
    }
    if (node.getChildCount() == 0)
        return false;
    signature += node.getName();
    signature += '(';
    for (size_t i = 0; i < node.getChildCount(); ++i) {
        if (i)
            signature += ',';
        if (!appendSignature(node.getChild(i), findLeaf, signature))
            return false;
    }
    signature += ')';
    return true;
}

std::string FusedFormula::nameLeaf(const Leaf& leaf)
{
    std::vector<int>& leaves = leaf.image ? images_ : scalars_;
    const int value = leaf.image ? leaf.image : leaf.scalar;
    auto known = std::find(leaves.begin(), leaves.end(), value);
    if (!leaf.image || known == leaves.end()) {
        if (leaves.size() == size_t(FusedShapes::MaxLeaves))
            return {};
        known = leaves.insert(leaves.end(), value);
    }
    return (leaf.image ? "I" : "S") + std::to_string(known - leaves.begin());
}

bool FusedFormula::fits(const CalculationData& data, CellType resultType) const
{
    if (resultType != CellType::Float32)
        return false;
    for (int image : images_)
        if (data.rasters[size_t(image - 1)]->getCellType() != CellType::Float32)
            return false;
    return true;
}

void FusedFormula::runLines(const CalculationData& data, int firstLine, int endLine,
                            Raster& result) const
{
    FusedShapes::Leaves leaves{};
    for (size_t k = 0; k < scalars_.size(); ++k)
        leaves.scalars[k] = data.scalars[size_t(scalars_[k])];
    for (size_t k = 0; k < images_.size(); ++k) {
        const Raster& raster = *data.rasters[size_t(images_[k] - 1)];
        leaves.noData[k] = raster.hasNoData()
                               ? static_cast<double>(static_cast<float>(raster.getNoData()))
                               : NoNoData;
    }
    const int columns = result.getColumnCount();
    // A result without NoData keeps its null cells as NaN.
    const float resultNoData = static_cast<float>(result.getNoDataValue());
    const bool stream =
        size_t(result.getLineCount()) * size_t(columns) * sizeof(float) >= StreamedBytes;
    for (int line = firstLine; line < endLine; ++line) {
        for (size_t k = 0; k < images_.size(); ++k)
            leaves.cells[k] = data.rasters[size_t(images_[k] - 1)]->lineCells<float>(line);
        kernel_(leaves, columns, resultNoData, stream, result.lineCells<float>(line));
    }
}

} // namespace Tessaly
