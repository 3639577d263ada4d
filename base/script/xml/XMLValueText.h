#ifndef VRK_BASE_SCRIPT_XML_XMLVALUETEXT_H
#define VRK_BASE_SCRIPT_XML_XMLVALUETEXT_H

// Internal to the host library: plugins and applications do not include it.

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace VRK {

// The text an element holds, as the parser hands it over (entities replaced, line ends
// made line feeds, CDATA sections unwrapped), together with the way back from each of
// its characters to where it was spelled in the XML source: a value that spans lines or
// holds entities is then reported where its mistake stands.
class XMLValueText {
public:
    // `source` is the XML text that `element` was parsed from; it must outlive this.
    XMLValueText(const pugi::xml_node& element, const std::string& source);

    const std::string& getText() const { return text_; }
    // The offset in the source of the character at `offset` in the text.
    size_t getSourceOffset(size_t offset) const;

private:
    struct Piece {
        size_t textStart;
        size_t sourceStart;
        bool decodesEntities;
    };

    size_t entityLength(size_t at, size_t& end) const;

    const std::string& source_;
    std::string text_;
    std::vector<Piece> pieces_;
};

} // namespace VRK

#endif
