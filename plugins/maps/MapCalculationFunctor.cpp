#include "plugins/maps/MapCalculationFunctor.h"

#include "base/error/ExceptionUtils.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "plugins/maps/CalculationEnvironment.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/MapType.h"
#include "plugins/maps/TemporaryMapFile.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/raster/MemoryBudget.h"
#include "tessaly/raster/MemoryRasterSource.h"
#include "tessaly/raster/StripCalculator.h"

#include <functional>

namespace Maps {

namespace {

const char* const ImagePort = "image";
const char* const ResultPort = "result";

} // namespace

MapCalculationFunctor::MapCalculationFunctor(const std::string& name,
                                             const std::string& description,
                                             Tessaly::CellType cellType, bool namedImage)
    : MapsFormulaFunctor(name, description,
                         "The formula, over numbered (i1, t1, v1) and named (#map, %table, "
                         "$value) maps, tables and values.",
                         namedImage ? "#image" : "i1"),
      cellType_(cellType), namedImage_(namedImage)
{
    if (namedImage)
        addInputPort(ImagePort, "The map that the formula names #image.", MapType::getInstance(),
                     false);
    addOutputPort(ResultPort, "The map of the formula, on the grid of its first map.",
                  MapType::getInstance());
}

MapCalculationFunctor::~MapCalculationFunctor() = default;

// The calculator refuses maps on different grids and a formula without a map.
void MapCalculationFunctor::calculate()
{
    setOutputPortValue<MapData>(ResultPort, calculateSource());
}

std::shared_ptr<const Tessaly::RasterSource> MapCalculationFunctor::calculateSource()
{
    const Tessaly::TopLevelImageExpression expression = getCompiledExpression();
    CalculationEnvironment environment(*this);
    if (namedImage_)
        environment.addMap(ImagePort, getInputPortValue<MapData>(ImagePort));
    const Tessaly::SourceCalculationInputs inputs = environment.flatten(expression);
    const VRK::Task* task = VRK::Task::getCurrentTask();
    const int processors = int(VRK::ProcessorManager::Instance().getEffectiveProcessorCount());
    const std::function<void()> checkpoint = [task] {
        if (task)
            task->checkCancellation();
    };
    const Tessaly::ImageCalculator calculator(expression, checkpoint);
    const Tessaly::StripCalculator strips(calculator, inputs, cellType_, processors, checkpoint);
    const Tessaly::Raster header = strips.makeHeader();
    try {
        return keep(strips, header);
    } catch (const std::bad_alloc&) {
        VRK::ExceptionUtils::raise<VRK::Exception>(
            "Memory ran out while calculating a map of " + header.getGrid().describe()
            + "; a smaller --memory budget keeps more of the maps in temporary files.");
    }
}

// In memory when the budget has room for the whole map, else in a temporary file.
std::shared_ptr<const Tessaly::RasterSource>
MapCalculationFunctor::keep(const Tessaly::StripCalculator& strips, const Tessaly::Raster& header)
{
    Tessaly::MemoryBudget& budget = Tessaly::MemoryBudget::getInstance();
    const size_t bytes = header.getGridByteCount();
    if (!budget.reserve(bytes)) {
        TemporaryMapFile file(header);
        strips.calculateStrips([&file](const Tessaly::Raster& strip) { file.write(strip); });
        return file.finish();
    }
    try {
        auto whole = std::make_shared<const Tessaly::Raster>(strips.calculateWhole());
        return std::make_shared<const Tessaly::MemoryRasterSource>(whole, bytes);
    } catch (...) {
        budget.release(bytes);
        throw;
    }
}

} // namespace Maps
