#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEBANNEREDFUNCTOR_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEBANNEREDFUNCTOR_H

#include "base/graph/Functor.h"
#include "plugins/prim/files/FilenameEditor.h"

#include <cassert>
#include <memory>
#include <sstream>
#include <string>

namespace Prim {

// A functor whose box shows the file it works on: the filename held by the editor of
// its filename port, as the editor prints it. Base is the functor kind underneath
// (a plain functor, a container, a data carrier); its constructor takes the name, the
// description and the type. The names of the ports that make up the concrete file
// (work directory, suffix digits, step) are kept for the functors that resolve it.
template <class Base> class FilenameBanneredFunctor : public Base {
public:
    FilenameBanneredFunctor(const FilenameBanneredFunctor&) = default;
    FilenameBanneredFunctor& operator=(const FilenameBanneredFunctor&) = default;
    ~FilenameBanneredFunctor() override = default;

    bool hasBanner() const override { return true; }

    std::string getBanner() const override
    {
        std::ostringstream banner;
        getFilenameEditor().toStream(banner, 0);
        return banner.str();
    }

    const std::string& getFilenamePortName() const { return filenamePort_; }
    const std::string& getWorkdirPortName() const { return workdirPort_; }
    const std::string& getSuffixDigitsPortName() const { return suffixDigitsPort_; }
    const std::string& getStepPortName() const { return stepPort_; }

protected:
    // Ports that a functor does not have are named by the empty string.
    FilenameBanneredFunctor(const std::string& name, const std::string& description,
                            const std::string& filenamePort, const std::string& workdirPort,
                            const std::string& suffixDigitsPort, const std::string& stepPort,
                            const std::shared_ptr<VRK::BaseType>& type)
        : Base(name, description, type)
        , filenamePort_(filenamePort)
        , workdirPort_(workdirPort)
        , suffixDigitsPort_(suffixDigitsPort)
        , stepPort_(stepPort)
    {
        assert(!filenamePort.empty() && "! filenamePort.empty()");
    }

    FilenameEditor& getFilenameEditor() const
    {
        VRK::InputPort* filenameInput = this->getInputPort(filenamePort_);
        assert(filenameInput != 0 && "filenameInput != 0");
        auto* editor = dynamic_cast<FilenameEditor*>(filenameInput->getDataEditor());
        assert(editor != 0 && "editor != 0");
        return *editor;
    }

private:
    std::string filenamePort_;
    std::string workdirPort_;
    std::string suffixDigitsPort_;
    std::string stepPort_;
};

} // namespace Prim

#endif
