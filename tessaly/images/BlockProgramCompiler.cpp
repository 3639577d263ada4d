#include "tessaly/images/BlockProgramCompiler.h"

#include "tessaly/images/ArithmeticSteps.h"
#include "tessaly/images/CellSteps.h"
#include "tessaly/images/CompoundNodes.h"
#include "tessaly/images/FallbackStep.h"
#include "tessaly/images/FocalStep.h"
#include "tessaly/images/FunctionNodes.h"
#include "tessaly/images/LeafNodes.h"
#include "tessaly/images/NeighborhoodQuaternaryExpression.h"
#include "tessaly/images/TableNodes.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <array>
#include <cassert>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace Tessaly {

namespace {

// Links of a chain compiled between two calls of the checkpoint.
constexpr size_t LinksPerCheckpoint = 4096;

using UnaryMaker = BlockStepPtr (*)(Operand, int);
using BinaryMaker = BlockProgramCompiler::BinaryMaker;

template <class Op>
std::pair<std::string, UnaryMaker> unary()
{
    return {Op::Name, [](Operand operand, int result) -> BlockStepPtr {
                return std::make_unique<UnaryStep<Op>>(operand, result);
            }};
}

template <class Op>
std::pair<std::string, BinaryMaker> binary()
{
    return {Op::Name, [](Operand left, Operand right, int result) -> BlockStepPtr {
                return std::make_unique<BinaryStep<Op>>(left, right, result);
            }};
}

template <class Op>
std::pair<std::string, BlockProgramCompiler::SelectMaker> selectBy()
{
    return {Op::Name, [](const std::array<Operand, 4>& operands, int result) -> BlockStepPtr {
                return std::make_unique<QuaternaryStep<Ops::SelectBy<Op>>>(operands, result);
            }};
}

template <class Op>
std::pair<std::string, TableLookupStep::Lookup> lookup()
{
    return {Op::Name, Op::Lookup};
}

const std::map<std::string, UnaryMaker>& unaryMakers()
{
    using namespace Ops;
    static const std::map<std::string, UnaryMaker> makers = {
        unary<UnaryMinus>(), unary<BooleanNot>(), unary<SquaredRoot>(), unary<Abs>(),  unary<Exp>(),
        unary<Ceil>(),       unary<Floor>(),      unary<Round>(),       unary<Sin>(),  unary<Cos>(),
        unary<Tan>(),        unary<Asin>(),       unary<Acos>(),        unary<Atan>(), unary<Ln>(),
        unary<Log>(),        unary<Signal>()};
    return makers;
}

const std::map<std::string, BinaryMaker>& binaryMakers()
{
    using namespace Ops;
    static const std::map<std::string, BinaryMaker> makers = {
        binary<BooleanOr>(),   binary<BooleanAnd>(),
        binary<Equal>(),       binary<NotEqual>(),
        binary<LessThan>(),    binary<LessThanEqual>(),
        binary<GreaterThan>(), binary<GreaterThanEqual>(),
        binary<Plus>(),        binary<Minus>(),
        binary<Times>(),       binary<Divide>(),
        binary<Mod>(),         binary<Pow>(),
        binary<Maximum>(),     binary<Minimum>()};
    return makers;
}

// The conditions that an if takes in the same pass as its select.
const std::map<std::string, BlockProgramCompiler::SelectMaker>& selectMakers()
{
    using namespace Ops;
    static const std::map<std::string, BlockProgramCompiler::SelectMaker> makers = {
        selectBy<BooleanOr>(),   selectBy<BooleanAnd>(),      selectBy<Equal>(),
        selectBy<NotEqual>(),    selectBy<LessThan>(),        selectBy<LessThanEqual>(),
        selectBy<GreaterThan>(), selectBy<GreaterThanEqual>()};
    return makers;
}

const std::map<std::string, TableLookupStep::Lookup>& tableLookups()
{
    using namespace Ops;
    static const std::map<std::string, TableLookupStep::Lookup> lookups = {
        lookup<TableValue>(),           lookup<TableEqualLowerBoundValue>(),
        lookup<TableLowerBoundValue>(), lookup<TableEqualUpperBoundValue>(),
        lookup<TableUpperBoundValue>(), lookup<TableClosestValue>(),
        lookup<TableInterpoledValue>(), lookup<TableHasKey>()};
    return lookups;
}

const std::map<std::string, FocalStep::Statistic>& focalStatistics()
{
    using S = FocalStep::Statistic;
    static const std::map<std::string, S> statistics = {{"NeighborhoodSum", S::Sum},
                                                        {"NeighborhoodAverage", S::Average},
                                                        {"NeighborhoodCount", S::Count},
                                                        {"NeighborhoodMin", S::Min},
                                                        {"NeighborhoodMax", S::Max}};
    return statistics;
}

bool isNamed(const ImageExpression& node, const char* name)
{
    return std::strcmp(node.getName(), name) == 0;
}

int indexOf(const ImageExpression& node)
{
    const auto* indexed = dynamic_cast<const IndexedExpression*>(&node);
    assert(indexed && "an indexed node");
    return indexed->getIndex();
}

BlockStepPtr catchSelect(Operand guarded, Operand fallback, int result)
{
    return std::make_unique<BinaryStep<Ops::CatchSelect>>(guarded, fallback, result);
}

} // namespace

BlockProgramCompiler::BlockProgramCompiler(const TopLevelImageExpression& formula,
                                           const std::function<void()>& checkpoint)
    : facts_(formula.getRoot(), checkpoint), checkpoint_(checkpoint),
      imageCount_(formula.getDictionary().getCount(EntityKind::Image))
{
}

std::unique_ptr<BlockProgram> BlockProgramCompiler::compile(const TopLevelImageExpression& formula,
                                                            const std::function<void()>& checkpoint)
{
    assert(formula.isCompiled() && "formula.isCompiled()");
    BlockProgramCompiler compiler(formula, checkpoint);
    compiler.program_->setFused(FusedFormula::match(
        formula.getRoot(), [&compiler](const ImageExpression& node, FusedFormula::Leaf& leaf) {
            return compiler.findFusedLeaf(node, leaf);
        }));
    compiler.program_->setResult(compiler.compileNode(formula.getRoot()));
    return std::move(compiler.program_);
}

bool BlockProgramCompiler::findFusedLeaf(const ImageExpression& node, FusedFormula::Leaf& leaf)
{
    if (isNamed(node, "ImageValue")) {
        leaf.image = indexOf(node);
        return true;
    }
    if (facts_.variesByCell(node))
        return false;
    leaf.scalar = compileNode(node).slot;
    return true;
}

Operand BlockProgramCompiler::compileNode(const ImageExpression& node)
{
    if (facts_.variesByCell(node))
        return compileCellNode(node);
    if (isNamed(node, "Value"))
        return {true, program_->addConstant(
                          static_cast<const Nodes::Value&>(node).getValue())};
    return {true, program_->addScalar(node)};
}

Operand BlockProgramCompiler::compileCellNode(const ImageExpression& node)
{
    const std::string name = node.getName();
    int slot;
    if (name == "ImageValue")
        return {false, loadImage(indexOf(node))};
    if (name == "IsNull" || name == "Line" || name == "Column") {
        const Operand result = newRegister(slot);
        if (name == "IsNull")
            program_->addStep(std::make_unique<IsNullStep>(loadImage(indexOf(node)), slot));
        else
            program_->addStep(std::make_unique<CellPlaceStep>(name == "Column", slot));
        return result;
    }
    if (linkMaker(node))
        return compileChain(node);
    // A catch that is no link holds abort or rand in its fallback, which must run only
    // where the guarded value is null.
    if (name == "Catch")
        return fallBack(node);
    if (name == "IfThenElse")
        return compileSelect(node);
    if (dynamic_cast<const NeighborhoodQuaternaryExpression*>(&node))
        return compileWindow(node);
    if (const auto unary = unaryMakers().find(name); unary != unaryMakers().end()) {
        const Operand operand = compileNode(node.getChild(0));
        const Operand result = newRegister(slot);
        program_->addStep(unary->second(operand, slot));
        release(operand);
        return result;
    }
    if (const auto table = tableLookups().find(name); table != tableLookups().end()) {
        const Operand key = compileNode(node.getChild(0));
        const Operand result = newRegister(slot);
        const int index = static_cast<const TableExpression&>(node).getTable();
        program_->addStep(std::make_unique<TableLookupStep>(index, table->second, key, slot));
        release(key);
        return result;
    }
    if (name == "ImageValue2") {
        const Operand line = compileNode(node.getChild(0));
        const Operand column = compileNode(node.getChild(1));
        const Operand result = newRegister(slot);
        const int image = static_cast<const Nodes::ImageValue2&>(node).getImage();
        program_->addStep(std::make_unique<ImageCellStep>(image, line, column, slot));
        release(line);
        release(column);
        return result;
    }
    return fallBack(node);
}

// A binary operator, or a catch whose fallback may be worked out where it is not
// needed, compiles to one step on its two operands: such a node links a chain.
BlockProgramCompiler::BinaryMaker BlockProgramCompiler::linkMaker(const ImageExpression& node) const
{
    if (!facts_.variesByCell(node))
        return nullptr;
    if (const auto binary = binaryMakers().find(node.getName()); binary != binaryMakers().end())
        return binary->second;
    if (isNamed(node, "Catch") && !facts_.abortsOrDraws(node.getChild(1)))
        return catchSelect;
    return nullptr;
}

// A chain (i1 + 1 + ... + 1, one node deeper per term) is compiled down its left side
// in a loop rather than by recursion, and the registers of each link's operands are
// given back once the link has read them, so that any length of chain compiles in time
// proportional to it, on a bounded stack, into a few registers.
Operand BlockProgramCompiler::compileChain(const ImageExpression& top)
{
    std::vector<const ImageExpression*> links{&top};
    while (linkMaker(links.back()->getChild(0)))
        links.push_back(&links.back()->getChild(0));
    Operand left = compileNode(links.back()->getChild(0));
    for (auto link = links.rbegin(); link != links.rend(); ++link) {
        if (checkpoint_ && ++compiled_ % LinksPerCheckpoint == 0)
            checkpoint_();
        const Operand right = compileNode((*link)->getChild(1));
        int slot;
        const Operand result = newRegister(slot);
        program_->addStep(linkMaker(**link)(left, right, slot));
        release(left);
        release(right);
        left = result;
    }
    return left;
}

Operand BlockProgramCompiler::compileSelect(const ImageExpression& node)
{
    if (facts_.abortsOrDraws(node.getChild(1)) || facts_.abortsOrDraws(node.getChild(2)))
        return fallBack(node);
    const auto fused = selectMakers().find(node.getChild(0).getName());
    if (fused != selectMakers().end())
        return compileSelectBy(node, fused->second);
    std::array<Operand, 3> operands;
    for (size_t i = 0; i < 3; ++i)
        operands[i] = compileNode(node.getChild(i));
    int slot;
    const Operand result = newRegister(slot);
    program_->addStep(std::make_unique<TernaryStep<Ops::Select>>(operands[0], operands[1],
                                                                 operands[2], slot));
    for (const Operand& operand : operands)
        release(operand);
    return result;
}

Operand BlockProgramCompiler::compileSelectBy(const ImageExpression& node, SelectMaker make)
{
    const ImageExpression& condition = node.getChild(0);
    const std::array<Operand, 4> operands = {
        compileNode(condition.getChild(0)), compileNode(condition.getChild(1)),
        compileNode(node.getChild(1)), compileNode(node.getChild(2))};
    int slot;
    const Operand result = newRegister(slot);
    program_->addStep(make(operands, slot));
    for (const Operand& operand : operands)
        release(operand);
    return result;
}

Operand BlockProgramCompiler::compileWindow(const ImageExpression& node)
{
    const auto statistic = focalStatistics().find(node.getName());
    if (statistic == focalStatistics().end())
        return fallBack(node);
    std::array<Operand, 4> window;
    for (size_t i = 0; i < 4; ++i)
        if (facts_.variesByCell(node.getChild(i)))
            return fallBack(node);
    for (size_t i = 0; i < 4; ++i)
        window[i] = compileNode(node.getChild(i));
    int slot;
    const Operand result = newRegister(slot);
    const int image = static_cast<const NeighborhoodQuaternaryExpression&>(node).getImage();
    const bool totals = statistic->second != FocalStep::Statistic::Min
                        && statistic->second != FocalStep::Statistic::Max;
    const int columns =
        totals ? program_->addFocalColumns(statistic->second == FocalStep::Statistic::Count) : -1;
    program_->addStep(std::make_unique<FocalStep>(statistic->second, image, window, columns, slot));
    return result;
}

Operand BlockProgramCompiler::fallBack(const ImageExpression& node)
{
    std::set<int> images;
    node.getImageDependencies(images);
    std::vector<std::pair<int, int>> loaded;
    for (int image : images)
        loaded.emplace_back(image, loadImage(image));
    int slot;
    const Operand result = newRegister(slot);
    program_->addStep(std::make_unique<FallbackStep>(node, std::move(loaded), imageCount_,
                                                     facts_.readsAroundCell(node), slot));
    return result;
}

int BlockProgramCompiler::loadImage(int image)
{
    const auto known = imageRegisters_.find(image);
    if (known != imageRegisters_.end())
        return known->second;
    const int slot = program_->addRegister();
    program_->addStep(std::make_unique<ImageLoadStep>(image, slot));
    imageRegisters_[image] = slot;
    imageSlots_.insert(slot);
    return slot;
}

// A register given back is taken again before a new one is added.
Operand BlockProgramCompiler::newRegister(int& slot)
{
    if (freeRegisters_.empty()) {
        slot = program_->addRegister();
    } else {
        slot = freeRegisters_.back();
        freeRegisters_.pop_back();
    }
    return {false, slot};
}

// Each node is compiled once and its result read by its parent alone, so a register
// that holds a result is free once the parent's step is added; an image's register is
// read by every mention of the image, and is kept.
void BlockProgramCompiler::release(Operand operand)
{
    if (!operand.scalar && !imageSlots_.count(operand.slot))
        freeRegisters_.push_back(operand.slot);
}

} // namespace Tessaly
