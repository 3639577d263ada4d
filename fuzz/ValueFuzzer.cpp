#include "base/data/DataEditor.h"
#include "base/parse/ValueParser.h"
#include "fuzz/FuzzSetup.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include <iterator>
#include <memory>

namespace {

template <class EditorT>
std::unique_ptr<VRK::DataEditor> make()
{
    return std::make_unique<EditorT>();
}

// Every type of Prim with a reader of typed-in values, by the name it is registered under.
const std::pair<const char*, std::unique_ptr<VRK::DataEditor> (*)()> Types[] = {
    {"Bool", make<Prim::BoolEditor>},
    {"Double", make<Prim::DoubleEditor>},
    {"Folder", make<Prim::FolderEditor>},
    {"ImageExpression", make<Prim::ImageExpressionEditor>},
    {"Int", make<Prim::IntEditor>},
    {"IntSet", make<Prim::IntSetEditor>},
    {"LogTag", make<Prim::LogTagEditor>},
    {"Name", make<Prim::NameEditor>},
    {"NonNegativeInt", make<Prim::NonNegativeIntEditor>},
    {"Path", make<Prim::PathEditor>},
    {"Percent", make<Prim::PercentEditor>},
    {"PositiveInt", make<Prim::PositiveIntEditor>},
    {"String", make<Prim::StringEditor>},
};

} // namespace

// The first byte picks the type; the rest is read as "--set" and parameter files give a
// value, and a value read is packed into the type's data as a run would.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fuzz::setUpOnce();
    if (size == 0)
        return 0;
    const auto& type = Types[data[0] % std::size(Types)];
    const std::string typeName = type.first;
    std::unique_ptr<VRK::DataEditor> editor = type.second();
    Fuzz::acceptedBy([&] {
        VRK::ValueParser::read(editor.get(), typeName, Fuzz::textOf(data + 1, size - 1));
        editor->packData();
    });
    return 0;
}
