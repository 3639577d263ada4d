#ifndef VRK_APPS_VRK_SWEEP_SWEEPTABLE_H
#define VRK_APPS_VRK_SWEEP_SWEEPTABLE_H

#include "apps/vrk/sweep/CsvFields.h"

#include "base/script/WizardParameter.h"
#include "base/util/LineBuffer.h"

#include <string>
#include <vector>

namespace Sweep {

// The table of a sweep: a CSV file whose header names "alias.port" columns, and
// optionally a "run" column naming each run; every other line is one run. Runs without
// a "run" column are named by their row number, 1 for the first row under the header.
// Fields may be double-quoted, with "" for a quote inside.
class SweepTable {
public:
    struct Row {
        std::string run;
        // One assignment per "alias.port" column, placed at its cell in the table.
        std::vector<VRK::WizardParameter> parameters;
    };

    // Throws a ParseError at the line and column of what is wrong: a header name that is
    // not "alias.port", a row with another number of fields than the header, a run name
    // that is empty, repeated or not a plain folder name.
    static SweepTable read(const std::string& filename);

    const std::string& getFilename() const { return filename_; }
    const VRK::LineBuffer& getSource() const { return source_; }
    const std::vector<Row>& getRows() const { return rows_; }

private:
    void readHeader(const std::vector<CsvFields::Field>& fields, int line);
    void readRow(const std::vector<CsvFields::Field>& fields, int line);

    std::string filename_;
    VRK::LineBuffer source_;
    int runColumn_ = -1;
    std::vector<std::string> names_;
    // Where each column's name stands, where an unknown alias or port is shown.
    std::vector<VRK::ScriptPosition> namePositions_;
    std::vector<Row> rows_;
};

} // namespace Sweep

#endif
