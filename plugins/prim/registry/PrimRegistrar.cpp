#include "plugins/prim/registry/PrimRegistrar.h"

#include <boost/spirit/include/classic_symbols.hpp>

namespace Prim {

void PrimRegistrar::enterFunctorNames(const std::string& name,
                                      const std::vector<std::string>& aliases)
{
    auto parser = farm_.getFunctorParser();
    assert(parser != 0 && "functorParser != 0");
    parser->add(name.c_str(), name);
    for (const auto& alias : aliases)
        parser->add(alias.c_str(), name);
}

void PrimRegistrar::logBeing(const std::string& kind, const std::string& name,
                             const std::string& group)
{
    logLine(kind + " \"" + name + "\" (group \"" + group + "\") is being registered:");
}

void PrimRegistrar::logReaderBeing(const std::string& name, const std::string& group,
                                   const std::string& scanner)
{
    logLine("DataReader \"" + name + "\" (group \"" + group + "\") is being registered for scanner \""
            + scanner + "\":");
}

bool PrimRegistrar::logResult(const std::string& kind, const std::string& name, bool registered)
{
    logLine(kind + " \"" + name + "\"" + (registered ? " registered successfully." : " registration failed."));
    return registered;
}

void PrimRegistrar::logPartialFailure(const std::string& kind, const std::string& name)
{
    logLine(kind + " \"" + name + "\" registration failed (totally / partially).");
}

void PrimRegistrar::logInstantiated(const VRK::Functor& functor)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    std::ostringstream line;
    line.precision(20);
    line << "Functor instantiated by factory:\n";
    functor.toStream(line, 0);
    logger->log(VRK::debug, line.str());
}

void PrimRegistrar::logLine(const std::string& line)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    std::ostringstream stream;
    stream.precision(20);
    stream << line;
    logger->log(VRK::debug, stream.str());
}

} // namespace Prim
