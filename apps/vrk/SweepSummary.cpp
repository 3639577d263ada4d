#include "apps/vrk/SweepSummary.h"

#include "base/script/AtomicFileWriter.h"

#include <fstream>
#include <iomanip>
#include <sstream>

namespace {

// A CSV field, quoted when it holds a comma, a quote or a line break.
std::string field(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

} // namespace

SweepSummary::SweepSummary(std::string filename, std::vector<std::string> order)
    : filename_(std::move(filename)), order_(std::move(order))
{
}

// Only the first two fields matter for resuming, so the error field is kept unread.
void SweepSummary::load()
{
    std::ifstream in(filename_);
    std::string line;
    std::getline(in, line);
    while (std::getline(in, line)) {
        std::istringstream fields(line);
        std::string run;
        Entry entry;
        if (std::getline(fields, run, ',') && std::getline(fields, entry.status, ','))
            entries_[run] = entry;
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
            out << field(run) << ',' << entry.status << ',' << std::fixed << std::setprecision(3)
                << entry.seconds << ',' << field(entry.error) << '\n';
        }
    });
}
