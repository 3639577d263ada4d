#ifndef VRK_PYTHON_MAPADAPTER_H
#define VRK_PYTHON_MAPADAPTER_H

#include "plugins/maps/MapData.h"

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <memory>
#include <string>

// A map as Python sees it (`vrk.Map`): the only part of the module that knows how a
// map's cells are kept, so that a change of that touches this class alone. A map
// borrows the cells of an array that are C-contiguous int32, float32 or float64, keeping
// the array alive, and copies the others; it never writes them. The cells of a map held
// in memory are lent to numpy read-only, without a copy (those of a map kept in a file
// are read into the array).
class MapAdapter {
public:
    explicit MapAdapter(std::shared_ptr<const Maps::MapData> data);
    explicit MapAdapter(Tessaly::Raster&& raster);

    // The cells of a 2-D array: Int32 cells for booleans and integers of up to 32 bits
    // (signed) or 16 bits (unsigned), Float32 for float32, Float64 for the rest of
    // the real and integer types. `nodata` marks null cells (NaN always does in
    // floating cells); `geotransform` is 6 numbers; `projection` is WKT. Without `copy`
    // the cells are borrowed where their layout allows, and the caller must not change
    // them while the map lives, since a map never changes.
    static MapAdapter fromArray(const pybind11::array& array, const pybind11::object& nodata,
                                const pybind11::object& geotransform,
                                const std::string& projection, bool copy);
    // A numpy array or a map, as a map; the array's cells borrowed where they can be.
    static MapAdapter of(const pybind11::handle& arrayOrMap);
    static MapAdapter load(const std::string& path);
    void save(const std::string& path) const;

    // The cells, lent without a copy, read-only.
    pybind11::array toArray() const;
    // The cells of a raster that nothing else holds, as an array that owns them.
    static pybind11::array toArray(Tessaly::Raster&& raster);
    int getLines() const;
    int getColumns() const;
    pybind11::tuple getGeoTransform() const;
    std::string getProjection() const;
    // None when the map has no NoData value.
    pybind11::object getNoData() const;
    std::string getCellType() const;

    const std::shared_ptr<const Maps::MapData>& getData() const { return data_; }
    const std::shared_ptr<const Tessaly::RasterSource>& getSource() const;

private:
    // The grid, cell type and NoData, wherever the cells are kept.
    const Tessaly::Raster& getHeader() const;

    std::shared_ptr<const Maps::MapData> data_;
};

#endif
