#include "tessaly/images/ImageExpressionDictionary.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"

#include <cassert>

namespace Tessaly {

int ImageExpressionDictionary::addImageId(int number, const Position& position)
{
    return addNumber(EntityKind::Image, number, position);
}

int ImageExpressionDictionary::addImageName(const std::string& name, const Position& position)
{
    return add(EntityKind::Image, {true, name, position});
}

int ImageExpressionDictionary::addTableId(int number, const Position& position)
{
    return addNumber(EntityKind::Table, number, position);
}

int ImageExpressionDictionary::addTableName(const std::string& name, const Position& position)
{
    return add(EntityKind::Table, {true, name, position});
}

int ImageExpressionDictionary::addVariableId(int number, const Position& position)
{
    return addNumber(EntityKind::Value, number, position);
}

int ImageExpressionDictionary::addVariableName(const std::string& name, const Position& position)
{
    return add(EntityKind::Value, {true, name, position});
}

int ImageExpressionDictionary::addNumber(EntityKind kind, int number, const Position& position)
{
    if (number < 1)
        VRK::ExceptionUtils::raise<VRK::Exception>(
            std::string("The ") + getKindWord(kind) + " number " + std::to_string(number)
            + " is not valid: numbers start at 1.");
    return add(kind, {false, getNumberPrefix(kind) + std::to_string(number), position});
}

int ImageExpressionDictionary::add(EntityKind kind, Entry entry)
{
    std::vector<Entry>& list = entries(kind);
    for (size_t i = 0; i < list.size(); ++i)
        if (list[i].named == entry.named && list[i].key == entry.key)
            return int(i) + 1;
    list.push_back(std::move(entry));
    return int(list.size());
}

const ImageExpressionDictionary::Entry& ImageExpressionDictionary::entryAt(EntityKind kind,
                                                                           int index) const
{
    assert(index >= 1 && index <= getCount(kind) && "index within the dictionary");
    return entries(kind)[size_t(index - 1)];
}

std::string ImageExpressionDictionary::getName(EntityKind kind, int index) const
{
    return entryAt(kind, index).key;
}

int ImageExpressionDictionary::getNumber(EntityKind kind, int index) const
{
    const Entry& entry = entryAt(kind, index);
    return entry.named ? 0 : std::stoi(entry.key.substr(1));
}

std::string ImageExpressionDictionary::getSpelling(EntityKind kind, int index) const
{
    const Entry& entry = entryAt(kind, index);
    return entry.named ? getNamePrefix(kind) + entry.key : entry.key;
}

const ImageExpressionDictionary::Position& ImageExpressionDictionary::getPosition(EntityKind kind,
                                                                                  int index) const
{
    return entryAt(kind, index).position;
}

char ImageExpressionDictionary::getNumberPrefix(EntityKind kind)
{
    return kind == EntityKind::Image ? 'i' : kind == EntityKind::Table ? 't' : 'v';
}

char ImageExpressionDictionary::getNamePrefix(EntityKind kind)
{
    return kind == EntityKind::Image ? '#' : kind == EntityKind::Table ? '%' : '$';
}

const char* ImageExpressionDictionary::getKindWord(EntityKind kind)
{
    return kind == EntityKind::Image ? "image" : kind == EntityKind::Table ? "table" : "value";
}

} // namespace Tessaly
