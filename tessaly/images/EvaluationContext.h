#ifndef VRK_TESSALY_IMAGES_EVALUATIONCONTEXT_H
#define VRK_TESSALY_IMAGES_EVALUATIONCONTEXT_H

#include <cassert>
#include <cstddef>
#include <vector>

namespace Tessaly {

class WorkMeter;
class Image;
class LookupTable;

// What a formula reads at one cell. Every list is indexed by the dictionary's indexes,
// which start at 1: entry i stands at position i - 1. A compiled formula only uses
// indexes that its dictionary holds, so the lists must be at least that long.
struct EvaluationContext {
    const std::vector<double>& imageValues; // the cell's value in each image; NaN is null
    const std::vector<double>& values;
    const std::vector<const LookupTable*>& tables;
    const std::vector<const Image*>& images;
    double line;   // 0 where there is no image
    double column; // 0 where there is no image
    WorkMeter* meter = nullptr; // counts long work within the cell, where it is heard

    double getImageValue(int index) const { return at(imageValues, index); }
    double getValue(int index) const { return at(values, index); }
    const LookupTable& getTable(int index) const { return *at(tables, index); }
    const Image& getImage(int index) const { return *at(images, index); }

private:
    template <class T>
    static const T& at(const std::vector<T>& list, int index)
    {
        assert(index >= 1 && size_t(index) <= list.size() && "index within the evaluation list");
        return list[size_t(index - 1)];
    }
};

} // namespace Tessaly

#endif
