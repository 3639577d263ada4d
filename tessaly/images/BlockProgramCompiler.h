#ifndef VRK_TESSALY_IMAGES_BLOCKPROGRAMCOMPILER_H
#define VRK_TESSALY_IMAGES_BLOCKPROGRAMCOMPILER_H

#include "tessaly/images/BlockProgram.h"
#include "tessaly/images/SubtreeFacts.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace Tessaly {

class TopLevelImageExpression;

// Turns a formula's tree into a BlockProgram. A subtree that needs no cell becomes a
// scalar; `if` and `?` become selects over both branches when neither can abort or
// draw random numbers (so that working out the branch not taken changes nothing), an
// `if` on a comparison or logical operator in the same pass as its condition;
// window statistics over a window fixed for the whole map become focal steps; every
// other node without a block form is evaluated cell by cell over the block.
// The program refers to the tree's nodes, which must outlive it. Compiling takes time
// proportional to the number of nodes, on a stack as deep as the formula's nesting.
class BlockProgramCompiler {
public:
    // Makes the step of an if whose condition is worked out in the same pass.
    using SelectMaker = BlockStepPtr (*)(const std::array<Operand, 4>&, int);
    // Makes the step of a binary operator.
    using BinaryMaker = BlockStepPtr (*)(Operand, Operand, int);

    // `checkpoint`, when set, is called every few thousand nodes; what it throws ends
    // the compilation.
    static std::unique_ptr<BlockProgram> compile(const TopLevelImageExpression& formula,
                                                 const std::function<void()>& checkpoint = {});

private:
    BlockProgramCompiler(const TopLevelImageExpression& formula,
                         const std::function<void()>& checkpoint);

    bool findFusedLeaf(const ImageExpression& node, FusedFormula::Leaf& leaf);
    Operand compileNode(const ImageExpression& node);
    Operand compileCellNode(const ImageExpression& node);
    BinaryMaker linkMaker(const ImageExpression& node) const;
    Operand compileChain(const ImageExpression& top);
    Operand compileSelect(const ImageExpression& node);
    Operand compileSelectBy(const ImageExpression& node, SelectMaker make);
    Operand compileWindow(const ImageExpression& node);
    Operand fallBack(const ImageExpression& node);
    int loadImage(int image);
    Operand newRegister(int& slot);
    void release(Operand operand);

    SubtreeFacts facts_;
    const std::function<void()>& checkpoint_;
    size_t compiled_ = 0;
    std::unique_ptr<BlockProgram> program_ = std::make_unique<BlockProgram>();
    std::map<int, int> imageRegisters_;
    std::set<int> imageSlots_;
    std::vector<int> freeRegisters_;
    int imageCount_;
};

} // namespace Tessaly

#endif
