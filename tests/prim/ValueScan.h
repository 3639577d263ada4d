#ifndef VRK_TESTS_PRIM_VALUESCAN_H
#define VRK_TESTS_PRIM_VALUESCAN_H

#include "base/data/DataReader.h"
#include "base/parse/DefaultSkipGrammar.h"
#include "base/parse/ParseError.h"
#include "base/parse/PlainTextOrigin.h"
#include "base/parse/ScannerTypes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace VRK {
namespace Testing {

// A text under one of the two scanners that value readers are built for, so that one
// case can be run through both: what a reader consumed, and what it left.
template <class ScannerT>
class ValueScan;

template <>
class ValueScan<VRK::ScriptScanner> {
public:
    explicit ValueScan(const std::string& text)
        : chars_(text.begin(), text.end()),
          lines_(chars_.data(), chars_.data() + chars_.size(), fileName()),
          first_(chars_.data(), lines_), last_(chars_.data() + chars_.size(), lines_),
          scan_(first_, last_, Policies(Iteration(skip_)))
    {
    }

    const VRK::ScriptScanner& scanner() const { return scan_; }
    std::string rest() const { return std::string(first_.base(), last_.base()); }
    // Positions point at this name, which outlives them.
    static const char* fileName() { return "file.vrk"; }

private:
    using Iteration =
        boost::spirit::classic::skip_parser_iteration_policy<VRK::DefaultSkipGrammar>;
    using Policies = boost::spirit::classic::scanner_policies<Iteration>;

    std::vector<char> chars_;
    VRK::ScriptTextLines lines_;
    VRK::ScriptIterator first_;
    VRK::ScriptIterator last_;
    VRK::DefaultSkipGrammar skip_;
    VRK::ScriptScanner scan_;
};

template <>
class ValueScan<VRK::PlainScanner> {
public:
    explicit ValueScan(const std::string& text)
        : text_(text), origin_(text_.data()), first_(text_.data()),
          last_(first_ + text_.size()), scan_(first_, last_)
    {
    }

    const VRK::PlainScanner& scanner() const { return scan_; }
    std::string rest() const { return std::string(first_, last_); }
    static std::string fileName() { return ""; }

private:
    std::string text_;
    VRK::PlainTextOrigin origin_;
    const char* first_;
    const char* last_;
    VRK::PlainScanner scan_;
};

// Runs readers of the scanner ScannerT over texts.
template <class ScannerT>
class ValueReading {
public:
    // Reads `text` with a ReaderT built on `editor` (and `args`); returns what is left.
    template <template <class> class ReaderT, class... Args>
    static std::string read(VRK::DataEditor& editor, const std::string& text, Args... args)
    {
        ValueScan<ScannerT> scan(text);
        const ReaderT<ScannerT> reader(&editor, args...);
        reader.read(scan.scanner());
        return scan.rest();
    }

    // The ParseError that reading `text` raises; a failure of the test if none.
    template <template <class> class ReaderT, class... Args>
    static VRK::ParseError readError(VRK::DataEditor& editor, const std::string& text,
                                     Args... args)
    {
        try {
            read<ReaderT>(editor, text, args...);
        } catch (const VRK::ParseError& error) {
            return error;
        }
        ADD_FAILURE() << "\"" << text << "\" was read without error";
        return VRK::ParseError("");
    }

    // Checks a ParseError's message and its place on the first line of the text.
    static void expectError(const VRK::ParseError& error, const std::string& message,
                            int column)
    {
        EXPECT_EQ(error.getMessage(), message);
        ASSERT_TRUE(error.hasPosition()) << message;
        EXPECT_EQ(error.getPosition().file, ValueScan<ScannerT>::fileName()) << message;
        EXPECT_EQ(error.getPosition().line, 1) << message;
        EXPECT_EQ(error.getPosition().column, column) << message;
    }
};

} // namespace Testing
} // namespace VRK

#endif
