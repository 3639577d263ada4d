#ifndef VRK_BASE_PARSE_TRANSDUCEDASSERTIVEPARSER_H
#define VRK_BASE_PARSE_TRANSDUCEDASSERTIVEPARSER_H

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"
#include "base/parse/PlainTextOrigin.h"
#include "base/parse/ScriptTextIterator.h"

#include <boost/spirit/include/classic_core.hpp>
#include <boost/spirit/include/classic_position_iterator.hpp>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace VRK {
namespace Spirit {

namespace detail {

// Where an iterator stands in its text, in the terms of a ParseError.
template <class BaseIteratorT, class PositionT, class SelfT>
ParseError::Position positionOf(
    const boost::spirit::classic::position_iterator<BaseIteratorT, PositionT, SelfT>& where)
{
    const PositionT& position = where.get_position();
    return ParseError::Position(position.file, position.line, position.column);
}

inline ParseError::Position positionOf(const ScriptTextIterator& where)
{
    const ScriptFilePosition position = where.get_position();
    return ParseError::Position(position.file, position.line, position.column);
}

inline ParseError::Position positionOf(const char* where)
{
    return PlainTextOrigin::positionOf(where);
}

// Only the plain scanner needs its text's start marked (see PlainTextOrigin); a
// position iterator carries its own position.
template <class IteratorT>
void markOrigin(std::optional<PlainTextOrigin>&, const IteratorT&)
{
}

inline void markOrigin(std::optional<PlainTextOrigin>& origin, const char* start)
{
    origin.emplace(start);
}

} // namespace detail

// A parser that must match: wraps the grammar of one value together with the sentence
// that says what was expected there. Both failures of a value end up as a ParseError
// located in the text:
// - the subject does not match: the expectation message, at the place where the value
//   was expected (after skipping white space and comments);
// - an action of the subject throws a VRK::Exception (an editor refusing the value):
//   that exception's message, at the place where the value began.
// A ParseError from a nested assertive parser passes through unchanged, so the
// innermost expectation is the one reported.
template <class SubjectT>
struct transduced_assertive_parser
    : public boost::spirit::classic::unary<
          SubjectT, boost::spirit::classic::parser<transduced_assertive_parser<SubjectT>>> {
    using self_t = transduced_assertive_parser<SubjectT>;
    using base_t =
        boost::spirit::classic::unary<SubjectT, boost::spirit::classic::parser<self_t>>;
    using parser_category_t = boost::spirit::classic::unary_parser_category;

    // A literal message is pointed at: number readers make their parser anew for every
    // value they read.
    transduced_assertive_parser(const SubjectT& subject, const char* message)
        : base_t(subject), message_(message)
    {
    }
    transduced_assertive_parser(const SubjectT& subject, const std::string& message)
        : base_t(subject), kept_(std::make_shared<const std::string>(message)), message_(*kept_)
    {
    }

    template <class ScannerT>
    struct result {
        using type = typename boost::spirit::classic::parser_result<SubjectT, ScannerT>::type;
    };

    template <class ScannerT>
    typename boost::spirit::classic::parser_result<self_t, ScannerT>::type
    parse(const ScannerT& scan) const
    {
        std::optional<PlainTextOrigin> origin;
        detail::markOrigin(origin, scan.first);
        scan.skip(scan);
        // The place is turned into a line and a column only for an error: counting the
        // lines of a plain text at every element of a long value would take the square
        // of its length.
        const auto entry = scan.first;
        auto hit = parseSubject(scan, entry);
        if (!hit)
            raiseAt(std::string(message_), entry);
        return hit;
    }

    std::string getMessage() const { return std::string(message_); }

private:
    template <class ScannerT, class IteratorT>
    typename boost::spirit::classic::parser_result<SubjectT, ScannerT>::type
    parseSubject(const ScannerT& scan, const IteratorT& entry) const
    {
        try {
            return this->subject().parse(scan);
        } catch (const ParseError&) {
            throw;
        } catch (const Exception& refusal) {
            raiseAt(refusal.getMessage(), entry);
        }
    }

    template <class IteratorT>
    [[noreturn]] static void raiseAt(const std::string& message, const IteratorT& where)
    {
        ExceptionUtils::raise(ParseError(message, detail::positionOf(where)));
    }

    // A message that is no literal, shared by the copies of the parser.
    std::shared_ptr<const std::string> kept_;
    std::string_view message_;
};

// transduced_assertive_p(str_p(".yes") | ".no", "Expecting a truth value.")
template <class T, class MessageT>
transduced_assertive_parser<typename boost::spirit::classic::as_parser<T>::type>
transduced_assertive_p(const T& subject, const MessageT& message)
{
    using subject_t = typename boost::spirit::classic::as_parser<T>::type;
    return transduced_assertive_parser<subject_t>(
        boost::spirit::classic::as_parser<T>::convert(subject), message);
}

} // namespace Spirit
} // namespace VRK

#endif
