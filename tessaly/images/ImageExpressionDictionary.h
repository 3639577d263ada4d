#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONDICTIONARY_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONDICTIONARY_H

#include "tessaly/images/EntityKind.h"

#include <boost/spirit/include/classic_position_iterator.hpp>

#include <string>
#include <vector>

namespace Tessaly {

// The images, tables and values that a formula names, each kind numbered 1, 2, 3 ...
// in the order of first mention. A thing is named by number (i3, t1, v2) or by name
// (#landuse, %table, $rate); naming it again gives the index it already has. Each
// entry keeps the place where it was first named, for messages.
class ImageExpressionDictionary {
public:
    using Position = boost::spirit::classic::file_position;

    // Numbers start at 1: a number below refuses with an exception.
    int addImageId(int number, const Position& position);
    int addImageName(const std::string& name, const Position& position);
    int addTableId(int number, const Position& position);
    int addTableName(const std::string& name, const Position& position);
    int addVariableId(int number, const Position& position);
    int addVariableName(const std::string& name, const Position& position);

    int getCount(EntityKind kind) const { return int(entries(kind).size()); }
    // The key under which the entity is registered: "i3" (or "t3", "v3") for a number,
    // the bare name for a name.
    std::string getName(EntityKind kind, int index) const;
    // The number of an entity named by number (3 for "v3"), 0 for one named by name.
    // Indexes follow first mention; the numbers are what a modeller wrote, and those
    // of each kind must run 1, 2, 3 ... (checked where the formula's inputs are
    // gathered).
    int getNumber(EntityKind kind, int index) const;
    // As a formula writes it: "i3", "#landuse".
    std::string getSpelling(EntityKind kind, int index) const;
    const Position& getPosition(EntityKind kind, int index) const;

    std::string getImageName(int index) const { return getName(EntityKind::Image, index); }
    std::string getTableName(int index) const { return getName(EntityKind::Table, index); }
    std::string getVariableName(int index) const { return getName(EntityKind::Value, index); }

    // The prefixes of the spellings by number ("i") and by name ("#").
    static char getNumberPrefix(EntityKind kind);
    static char getNamePrefix(EntityKind kind);
    // "image", "table", "value".
    static const char* getKindWord(EntityKind kind);

private:
    struct Entry {
        bool named;
        std::string key;
        Position position;
    };

    int addNumber(EntityKind kind, int number, const Position& position);
    int add(EntityKind kind, Entry entry);
    const Entry& entryAt(EntityKind kind, int index) const;
    std::vector<Entry>& entries(EntityKind kind) { return entries_[int(kind)]; }
    const std::vector<Entry>& entries(EntityKind kind) const { return entries_[int(kind)]; }

    std::vector<Entry> entries_[3];
};

} // namespace Tessaly

#endif
