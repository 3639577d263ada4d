#ifndef VRK_TESSALY_IMAGES_FOCALCOLUMNS_H
#define VRK_TESSALY_IMAGES_FOCALCOLUMNS_H

#include <vector>

namespace Tessaly {

class Raster;

// The totals of every column of an image over the lines of a window, kept by one
// thread as it goes down its tile: moving one line down adds the line that enters the
// window and subtracts the one that leaves it, so that a line costs two line reads
// whatever the window's height. Nulls are left out of the sums and counted apart;
// totals are restarted from the window's lines when it jumps, and when an infinity
// leaves it (the difference would be no sum).
class FocalColumns {
public:
    // `nonZero`: count the cells other than 0 into the sums instead of adding values.
    explicit FocalColumns(bool nonZero) : nonZero_(nonZero) {}

    // Totals over the window's lines [top, top + height) that lie in the image.
    void moveTo(const Raster& raster, double top, double height);
    const double* getSums() const { return sums_.data(); }
    const double* getCounts() const { return counts_.data(); }

private:
    void restart(const Raster& raster);
    void addLine(const Raster& raster, double line, double sign);

    bool nonZero_;
    bool valid_ = false;
    double top_ = 0;
    double height_ = 0;
    std::vector<double> sums_, counts_, row_;
};

} // namespace Tessaly

#endif
