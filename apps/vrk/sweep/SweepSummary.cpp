#include "apps/vrk/sweep/SweepSummary.h"

#include "apps/vrk/sweep/CsvFields.h"

#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"
#include "base/script/AtomicFileWriter.h"
#include "base/util/RealText.h"

#include <fstream>
#include <iomanip>

namespace Sweep {

SweepSummary::SweepSummary(std::string filename, std::vector<std::string> order)
    : filename_(std::move(filename)), order_(std::move(order))
{
}

// Runs that succeeded are not run again: their whole entry, duration and error line
// included, is kept as it was written.
void SweepSummary::load()
{
    std::ifstream in(filename_, std::ios::binary);
    std::string line;
    std::getline(in, line);
    for (int number = 2; std::getline(in, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty())
            continue;
        const VRK::ScriptPosition where{filename_, number, 1};
        const std::vector<CsvFields::Field> fields = CsvFields::split(line, where);
        if (fields.size() != 4)
            VRK::ExceptionUtils::raiseAt<VRK::ParseError>(
                where, "The summary line has " + std::to_string(fields.size())
                           + " fields where run, status, seconds and error are expected.");
        const VRK::RealText seconds(fields[2].text);
        if (!seconds.isNumber())
            VRK::ExceptionUtils::raiseAt<VRK::ParseError>(
                VRK::ScriptPosition{filename_, number, fields[2].column},
                seconds.describeProblem("duration"));
        entries_[fields[0].text] = Entry{fields[1].text, seconds.getValue(), fields[3].text};
    }
}

bool SweepSummary::succeeded(const std::string& run) const
{
    const auto found = entries_.find(run);
    return found != entries_.end() && found->second.status == "0";
}

void SweepSummary::record(const std::string& run, const Entry& entry)
{
    entries_[run] = entry;
    write();
}

void SweepSummary::write() const
{
    VRK::AtomicFileWriter::write(filename_, [this](std::ostream& out) {
        out << "run,status,seconds,error\n";
        for (const auto& run : order_) {
            const auto found = entries_.find(run);
            if (found == entries_.end())
                continue;
            const Entry& entry = found->second;
            out << CsvFields::quote(run) << ',' << entry.status << ',' << std::fixed << std::setprecision(3)
                << entry.seconds << ',' << CsvFields::quote(entry.error) << '\n';
        }
    });
}

} // namespace Sweep
