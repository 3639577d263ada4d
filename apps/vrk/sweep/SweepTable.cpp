#include "apps/vrk/sweep/SweepTable.h"

#include "apps/vrk/sweep/CsvFields.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileNotFoundException.h"
#include "base/parse/ParseError.h"
#include "base/script/ScriptTextInput.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

namespace Sweep {

namespace {

const char* const RunColumn = "run";

// Taken in as a script is, so that a table saved with a byte-order mark reads as one
// saved without.
std::string readText(const std::string& filename)
{
    std::ifstream in(filename, std::ios::binary);
    if (!in)
        VRK::ExceptionUtils::raise<VRK::FileNotFoundException>("The table \"" + filename
                                                               + "\" cannot be opened.");
    return VRK::ScriptTextInput::readAll(in, "The table \"" + filename + "\"");
}

std::string counted(size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

[[noreturn]] void refuse(const std::string& file, int line, int column, const std::string& message)
{
    VRK::ExceptionUtils::raiseAt<VRK::ParseError>(VRK::ScriptPosition{file, line, column}, message);
}

} // namespace

SweepTable SweepTable::read(const std::string& filename)
{
    SweepTable table;
    table.filename_ = filename;
    const std::string text = readText(filename);
    table.source_ = VRK::LineBuffer(text);
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (CsvFields::trim(line).empty())
            continue;
        const auto fields = CsvFields::split(line, VRK::ScriptPosition{filename, number, 0});
        if (table.names_.empty())
            table.readHeader(fields, number);
        else
            table.readRow(fields, number);
    }
    if (table.names_.empty())
        refuse(filename, 1, 1, "The table has no header line naming its alias.port columns.");
    return table;
}

void SweepTable::readHeader(const std::vector<CsvFields::Field>& fields, int line)
{
    for (const auto& field : fields) {
        const std::string name = CsvFields::trim(field.text);
        const auto dot = name.find('.');
        const bool aliasPort = dot != std::string::npos && dot > 0 && dot + 1 < name.size()
                               && name.find('.', dot + 1) == std::string::npos;
        if (name == RunColumn && runColumn_ < 0)
            runColumn_ = static_cast<int>(names_.size());
        else if (!aliasPort)
            refuse(filename_, line, field.column,
                   "The column \"" + name + "\" is not named alias.port or run.");
        else if (std::find(names_.begin(), names_.end(), name) != names_.end())
            refuse(filename_, line, field.column, "The column \"" + name + "\" is named twice.");
        names_.push_back(name);
        namePositions_.push_back(VRK::ScriptPosition{filename_, line, field.column});
    }
}

void SweepTable::readRow(const std::vector<CsvFields::Field>& fields, int line)
{
    if (fields.size() != names_.size())
        refuse(filename_, line, fields.size() > names_.size() ? fields[names_.size()].column : 1,
               "The row has " + counted(fields.size(), "field") + " where the header names "
                   + counted(names_.size(), "column") + ".");
    Row row;
    row.run = std::to_string(rows_.size() + 1);
    for (size_t i = 0; i < fields.size(); ++i) {
        const VRK::ScriptPosition place{filename_, line, fields[i].column};
        if (static_cast<int>(i) == runColumn_) {
            row.run = CsvFields::trim(fields[i].text);
            continue;
        }
        const auto dot = names_[i].find('.');
        row.parameters.push_back({names_[i].substr(0, dot), names_[i].substr(dot + 1),
                                  CsvFields::trim(fields[i].text), place, namePositions_[i]});
    }
    const bool plain = !row.run.empty() && row.run != "." && row.run != ".."
                       && row.run.find('/') == std::string::npos;
    const int runAt = runColumn_ < 0 ? 1 : fields[runColumn_].column;
    if (!plain)
        refuse(filename_, line, runAt,
               "The run name \"" + row.run + "\" is not a plain folder name.");
    for (const auto& earlier : rows_)
        if (earlier.run == row.run)
            refuse(filename_, line, runAt, "The run name \"" + row.run + "\" is used twice.");
    rows_.push_back(std::move(row));
}

} // namespace Sweep
