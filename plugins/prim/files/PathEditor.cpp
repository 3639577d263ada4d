#include "plugins/prim/files/PathEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/util/PathUtils.h"
#include "plugins/prim/files/PathType.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/PrimEditorUtils.h"

#include <algorithm>

namespace Prim {

namespace {

// What paths may begin with, dropped when they are set.
const std::string Prefix = "//:";

} // namespace

PathEditor::PathEditor()
    : VRK::DataEditor("PathEditor", "Editor for file paths", PathType::getInstance()),
      value_("path")
{
}

PathEditor::~PathEditor() = default;

void PathEditor::packData() { PrimEditorUtils::pack<PathData>(*this, value_); }

void PathEditor::unpackData(const VRK::BaseData& data)
{
    value_ = DataCast::as<PathData>(data).getValue();
}

void PathEditor::setPath(std::string text)
{
    if (text.empty())
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>("The path \"\" is not valid.");
    value_ = normalisePath(text);
}

PathEditor::path PathEditor::getRelativePath() const
{
    return VRK::Boost::PathUtils::getRelativePath(value_);
}

std::string PathEditor::normalisePath(const std::string& text)
{
    std::string normalised =
        text.compare(0, Prefix.size(), Prefix) == 0 ? text.substr(Prefix.size()) : text;
    std::replace(normalised.begin(), normalised.end(), '\\', '/');
    return normalised;
}

std::string PathEditor::denormalisePath(const std::string& path)
{
    const bool changedByNormalising = path.empty() || path.compare(0, Prefix.size(), Prefix) == 0;
    return changedByNormalising ? Prefix + path : path;
}

} // namespace Prim
