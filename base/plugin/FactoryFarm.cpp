#include "base/plugin/FactoryFarm.h"

#include "base/log/Logger.h"

#include <boost/spirit/include/classic_symbols.hpp>

#include <sstream>

namespace VRK {

FactoryFarm::FactoryFarm()
    : functors_(std::make_shared<FunctorFactory>()),
      functorParser_(std::make_shared<FunctorParser>()),
      functorClones_(std::make_shared<FunctorCloneFactory>()),
      dataClones_(std::make_shared<DataCloneFactory>()),
      dataHolderClones_(std::make_shared<DataHolderCloneFactory>()),
      schedulerClones_(std::make_shared<FunctorSchedulerCloneFactory>()),
      schedulers_(std::make_shared<FunctorSchedulerFactory>()),
      verifiers_(std::make_shared<ScriptVerifierFactory>()),
      scriptReaders_(std::make_shared<ScriptReaderFactory>()),
      wizardReaders_(std::make_shared<WizardReaderFactory>()),
      scriptWriters_(std::make_shared<ScriptWriterFactory>()),
      wizardWriters_(std::make_shared<WizardWriterFactory>()),
      dataWriters_(std::make_shared<DataWriterFactory>()),
      converters_(std::make_shared<DataConverterFactory>())
{
}

bool FactoryFarm::hasDataReaderFactory(const std::string& scanner) const
{
    std::lock_guard<std::mutex> lock(readersMutex_);
    return dataReaders_.count(scanner) != 0;
}

void FactoryFarm::logReaderFactoryCreated(const std::string& scanner)
{
    Logger* logger = Logger::getCurrentThreadLogger();
    if (!logger->isLogging(debug))
        return;
    std::ostringstream line;
    line.precision(20);
    line << "DataReaderFactory instantiated for scanner \"" << scanner << "\".";
    logger->log(debug, line.str());
}

} // namespace VRK
