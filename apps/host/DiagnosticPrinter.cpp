#include "apps/host/DiagnosticPrinter.h"

#include "apps/host/HostError.h"

#include "base/error/Exception.h"
#include "base/util/PrintableText.h"

#include <algorithm>
#include <fstream>
#include <iterator>

DiagnosticPrinter::DiagnosticPrinter(std::ostream& out) : out_(out) {}

void DiagnosticPrinter::addSource(const std::string& filename, const VRK::LineBuffer& source)
{
    sources_[filename] = source;
}

void DiagnosticPrinter::print(const VRK::Exception& error, const std::string& file)
{
    print(HostError::of(error, file));
}

void DiagnosticPrinter::print(const HostError& error)
{
    print(error.getMessage(), error.getPosition());
}

void DiagnosticPrinter::print(const std::string& message, const VRK::ScriptPosition& position)
{
    out_ << (position.file.empty() ? std::string("vrk") : position.file.str());
    if (position.isKnown()) {
        out_ << ':' << position.line;
        if (position.column > 0)
            out_ << ':' << position.column;
    }
    out_ << ": error: " << VRK::PrintableText::escape(message) << '\n';
    if (position.isKnown() && !position.file.empty())
        quote(position);
    out_.flush();
}

// A line of any length is quoted as a window around the column, so that a script of
// one long line does not flood the terminal.
void DiagnosticPrinter::quote(const VRK::ScriptPosition& position)
{
    const std::string line = sourceOf(position.file).getLine(static_cast<size_t>(position.line));
    if (line.empty())
        return;
    const size_t column = static_cast<size_t>(std::max(position.column, 0));
    const VRK::PrintableText::Excerpt excerpt = VRK::PrintableText::around(line, column);
    out_ << excerpt.text << '\n';
    if (column > 0)
        out_ << excerpt.caretIndent << "^\n";
}

const VRK::LineBuffer& DiagnosticPrinter::sourceOf(const std::string& filename)
{
    auto known = sources_.find(filename);
    if (known != sources_.end())
        return known->second;
    std::ifstream in(filename, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return sources_[filename] = VRK::LineBuffer(text);
}
