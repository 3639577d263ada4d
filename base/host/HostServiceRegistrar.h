#ifndef VRK_BASE_HOST_HOSTSERVICEREGISTRAR_H
#define VRK_BASE_HOST_HOSTSERVICEREGISTRAR_H

#include "base/plugin/FactoryFarm.h"
#include "base/plugin/ServiceCreators.h"
#include "base/run/FunctorScheduler.h"
#include "base/script/ScriptReader.h"
#include "base/script/ScriptVerifier.h"
#include "base/script/ScriptWriter.h"
#include "base/script/WizardReader.h"
#include "base/script/WizardWriter.h"

#include <string>
#include <typeinfo>

namespace VRK {

// Registers the host's services that a farm lacks, quietly: an entry that a plugin made
// already stays as it is. Called with the services by HostServices::registerEach.
class HostServiceRegistrar {
public:
    explicit HostServiceRegistrar(FactoryFarm& farm) : farm_(farm) {}

    template <class T>
    void registerFunctorScheduler(const std::string& name, const std::string& group)
    {
        addMissing(*farm_.getFunctorSchedulerFactory(), name, group,
                   &ServiceCreators::create<FunctorScheduler, T>);
        // A class registered already keeps its cloner.
        farm_.getFunctorSchedulerCloneFactory()->Register(
            typeid(T), &ServiceCreators::clone<FunctorScheduler, T>);
    }

    template <class T>
    void registerScriptVerifier(const std::string& name, const std::string& group)
    {
        addMissing(*farm_.getScriptVerifierFactory(), name, group,
                   &ServiceCreators::create<ScriptVerifier, T>);
    }

    template <class T>
    void registerWizardReader(const std::string& name, const std::string& group)
    {
        addMissing(*farm_.getWizardReaderFactory(), name, group,
                   &ServiceCreators::create<WizardReader, T>);
    }

    template <class T>
    void registerWizardWriter(const std::string& name, const std::string& group)
    {
        addMissing(*farm_.getWizardWriterFactory(), name, group,
                   &ServiceCreators::create<WizardWriter, T>);
    }

    // Script readers and writers are found by file extension, not by name.
    template <class T>
    void registerScriptReader(const std::string&, const std::string& group)
    {
        for (const auto& extension : T::FileExtensions)
            addMissing(*farm_.getScriptReaderFactory(), extension, group,
                       &ServiceCreators::create<ScriptReader, T>);
    }

    template <class T>
    void registerScriptWriter(const std::string&, const std::string& group)
    {
        for (const auto& extension : T::FileExtensions)
            addMissing(*farm_.getScriptWriterFactory(), extension, group,
                       &ServiceCreators::create<ScriptWriter, T>);
    }

private:
    template <class FactoryT, class Creator>
    static void addMissing(FactoryT& factory, const std::string& key, const std::string& group,
                           Creator creator)
    {
        if (!factory.isRegistered(key))
            factory.register_(group, key, creator);
    }

    FactoryFarm& farm_;
};

} // namespace VRK

#endif
