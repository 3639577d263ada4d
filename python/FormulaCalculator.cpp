#include "python/FormulaCalculator.h"

#include "apps/host/DiagnosticPrinter.h"
#include "apps/host/HostError.h"

#include "base/error/Exception.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "plugins/maps/CalculationEnvironment.h"
#include "python/BackgroundCall.h"
#include "python/MapAdapter.h"
#include "python/PythonErrors.h"
#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/raster/StripCalculator.h"

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <sstream>

namespace py = pybind11;

namespace {

// What the formula's diagnostics name as its file.
const char* const FormulaFile = "formula";

[[noreturn]] void raise(const char* kind, const VRK::Exception& error, const std::string& formula)
{
    PythonErrors::raise(kind, HostError::of(error, FormulaFile), [&](DiagnosticPrinter& printer) {
        printer.addSource(FormulaFile, VRK::LineBuffer(formula));
    });
}

std::shared_ptr<Tessaly::TopLevelImageExpression> readFormula(const std::string& formula)
{
    try {
        std::istringstream in(formula);
        auto expression = Tessaly::DefaultImageExpressionReader::read(in, FormulaFile);
        expression->compile();
        return expression;
    } catch (const VRK::Exception& error) {
        raise("ScriptError", error, formula);
    }
}

// The environment's name of an entry given by number (i1, v2, t3) or by name.
std::string keyOf(const py::handle& key, const char* prefix)
{
    if (py::isinstance<py::int_>(key))
        return prefix + std::to_string(key.cast<long long>());
    return key.cast<std::string>();
}

std::shared_ptr<const Tessaly::LookupTable> tableOf(const py::handle& entries)
{
    Tessaly::LookupTable::Entries table;
    for (const auto& entry : entries.cast<py::dict>())
        table[entry.first.cast<double>()] = entry.second.cast<double>();
    return std::make_shared<const Tessaly::LookupTable>(std::move(table));
}

Maps::CalculationEnvironment environmentOf(const py::args& images, const py::dict& values,
                                           const py::dict& tables, const py::dict& maps)
{
    Maps::CalculationEnvironment environment;
    for (size_t i = 0; i < images.size(); ++i)
        environment.addMap("i" + std::to_string(i + 1), MapAdapter::of(images[i]).getSource());
    for (const auto& map : maps)
        environment.addMap(map.first.cast<std::string>(), MapAdapter::of(map.second).getSource());
    for (const auto& value : values)
        environment.addValue(keyOf(value.first, "v"), value.second.cast<double>());
    for (const auto& table : tables)
        environment.addTable(keyOf(table.first, "t"), tableOf(table.second));
    return environment;
}

// Null cells of a real result become NaN, as numpy marks them.
void markNullsAsNaN(Tessaly::Raster& result)
{
    if (!result.hasNoData())
        return;
    const auto noData = static_cast<float>(result.getNoData());
    float* cells = result.cells<float>();
    const size_t count = size_t(result.getLineCount()) * size_t(result.getColumnCount());
    for (size_t i = 0; i < count; ++i)
        if (cells[i] == noData)
            cells[i] = std::numeric_limits<float>::quiet_NaN();
    result.clearNoData();
}

// The inputs as rasters, when every map is held in memory.
std::optional<Tessaly::ImageCalculationInputs>
wholeInputsOf(const Tessaly::SourceCalculationInputs& inputs)
{
    Tessaly::ImageCalculationInputs wholes{{}, inputs.values, inputs.tables};
    for (const Tessaly::RasterSource* image : inputs.images) {
        if (image && !image->getWhole())
            return std::nullopt;
        wholes.images.push_back(image ? image->getWhole() : nullptr);
    }
    return wholes;
}

// Over maps in memory, a real result is made without NoData, so that its null cells are
// written as NaN at once; over maps kept in files, it is calculated by strips and its
// NoData cells made NaN afterwards.
Tessaly::Raster resultOf(const Tessaly::ImageCalculator& calculator,
                         const Tessaly::SourceCalculationInputs& inputs,
                         Tessaly::CellType cellType, int threads,
                         const std::function<void()>& checkpoint)
{
    const bool real = cellType != Tessaly::CellType::Int32;
    const std::optional<Tessaly::ImageCalculationInputs> wholes = wholeInputsOf(inputs);
    if (!wholes) {
        Tessaly::Raster result =
            Tessaly::StripCalculator(calculator, inputs, cellType, threads, checkpoint)
                .calculateWhole();
        if (real)
            markNullsAsNaN(result);
        return result;
    }
    const Tessaly::Raster* first = wholes->images.empty() ? nullptr : wholes->images[0];
    const int lines = first ? first->getLineCount() : 0;
    Tessaly::Raster result = calculator.makeResult(*wholes, cellType, 0, lines);
    if (real)
        result.clearNoData();
    calculator.calculateLines(*wholes, 0, lines, result, threads, checkpoint);
    return result;
}

} // namespace

py::array FormulaCalculator::calculate(const std::string& formula, const py::args& images,
                                       const py::dict& values, const py::dict& tables,
                                       const py::dict& maps, bool categorical,
                                       unsigned int processors)
{
    const std::shared_ptr<Tessaly::TopLevelImageExpression> expression = readFormula(formula);
    std::optional<Tessaly::Raster> result;
    try {
        const Maps::CalculationEnvironment environment = environmentOf(images, values, tables, maps);
        const Tessaly::SourceCalculationInputs flattened = environment.flatten(*expression);
        const int threads = int(processors != 0
                                    ? processors
                                    : VRK::ProcessorManager::Instance().getEffectiveProcessorCount());
        const Tessaly::CellType cellType =
            categorical ? Tessaly::CellType::Int32 : Tessaly::CellType::Float32;
        VRK::Task task;
        // A calculation logs nothing: only the end of its work is waited for.
        LogQueue none;
        BackgroundCall::run(
            [&] {
                const std::function<void()> checkpoint = [&task] { task.checkCancellation(); };
                const Tessaly::ImageCalculator calculator(*expression, checkpoint);
                result.emplace(resultOf(calculator, flattened, cellType, threads, checkpoint));
            },
            [&task] { task.cancel(); }, none, [](const std::vector<LogQueue::Line>&) {});
    } catch (const VRK::Exception& error) {
        raise("RunError", error, formula);
    }
    return MapAdapter::toArray(std::move(*result));
}
