#include "tessaly/raster/StripCalculator.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <system_error>
#include <future>
#include <map>

namespace Tessaly {

StripCalculator::StripCalculator(const ImageCalculator& calculator,
                                 const SourceCalculationInputs& inputs, CellType cellType,
                                 int processors, std::function<void()> checkpoint, long stripCells)
    : calculator_(calculator), inputs_(inputs), cellType_(cellType), processors_(processors),
      checkpoint_(std::move(checkpoint)), stripCells_(stripCells)
{
}

ImageCalculationInputs StripCalculator::withImages(std::vector<const Raster*> images) const
{
    return ImageCalculationInputs{std::move(images), inputs_.values, inputs_.tables};
}

bool StripCalculator::allWhole() const
{
    return std::all_of(inputs_.images.begin(), inputs_.images.end(),
                       [](const RasterSource* image) { return !image || image->getWhole(); });
}

Raster StripCalculator::makeHeader() const
{
    std::vector<const Raster*> headers;
    for (const RasterSource* image : inputs_.images)
        headers.push_back(image ? &image->getHeader() : nullptr);
    return calculator_.makeResult(withImages(headers), cellType_, 0, 0);
}

Raster StripCalculator::calculateWhole() const
{
    if (allWhole()) {
        std::vector<const Raster*> wholes;
        for (const RasterSource* image : inputs_.images)
            wholes.push_back(image ? image->getWhole() : nullptr);
        return calculator_.calculate(withImages(wholes), cellType_, processors_, checkpoint_);
    }
    const Raster header = makeHeader();
    Raster result = Raster::stripOf(header, 0, header.getLineCount());
    forEachStrip([&](int firstLine, int endLine, const ImageCalculationInputs& strips) {
        calculator_.calculateLines(strips, firstLine, endLine, result, processors_, checkpoint_);
    });
    return result;
}

void StripCalculator::calculateStrips(const Sink& sink) const
{
    const Raster header = makeHeader();
    forEachStrip([&](int firstLine, int endLine, const ImageCalculationInputs& strips) {
        Raster strip = Raster::stripOf(header, firstLine, endLine);
        calculator_.calculateLines(strips, firstLine, endLine, strip, processors_, checkpoint_);
        sink(strip);
    });
}

std::vector<StripCalculator::Strip> StripCalculator::planStrips() const
{
    const Raster header = makeHeader();
    std::vector<const Raster*> headers;
    for (const RasterSource* image : inputs_.images)
        headers.push_back(image ? &image->getHeader() : nullptr);
    const LineReach reach = calculator_.getReach(withImages(headers));
    const int lines = header.getLineCount();
    const int tileLines = ImageCalculator::getTileLines(header.getColumnCount());
    const long tiles =
        std::max(1L, stripCells_ / (long(tileLines) * std::max(1, header.getColumnCount())));
    const int stripLines =
        reach.whole ? std::max(1, lines) : int(std::min<long>(lines, tiles * tileLines));
    std::vector<Strip> strips;
    for (int firstLine = 0; firstLine < lines; firstLine += stripLines) {
        const int endLine = std::min(lines, firstLine + stripLines);
        strips.push_back({firstLine, endLine, std::max(0, firstLine - reach.above),
                          int(std::min<long>(lines, long(endLine) + reach.below))});
    }
    return strips;
}

// A map named twice (i1 and #image alike) is read once. With more than one processor,
// each map is read on a thread of its own; without a thread to spare, where it is
// asked for. Only the strip's own lines are read: the lines its windows reach come
// from the strips around it, so that no line is read twice.
StripCalculator::Reads StripCalculator::startReading(const Strip& strip) const
{
    Reads reads;
    for (const RasterSource* image : inputs_.images) {
        if (!image || image->getWhole() || reads.count(image))
            continue;
        const auto read = [image, strip] {
            return image->readLines(strip.firstLine, strip.endLine);
        };
        try {
            reads.emplace(image, std::async(processors_ > 1 ? std::launch::async
                                                            : std::launch::deferred,
                                            read));
        } catch (const std::system_error&) {
            reads.emplace(image, std::async(std::launch::deferred, read));
        }
    }
    return reads;
}

// The strips ahead, as many as there are processors, are read while this one is
// calculated, so that a single map is read on every processor too.
void StripCalculator::forEachStrip(const Body& body) const
{
    const std::vector<Strip> plan = planStrips();
    std::deque<Reads> pending;
    std::map<std::size_t, std::map<const RasterSource*, Raster>> read;
    std::size_t started = 0;
    std::size_t finished = 0;
    const auto readAhead = [&](std::size_t needed) {
        while (started < plan.size()
               && (started < needed || int(pending.size()) < std::max(1, processors_)))
            pending.push_back(startReading(plan[started++]));
    };
    for (const Strip& strip : plan) {
        std::size_t needed = finished;
        while (needed < plan.size() && plan[needed].firstLine < strip.bottom)
            ++needed;
        readAhead(needed);
        for (; finished < needed; ++finished, pending.pop_front())
            for (auto& reading : pending.front())
                read[finished].emplace(reading.first, reading.second.get());
        while (!read.empty() && plan[read.begin()->first].endLine <= strip.top)
            read.erase(read.begin());
        readAhead(0);
        std::map<const RasterSource*, Raster> joined;
        std::vector<const Raster*> strips;
        for (const RasterSource* image : inputs_.images)
            strips.push_back(linesOf(image, strip, read, joined));
        body(strip.firstLine, strip.endLine, withImages(strips));
    }
}

// The lines [top, bottom) of `image`: the map whole, one strip read, or the strips
// read joined into `joined`.
const Raster* StripCalculator::linesOf(
    const RasterSource* image, const Strip& strip,
    const std::map<std::size_t, std::map<const RasterSource*, Raster>>& read,
    std::map<const RasterSource*, Raster>& joined)
{
    if (!image || image->getWhole())
        return image ? image->getWhole() : nullptr;
    std::vector<const Raster*> pieces;
    for (const auto& strips : read)
        pieces.push_back(&strips.second.at(image));
    if (pieces.size() == 1)
        return pieces.front();
    auto found = joined.find(image);
    if (found != joined.end())
        return &found->second;
    Raster lines = Raster::stripOf(*pieces.front(), strip.top, strip.bottom);
    const std::size_t lineBytes =
        std::size_t(lines.getColumnCount()) * Raster::getCellSize(lines.getCellType());
    for (const Raster* piece : pieces) {
        const int first = std::max(strip.top, piece->getFirstLine());
        const int end = std::min(strip.bottom, piece->getEndLine());
        if (first < end)
            std::memcpy(static_cast<unsigned char*>(lines.rawCells())
                            + std::size_t(first - strip.top) * lineBytes,
                        static_cast<const unsigned char*>(piece->rawCells())
                            + std::size_t(first - piece->getFirstLine()) * lineBytes,
                        std::size_t(end - first) * lineBytes);
    }
    return &joined.emplace(image, std::move(lines)).first->second;
}

} // namespace Tessaly
