#include "plugins/maps/CalculateCategoricalMap2Functor.h"
#include "plugins/maps/CalculateCategoricalMapFunctor.h"
#include "plugins/maps/CalculateLookupTable2Functor.h"
#include "plugins/maps/CalculateLookupTableFunctor.h"
#include "plugins/maps/CalculateMap2Functor.h"
#include "plugins/maps/CalculateMapFunctor.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"

#include "tests/support/PrimRegistration.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The formula that the functor's "expression" editor prepares when the script gives none.
std::string preparedDefault(const VRK::Functor& functor)
{
    auto* editor = dynamic_cast<Prim::ImageExpressionEditor*>(
        functor.getInputPort("expression")->getDataEditor());
    EXPECT_NE(editor, nullptr) << functor.getName();
    if (!editor)
        return std::string();
    editor->prepare();
    return editor->getImageExpressionAsString();
}

// The default of a fresh functor and of its copy, as a loop's passes make.
template <class FunctorT>
void expectDefault(const std::string& formula)
{
    FunctorT functor;
    const FunctorT copy(functor);
    EXPECT_EQ(preparedDefault(copy), formula) << functor.getName();
    EXPECT_EQ(preparedDefault(functor), formula) << functor.getName();
}

} // namespace

// Each calculation, given no formula, reads the first map or table it names, or the one
// of its own input.
TEST(CalculationDefault, EachCalculationReadsItsFirstMapOrTable)
{
    VRK::Testing::registerPrimOnce();
    expectDefault<Maps::CalculateMap>("i1");
    expectDefault<Maps::CalculateCategoricalMap>("i1");
    expectDefault<Maps::CalculateMap2>("#image");
    expectDefault<Maps::CalculateCategoricalMap2>("#image");
    expectDefault<Maps::CalculateLookupTable>("t1[line]");
    expectDefault<Maps::CalculateLookupTable2>("%table[line]");
}
