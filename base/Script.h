#ifndef VRK_BASE_SCRIPT_H
#define VRK_BASE_SCRIPT_H

#include "base/FunctorContainer.h"
#include "base/LineBuffer.h"
#include "base/Propertiable.h"

#include <string>

namespace VRK {

class Functor;

// A model: the top container of functors, with the file it was read from.
class Script : public FunctorContainer, public Propertiable {
public:
    Script();
    ~Script() override;

    Script* getScript() override { return this; }

    const std::string& getFilename() const { return filename_; }
    void setFilename(const std::string& filename) { filename_ = filename; }
    // The source text, to quote lines in diagnostics.
    const LineBuffer& getSource() const { return source_; }
    void setSource(const std::string& text) { source_ = LineBuffer(text); }

    // Runs `functor` and, first, whatever it needs that has not produced its data yet,
    // so that its outputs exist (a work directory needed while preparing a file name).
    void runLight(Functor* functor);

    // The functor of the script with this alias, searched at every depth.
    Functor* findFunctorByAlias(const std::string& alias) const;

private:
    std::string filename_;
    LineBuffer source_;
};

} // namespace VRK

#endif
