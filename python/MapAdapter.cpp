#include "python/MapAdapter.h"

#include "plugins/maps/GdalMapReader.h"
#include "plugins/maps/GdalMapWriter.h"

#include "base/task/ProcessorManager.h"
#include "tessaly/raster/MemoryRasterSource.h"

#include <pybind11/stl.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace py = pybind11;

namespace {

Tessaly::CellType cellTypeOf(const py::dtype& dtype)
{
    const char kind = dtype.kind();
    const size_t size = size_t(dtype.itemsize());
    if (kind == 'b' || (kind == 'i' && size <= 4) || (kind == 'u' && size <= 2))
        return Tessaly::CellType::Int32;
    if (kind == 'f' && size <= 4)
        return Tessaly::CellType::Float32;
    if (kind == 'f' || kind == 'i' || kind == 'u')
        return Tessaly::CellType::Float64;
    throw py::type_error("An array of " + dtype.attr("name").cast<std::string>()
                         + " cannot be a map: its cells must be booleans, integers or reals.");
}

py::dtype dtypeOf(Tessaly::CellType cellType)
{
    switch (cellType) {
    case Tessaly::CellType::Int32:
        return py::dtype::of<std::int32_t>();
    case Tessaly::CellType::Float32:
        return py::dtype::of<float>();
    case Tessaly::CellType::Float64:
        break;
    }
    return py::dtype::of<double>();
}

// Keeps a Python object alive while a raster borrows its cells; the last raster may let
// go of it on any thread, which takes the interpreter's lock for that. At exit the
// interpreter has freed everything already.
std::shared_ptr<const void> keepAlive(const py::handle& object)
{
    return std::shared_ptr<const void>(object.inc_ref().ptr(), [](PyObject* kept) {
        if (!Py_IsInitialized())
            return;
        py::gil_scoped_acquire locked;
        Py_DECREF(kept);
    });
}

// With `borrow`, the cells of the array in place when they are C-contiguous and aligned
// cells of the map's own type; else a copy.
template <class T>
Tessaly::Raster cellsOf(const py::array& array, const Tessaly::Grid& grid, Tessaly::CellType type,
                        bool borrow)
{
    using Cells = py::array_t<T, py::array::c_style>;
    if (borrow && Cells::check_(array)
        && (array.flags() & py::detail::npy_api::NPY_ARRAY_ALIGNED_))
        return Tessaly::Raster::borrowing(grid, type, array.data(), keepAlive(array));
    auto cells = py::array_t<T, py::array::c_style | py::array::forcecast>::ensure(array);
    if (!cells)
        throw py::error_already_set();
    Tessaly::Raster raster(grid, type);
    std::memcpy(raster.cells<T>(), cells.data(), sizeof(T) * size_t(cells.size()));
    return raster;
}

Tessaly::Raster cellsOf(const py::array& array, const Tessaly::Grid& grid, bool borrow)
{
    const Tessaly::CellType type = cellTypeOf(array.dtype());
    switch (type) {
    case Tessaly::CellType::Int32:
        return cellsOf<std::int32_t>(array, grid, type, borrow);
    case Tessaly::CellType::Float32:
        return cellsOf<float>(array, grid, type, borrow);
    case Tessaly::CellType::Float64:
        break;
    }
    return cellsOf<double>(array, grid, type, borrow);
}

Tessaly::Grid gridOf(const py::array& array, const py::object& geotransform,
                     const std::string& projection)
{
    if (array.ndim() != 2)
        throw py::value_error("A map is made of a 2-D array, not of one of "
                              + std::to_string(array.ndim()) + " dimensions.");
    const auto limit = py::ssize_t(std::numeric_limits<int>::max());
    if (array.shape(0) > limit || array.shape(1) > limit)
        throw py::value_error("A map has at most " + std::to_string(limit)
                              + " lines and as many columns.");
    Tessaly::Grid grid;
    grid.lines = int(array.shape(0));
    grid.columns = int(array.shape(1));
    grid.projection = projection;
    if (!geotransform.is_none()) {
        const auto numbers = geotransform.cast<std::vector<double>>();
        if (numbers.size() != 6)
            throw py::value_error("A geotransform is 6 numbers, not "
                                  + std::to_string(numbers.size()) + ".");
        std::copy(numbers.begin(), numbers.end(), grid.geoTransform.begin());
    }
    return grid;
}

// NaN marks null cells whatever the NoData, so a NaN NoData is none.
void setNoData(Tessaly::Raster& raster, const py::object& nodata)
{
    if (nodata.is_none())
        return;
    const double value = nodata.cast<double>();
    if (std::isnan(value))
        return;
    if (raster.getCellType() == Tessaly::CellType::Int32
        && (value != std::round(value) || value < std::numeric_limits<std::int32_t>::min()
            || value > std::numeric_limits<std::int32_t>::max()))
        throw py::value_error("The NoData value " + std::string(py::repr(nodata))
                              + " is no whole number that an Int32 cell holds.");
    raster.setNoData(value);
}

// Lends the cells of `data` to numpy, which keeps `keeper` alive while the array lives.
template <class KeeperT>
py::array lend(const Tessaly::Raster& raster, KeeperT keeper, bool writeable)
{
    auto* kept = new KeeperT(std::move(keeper));
    py::capsule base(kept, [](void* object) { delete static_cast<KeeperT*>(object); });
    py::array array(dtypeOf(raster.getCellType()),
                    std::vector<py::ssize_t>{raster.getLineCount(), raster.getColumnCount()},
                    raster.rawCells(), base);
    if (!writeable)
        array.attr("flags").attr("writeable") = false;
    return array;
}

} // namespace

MapAdapter::MapAdapter(std::shared_ptr<const Maps::MapData> data) : data_(std::move(data)) {}

MapAdapter::MapAdapter(Tessaly::Raster&& raster)
    : data_(std::make_shared<const Maps::MapData>(std::make_shared<const Tessaly::MemoryRasterSource>(
        std::make_shared<const Tessaly::Raster>(std::move(raster)))))
{
}

MapAdapter MapAdapter::fromArray(const py::array& array, const py::object& nodata,
                                 const py::object& geotransform, const std::string& projection,
                                 bool copy)
{
    Tessaly::Raster raster = cellsOf(array, gridOf(array, geotransform, projection), !copy);
    setNoData(raster, nodata);
    return MapAdapter(std::move(raster));
}

MapAdapter MapAdapter::of(const py::handle& arrayOrMap)
{
    if (py::isinstance<MapAdapter>(arrayOrMap))
        return arrayOrMap.cast<MapAdapter>();
    return fromArray(py::array::ensure(arrayOrMap), py::none(), py::none(), std::string(), false);
}

MapAdapter MapAdapter::load(const std::string& path)
{
    return MapAdapter(std::make_shared<const Maps::MapData>(Maps::GdalMapReader::open(path)));
}

void MapAdapter::save(const std::string& path) const
{
    const auto processors = int(VRK::ProcessorManager::Instance().getEffectiveProcessorCount());
    Maps::GdalMapWriter::write(*getSource(), path, processors);
}

py::array MapAdapter::toArray() const
{
    if (const Tessaly::Raster* whole = getSource()->getWhole())
        return lend(*whole, data_, false);
    const Tessaly::Raster& header = getHeader();
    Tessaly::Raster cells = getSource()->readLines(0, header.getLineCount());
    auto owned = std::make_shared<const Tessaly::Raster>(std::move(cells));
    return lend(*owned, owned, false);
}

py::array MapAdapter::toArray(Tessaly::Raster&& raster)
{
    auto owned = std::make_shared<Tessaly::Raster>(std::move(raster));
    const Tessaly::Raster& cells = *owned;
    return lend(cells, std::shared_ptr<const Tessaly::Raster>(std::move(owned)), true);
}

int MapAdapter::getLines() const { return getHeader().getLineCount(); }

int MapAdapter::getColumns() const { return getHeader().getColumnCount(); }

py::tuple MapAdapter::getGeoTransform() const
{
    return py::tuple(py::cast(getHeader().getGrid().geoTransform));
}

std::string MapAdapter::getProjection() const { return getHeader().getGrid().projection; }

py::object MapAdapter::getNoData() const
{
    const Tessaly::Raster& raster = getHeader();
    return raster.hasNoData() ? py::object(py::float_(raster.getNoData())) : py::object(py::none());
}

std::string MapAdapter::getCellType() const
{
    return dtypeOf(getHeader().getCellType()).attr("name").cast<std::string>();
}

const Tessaly::Raster& MapAdapter::getHeader() const { return getSource()->getHeader(); }

const std::shared_ptr<const Tessaly::RasterSource>& MapAdapter::getSource() const
{
    return data_->getValue();
}
