#ifndef VRK_PLUGINS_PRIM_REGISTRY_PRIMREGISTRAR_H
#define VRK_PLUGINS_PRIM_REGISTRY_PRIMREGISTRAR_H

#include "base/data/DataConverter.h"
#include "base/data/DataEditor.h"
#include "base/data/DataHolder.h"
#include "base/data/DataReader.h"
#include "base/data/DataWriter.h"
#include "base/graph/Functor.h"
#include "base/log/Logger.h"
#include "base/plugin/FactoryFarm.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/plugin/ServiceCreators.h"
#include "base/run/FunctorScheduler.h"
#include "base/script/ScriptReader.h"
#include "base/script/ScriptVerifier.h"
#include "base/script/ScriptWriter.h"
#include "base/script/WizardReader.h"
#include "base/script/WizardWriter.h"
#include "base/util/NameUtils.h"
#include "base/util/TypeNameUtils.h"

#include <cassert>
#include <memory>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

namespace Prim {

// The registration routines of every kind of entry. Each logs its progress at
// ".debug", never stops on a refusal, and returns whether every factory involved
// accepted the entry. Companion plugins register through them too.
class PrimRegistrar {
public:
    explicit PrimRegistrar(VRK::FactoryFarm& farm) : farm_(farm) {}

    template <class T>
    bool registerFunctor(const std::string& name, const std::string& group,
                         const std::vector<std::string>& aliases = {})
    {
        logBeing("Functor", name, group);
        if (!VRK::NameUtils::isValidName(name))
            return logResult("Functor", name, false);
        auto factory = farm_.getFunctorFactory();
        auto clones = farm_.getFunctorCloneFactory();
        assert(factory != 0 && clones != 0 && "functorFactory != 0");
        bool registered = factory->register_(group, name, &createFunctor<T>, aliases);
        registered = clones->Register(typeid(T), &cloneFunctor<T>) && registered;
        enterFunctorNames(name, aliases);
        return logResult("Functor", name, registered);
    }

    template <class T>
    bool registerFunctorScheduler(const std::string& name, const std::string& group)
    {
        logBeing("FunctorScheduler", name, group);
        if (!VRK::NameUtils::isValidName(name))
            return logResult("FunctorScheduler", name, false);
        bool registered = farm_.getFunctorSchedulerFactory()->register_(
            group, name, &VRK::ServiceCreators::create<VRK::FunctorScheduler, T>);
        registered = farm_.getFunctorSchedulerCloneFactory()->Register(
                         typeid(T), &VRK::ServiceCreators::clone<VRK::FunctorScheduler, T>)
                     && registered;
        return logResult("FunctorScheduler", name, registered);
    }

    template <class T>
    bool registerScriptVerifier(const std::string& name, const std::string& group)
    {
        return registerNamed("ScriptVerifier", farm_.getScriptVerifierFactory(), name, group,
                             &VRK::ServiceCreators::create<VRK::ScriptVerifier, T>);
    }

    template <class T>
    bool registerWizardReader(const std::string& name, const std::string& group)
    {
        return registerNamed("WizardReader", farm_.getWizardReaderFactory(), name, group,
                             &VRK::ServiceCreators::create<VRK::WizardReader, T>);
    }

    template <class T>
    bool registerWizardWriter(const std::string& name, const std::string& group)
    {
        return registerNamed("WizardWriter", farm_.getWizardWriterFactory(), name, group,
                             &VRK::ServiceCreators::create<VRK::WizardWriter, T>);
    }

    template <class T>
    bool registerScriptReader(const std::string& name, const std::string& group)
    {
        return registerPerExtension("ScriptReader", farm_.getScriptReaderFactory(), name, group,
                                    T::FileExtensions,
                                    &VRK::ServiceCreators::create<VRK::ScriptReader, T>);
    }

    template <class T>
    bool registerScriptWriter(const std::string& name, const std::string& group)
    {
        return registerPerExtension("ScriptWriter", farm_.getScriptWriterFactory(), name, group,
                                    T::FileExtensions,
                                    &VRK::ServiceCreators::create<VRK::ScriptWriter, T>);
    }

    template <class T>
    bool registerData()
    {
        return registerByType("Data", VRK::TypeNameUtils::getReadableName(typeid(T)), [&] {
            return farm_.getDataCloneFactory()->Register(typeid(T), &cloneData<T>);
        });
    }

    template <class T>
    bool registerDataHolder()
    {
        return registerByType("DataHolder", VRK::TypeNameUtils::getReadableName(typeid(T)), [&] {
            return farm_.getDataHolderCloneFactory()->Register(typeid(T), &cloneDataHolder<T>);
        });
    }

    template <class T, class ScannerT>
    bool registerDataReader(const std::string& name, const std::string& group,
                            const std::string& scanner)
    {
        logReaderBeing(name, group, scanner);
        if (!VRK::NameUtils::isValidName(name))
            return logResult("DataReader", name, false);
        auto factory = farm_.getDataReaderFactory<ScannerT>(scanner);
        bool registered = factory->register_(group, name, &createReader<T, ScannerT>);
        return logResult("DataReader", name, registered);
    }

    template <class T>
    bool registerDataWriter(const std::string& name, const std::string& group)
    {
        logBeing("DataWriter", name, group);
        if (!VRK::NameUtils::isValidName(name))
            return logResult("DataWriter", name, false);
        bool registered = farm_.getDataWriterFactory()->register_(group, name, &createWriter<T>);
        // A refused writer is reported with the reader's wording.
        return logResult(registered ? "DataWriter" : "DataReader", name, registered);
    }

    template <class T>
    bool registerDataConverter(const std::string& group, const std::string& source,
                               const std::string& target)
    {
        const VRK::DataConverterName converter(source, target);
        std::ostringstream name;
        name << converter;
        logBeing("DataConverter", name.str(), group);
        if (!VRK::NameUtils::isValidName(source) || !VRK::NameUtils::isValidName(target))
            return logResult("FunctorScheduler", name.str(), false);
        bool registered = farm_.getDataConverterFactory()->register_(
            group, converter, &VRK::ServiceCreators::create<VRK::DataConverter, T>);
        return logResult("DataConverter", name.str(), registered);
    }

    // The creators and cloners installed in the factories.
    template <class T>
    static std::shared_ptr<VRK::Functor> createFunctor()
    {
        assert(VRK::FactoryFarmManager::Instance().getFunctorFactory() != 0
               && "functorFactory != 0");
        std::shared_ptr<VRK::Functor> functor = std::make_shared<T>();
        assert(functor != 0 && "functor != 0");
        logInstantiated(*functor);
        return functor;
    }

private:
    template <class T>
    static std::shared_ptr<VRK::Functor> cloneFunctor(const VRK::Functor& model)
    {
        return std::make_shared<T>(dynamic_cast<const T&>(model));
    }
    template <class T>
    static VRK::BaseData* cloneData(const VRK::BaseData* model)
    {
        VRK::BaseData* data2 = new T(dynamic_cast<const T&>(*model));
        assert(data2 != 0 && "data2 != 0");
        return data2;
    }
    template <class T>
    static std::shared_ptr<VRK::DataHolder> cloneDataHolder(const VRK::DataHolder& model)
    {
        std::shared_ptr<VRK::DataHolder> clone = std::make_shared<T>(dynamic_cast<const T&>(model));
        assert(clone != 0 && "clone != 0");
        return clone;
    }
    template <class T, class ScannerT>
    static VRK::DataReader<ScannerT>* createReader(VRK::DataEditor* editor)
    {
        return new T(editor);
    }
    template <class T>
    static VRK::DataWriter* createWriter(const VRK::DataEditor* editor)
    {
        return new T(editor);
    }

    template <class FactoryT, class Creator>
    bool registerNamed(const char* kind, const std::shared_ptr<FactoryT>& factory,
                       const std::string& name, const std::string& group, Creator creator)
    {
        logBeing(kind, name, group);
        if (!VRK::NameUtils::isValidName(name))
            return logResult(kind, name, false);
        assert(factory != 0 && "factory != 0");
        return logResult(kind, name, factory->register_(group, name, creator));
    }

    template <class FactoryT, class Extensions, class Creator>
    bool registerPerExtension(const char* kind, const std::shared_ptr<FactoryT>& factory,
                              const std::string& name, const std::string& group,
                              const Extensions& extensions, Creator creator)
    {
        logBeing(kind, name, group);
        if (!VRK::NameUtils::isValidName(name))
            return logResult(kind, name, false);
        assert(factory != 0 && "factory != 0");
        size_t accepted = 0;
        for (const auto& extension : extensions)
            accepted += factory->register_(group, extension, creator) ? 1 : 0;
        if (accepted == extensions.size())
            return logResult(kind, name, true);
        logPartialFailure(kind, name);
        return false;
    }

    template <class Registration>
    bool registerByType(const char* kind, const std::string& typeName, Registration registration)
    {
        logLine(std::string(kind) + " \"" + typeName + "\" is being registered:");
        return logResult(kind, typeName, registration());
    }

    void enterFunctorNames(const std::string& name, const std::vector<std::string>& aliases);
    static void logBeing(const std::string& kind, const std::string& name,
                         const std::string& group);
    static void logReaderBeing(const std::string& name, const std::string& group,
                               const std::string& scanner);
    static bool logResult(const std::string& kind, const std::string& name, bool registered);
    static void logPartialFailure(const std::string& kind, const std::string& name);
    static void logInstantiated(const VRK::Functor& functor);
    static void logLine(const std::string& line);

    VRK::FactoryFarm& farm_;
};

} // namespace Prim

#endif
