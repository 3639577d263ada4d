#include "plugins/io/SaveTextFunctor.h"

#include "base/script/AtomicFileWriter.h"
#include "base/task/Task.h"
#include "plugins/io/TextFileUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringType.h"

#include <algorithm>
#include <functional>

namespace Io {

namespace {

// Large texts are written in slices, so that a cancellation is heard within one.
constexpr size_t SliceSize = 1 << 20;

void writeInSlices(std::ostream& out, const std::string& text)
{
    const VRK::Task* task = VRK::Task::getCurrentTask();
    for (size_t begin = 0; begin < text.size(); begin += SliceSize) {
        if (task)
            task->checkCancellation();
        out.write(text.data() + begin,
                  static_cast<std::streamsize>(std::min(SliceSize, text.size() - begin)));
    }
}

} // namespace

SaveText::SaveText()
    : Prim::FilenamedFunctor(
        "SaveText", "Write a string to a text file.", "filename", "workdir",
        TextFileUtils::verifierOf(&Prim::FilenamedFunctorVerifierAdapter::canWriteFile),
        "suffixDigits", "step", nullptr)
{
    addInputPort("text", "Text to write.", Prim::StringType::getInstance(), false);
    TextFileUtils::addFilePorts(*this, "Text file to write.");
}

SaveText::~SaveText() = default;

void SaveText::runImpl()
{
    const std::string& text = getInputPortValue<Prim::StringData>("text");
    const boost::filesystem::path file = TextFileUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireWritable(file);
    VRK::AtomicFileWriter::write(file, [&](std::ostream& out) { writeInSlices(out, text); });
}

} // namespace Io
