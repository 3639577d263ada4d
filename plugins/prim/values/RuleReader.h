#ifndef VRK_PLUGINS_PRIM_VALUES_RULEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_RULEREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <cstddef>

namespace Prim {

// A reader whose grammar is one rule, which the deriving reader sets once, or which it is
// made with. The rule's actions point into the reader and its editor, so a reader is
// never copied.
template <class ScannerT>
class RuleReader : public VRK::DataReader<ScannerT> {
public:
    RuleReader(const RuleReader&) = delete;
    RuleReader& operator=(const RuleReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

protected:
    explicit RuleReader(VRK::DataEditor* dataEditor);

    template <class ParserT>
    RuleReader(VRK::DataEditor* dataEditor, const ParserT& grammar) : RuleReader(dataEditor)
    {
        setGrammar(grammar);
    }

    template <class ParserT>
    void setGrammar(const ParserT& parser)
    {
        grammar_ = parser;
    }

private:
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class RuleReader<VRK::ScriptScanner>;
extern template class RuleReader<VRK::PlainScanner>;

} // namespace Prim

#endif
