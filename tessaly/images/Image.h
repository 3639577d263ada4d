#ifndef VRK_TESSALY_IMAGES_IMAGE_H
#define VRK_TESSALY_IMAGES_IMAGE_H

namespace Tessaly {

// A raster that formulas read around the current cell (neighbourhoods, explicit
// coordinates). Lines and columns count from 0; a null cell reads as NaN.
class Image {
public:
    Image() = default;
    Image(const Image&) = default;
    Image& operator=(const Image&) = default;
    virtual ~Image();

    virtual int getLineCount() const = 0;
    virtual int getColumnCount() const = 0;
    virtual double getValue(int line, int column) const = 0;

    // NaN outside the raster, so that windows at the border read as null there.
    double getValueOrNull(int line, int column) const;
    // The number that marks a null cell in the image's storage; NaN where nothing does.
    virtual double getNoDataValue() const;
};

} // namespace Tessaly

#endif
