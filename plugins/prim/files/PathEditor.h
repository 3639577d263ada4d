#ifndef VRK_PLUGINS_PRIM_FILES_PATHEDITOR_H
#define VRK_PLUGINS_PRIM_FILES_PATHEDITOR_H

#include "base/data/DataEditor.h"

#include <boost/filesystem/path.hpp>

#include <string>

namespace Prim {

// Builds file paths, stored in forward-slash form.
class PathEditor : public VRK::DataEditor {
public:
    using path = boost::filesystem::path;

    PathEditor();
    PathEditor(const PathEditor&) = default;
    PathEditor& operator=(const PathEditor&) = default;
    ~PathEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setPath(std::string text);
    const path& getPath() const { return value_; }
    // The path relative to the current directory.
    path getRelativePath() const;

    // A path as a user may write it, in the form this system stores: a leading "//:"
    // dropped, back slashes turned into forward slashes. Filenames use it too.
    static std::string normalisePath(const std::string& text);
    // The text that normalisePath turns back into `path`, for writers: a path that is
    // empty or begins with "//:" itself gets the prefix that normalisation drops.
    static std::string denormalisePath(const std::string& path);

private:
    path value_;
};

} // namespace Prim

#endif
