#ifndef VRK_BASE_PARSE_PARSEERROR_H
#define VRK_BASE_PARSE_PARSEERROR_H

#include "base/error/Exception.h"

#include <boost/spirit/include/classic_position_iterator.hpp>

#include <string>

namespace VRK {

// A text that does not read; carries the place in the text when it is known.
class ParseError : public Exception {
public:
    using Position = boost::spirit::classic::file_position_base<std::string>;

    explicit ParseError(const std::string& message);
    ParseError(const std::string& message, const Position& position);

    const char* getName() const override { return "ParseError"; }
    bool hasPosition() const { return hasPosition_; }
    const Position& getPosition() const { return position_; }

private:
    Position position_;
    bool hasPosition_;
};

} // namespace VRK

#endif
