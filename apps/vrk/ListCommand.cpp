#include "apps/vrk/ListCommand.h"

#include "base/data/BaseType.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarmManager.h"

namespace {

template <class Entries>
void listNamed(const char* heading, const Entries& entries, std::ostream& out)
{
    out << heading << ":\n";
    for (const auto& entry : entries) {
        out << "  " << entry.key << "  (group \"" << entry.group << "\")";
        if (!entry.aliases.empty()) {
            out << "  aliases:";
            for (const auto& alias : entry.aliases)
                out << ' ' << alias;
        }
        out << '\n';
    }
}

void listFunctors(std::ostream& out)
{
    listNamed("functors", VRK::FactoryFarmManager::Instance().getFunctorFactory()->getEntries(), out);
}

void listTypes(std::ostream& out)
{
    out << "types:\n";
    for (const VRK::BaseType* type : VRK::BaseType::getAllTypes()) {
        out << "  " << type->getName() << "  \"" << type->getDescription() << "\"";
        if (type->getParent())
            out << "  parent " << type->getParent()->getName();
        out << '\n';
    }
}

template <class ScannerT>
void listReaders(const std::string& scanner, std::ostream& out)
{
    auto& farm = VRK::FactoryFarmManager::Instance();
    if (!farm.hasDataReaderFactory(scanner))
        return;
    listNamed(("readers for scanner \"" + scanner + "\"").c_str(),
              farm.getDataReaderFactory<ScannerT>(scanner)->getEntries(), out);
}

void listWriters(std::ostream& out)
{
    auto& farm = VRK::FactoryFarmManager::Instance();
    listNamed("data writers", farm.getDataWriterFactory()->getEntries(), out);
    listNamed("script readers", farm.getScriptReaderFactory()->getEntries(), out);
    listNamed("script writers", farm.getScriptWriterFactory()->getEntries(), out);
}

void listConverters(std::ostream& out)
{
    out << "converters:\n";
    for (const auto& entry : VRK::FactoryFarmManager::Instance().getDataConverterFactory()->getEntries())
        out << "  " << entry.key << "  (group \"" << entry.group << "\")\n";
}

} // namespace

int ListCommand::run(const std::string& what, std::ostream& out)
{
    const bool all = what.empty();
    if (all || what == "functors")
        listFunctors(out);
    if (all || what == "types")
        listTypes(out);
    if (all || what == "readers") {
        listReaders<VRK::ScriptScanner>(VRK::ScriptScannerName, out);
        listReaders<VRK::PlainScanner>(VRK::PlainScannerName, out);
    }
    if (all || what == "writers")
        listWriters(out);
    if (all || what == "converters")
        listConverters(out);
    return 0;
}
