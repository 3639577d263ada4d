#ifndef VRK_BASE_PLUGIN_FACTORYFARM_H
#define VRK_BASE_PLUGIN_FACTORYFARM_H

#include "base/plugin/CloneFactory.h"
#include "base/plugin/CloneFactoryError.h"
#include "base/plugin/DataConverterName.h"
#include "base/plugin/Factory.h"
#include "base/plugin/FactoryError.h"
#include "base/plugin/FunctorParser.h"

#include <loki/Factory.h>

#include <cassert>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace VRK {

class BaseData;
class DataConverter;
class DataEditor;
class DataHolder;
class DataWriter;
class Functor;
class FunctorScheduler;
class ScriptReader;
class ScriptVerifier;
class ScriptWriter;
class WizardReader;
class WizardWriter;
template <class ScannerT>
class DataReader;

template <class T>
using NamedFactory = Factory<std::shared_ptr<T>, std::string, std::string, std::shared_ptr<T> (*)(),
                             FactoryError>;

using FunctorFactory = NamedFactory<Functor>;
using FunctorCloneFactory = CloneFactory<std::shared_ptr<Functor>, Functor,
                                         std::shared_ptr<Functor> (*)(const Functor&), FactoryError>;
using DataCloneFactory =
    Loki::CloneFactory<BaseData, BaseData* (*)(const BaseData*), CloneFactoryError>;
using DataHolderCloneFactory =
    CloneFactory<std::shared_ptr<DataHolder>, DataHolder,
                 std::shared_ptr<DataHolder> (*)(const DataHolder&), FactoryError>;
using FunctorSchedulerCloneFactory =
    Loki::CloneFactory<FunctorScheduler, FunctorScheduler* (*)(const FunctorScheduler*),
                       CloneFactoryError>;
using FunctorSchedulerFactory = NamedFactory<FunctorScheduler>;
using ScriptVerifierFactory = NamedFactory<ScriptVerifier>;
// Script readers and writers are keyed by file extension (".vrk").
using ScriptReaderFactory = NamedFactory<ScriptReader>;
using ScriptWriterFactory = NamedFactory<ScriptWriter>;
using WizardReaderFactory = NamedFactory<WizardReader>;
using WizardWriterFactory = NamedFactory<WizardWriter>;
using DataWriterFactory = Factory<DataWriter*, std::string, std::string,
                                  DataWriter* (*)(const DataEditor*), FactoryError>;
using DataConverterFactory = Factory<std::shared_ptr<DataConverter>, DataConverterName,
                                     std::string, std::shared_ptr<DataConverter> (*)(), FactoryError>;
// Readers of one scanner kind, keyed by type name.
template <class ScannerT>
using DataReaderFactory = Factory<DataReader<ScannerT>*, std::string, std::string,
                                  DataReader<ScannerT>* (*)(DataEditor*), FactoryError>;

// Every registry of the process: what plugins register and the host creates by name.
class FactoryFarm {
public:
    FactoryFarm();

    std::shared_ptr<FunctorFactory> getFunctorFactory() const { return functors_; }
    std::shared_ptr<FunctorParser> getFunctorParser() const { return functorParser_; }
    std::shared_ptr<FunctorCloneFactory> getFunctorCloneFactory() const { return functorClones_; }
    std::shared_ptr<DataCloneFactory> getDataCloneFactory() const { return dataClones_; }
    std::shared_ptr<DataHolderCloneFactory> getDataHolderCloneFactory() const
    {
        return dataHolderClones_;
    }
    std::shared_ptr<FunctorSchedulerCloneFactory> getFunctorSchedulerCloneFactory() const
    {
        return schedulerClones_;
    }
    std::shared_ptr<FunctorSchedulerFactory> getFunctorSchedulerFactory() const
    {
        return schedulers_;
    }
    std::shared_ptr<ScriptVerifierFactory> getScriptVerifierFactory() const { return verifiers_; }
    std::shared_ptr<ScriptReaderFactory> getScriptReaderFactory() const { return scriptReaders_; }
    std::shared_ptr<WizardReaderFactory> getWizardReaderFactory() const { return wizardReaders_; }
    std::shared_ptr<ScriptWriterFactory> getScriptWriterFactory() const { return scriptWriters_; }
    std::shared_ptr<WizardWriterFactory> getWizardWriterFactory() const { return wizardWriters_; }
    std::shared_ptr<DataWriterFactory> getDataWriterFactory() const { return dataWriters_; }
    std::shared_ptr<DataConverterFactory> getDataConverterFactory() const { return converters_; }

    // The reader factory of a scanner, created on the first request for its name.
    template <class ScannerT>
    std::shared_ptr<DataReaderFactory<ScannerT>> getDataReaderFactory(const std::string& scanner)
    {
        std::lock_guard<std::mutex> lock(readersMutex_);
        auto i = dataReaders_.find(scanner);
        if (i != dataReaders_.end()) {
            assert(i->second != 0 && "i->second != 0");
            return std::static_pointer_cast<DataReaderFactory<ScannerT>>(i->second);
        }
        auto dataReaderFactory = std::make_shared<DataReaderFactory<ScannerT>>();
        assert(dataReaderFactory != 0 && "dataReaderFactory != 0");
        dataReaders_[scanner] = dataReaderFactory;
        logReaderFactoryCreated(scanner);
        return dataReaderFactory;
    }
    bool hasDataReaderFactory(const std::string& scanner) const;

private:
    static void logReaderFactoryCreated(const std::string& scanner);

    std::shared_ptr<FunctorFactory> functors_;
    std::shared_ptr<FunctorParser> functorParser_;
    std::shared_ptr<FunctorCloneFactory> functorClones_;
    std::shared_ptr<DataCloneFactory> dataClones_;
    std::shared_ptr<DataHolderCloneFactory> dataHolderClones_;
    std::shared_ptr<FunctorSchedulerCloneFactory> schedulerClones_;
    std::shared_ptr<FunctorSchedulerFactory> schedulers_;
    std::shared_ptr<ScriptVerifierFactory> verifiers_;
    std::shared_ptr<ScriptReaderFactory> scriptReaders_;
    std::shared_ptr<WizardReaderFactory> wizardReaders_;
    std::shared_ptr<ScriptWriterFactory> scriptWriters_;
    std::shared_ptr<WizardWriterFactory> wizardWriters_;
    std::shared_ptr<DataWriterFactory> dataWriters_;
    std::shared_ptr<DataConverterFactory> converters_;
    mutable std::mutex readersMutex_;
    std::map<std::string, std::shared_ptr<void>> dataReaders_;
};

} // namespace VRK

#endif
