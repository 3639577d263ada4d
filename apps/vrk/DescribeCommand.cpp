#include "apps/vrk/DescribeCommand.h"

#include "base/data/BaseType.h"
#include "base/graph/ContainerFunctor.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/ScriptWritingPlan.h"

namespace {

std::string typeName(const VRK::DataHolder& port)
{
    return port.getType() ? port.getType()->getName() : std::string("(untyped)");
}

// A value that a writer spreads over several lines (a formula between its brackets)
// is shown on the port's one line, each line break and the indentation after it made
// one blank.
std::string onOneLine(const std::string& text)
{
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n') {
            line += text[i];
            continue;
        }
        while (i + 1 < text.size() && text[i + 1] == ' ')
            ++i;
        line += ' ';
    }
    return line;
}

// The editor's present value in script syntax, when the type has a writer.
std::string defaultValue(const VRK::InputPort& port)
{
    auto writers = VRK::FactoryFarmManager::Instance().getDataWriterFactory();
    if (!port.hasDataEditor() || !port.getType() || !writers->isRegistered(port.getType()->getName()))
        return std::string();
    return onOneLine(VRK::ScriptWritingPlan::getValueText(port));
}

void describeInput(const VRK::Functor& functor, const VRK::InputPort& port, const char* direction,
                   std::ostream& out)
{
    out << "  " << direction << ' ' << port.getName() << " : " << typeName(port);
    if (port.isOptional())
        out << "  optional, default " << defaultValue(port);
    else if (port.hasDataEditor())
        out << "  required";
    else
        out << "  bound only";
    if (port.isFeedback())
        out << ", feedback";
    for (const auto& alias : functor.getInputPortAliases(port.getName()))
        out << "  alias " << alias;
    out << "\n      \"" << port.getDescription() << "\"\n";
}

void describeOutput(const VRK::DataHolder& port, const char* direction, std::ostream& out)
{
    out << "  " << direction << ' ' << port.getName() << " : " << typeName(port) << "\n      \""
        << port.getDescription() << "\"\n";
}

} // namespace

int DescribeCommand::run(const std::string& name, std::ostream& out, std::ostream& err)
{
    auto factory = VRK::FactoryFarmManager::Instance().getFunctorFactory();
    if (!factory->isRegistered(name)) {
        err << "vrk: error: no functor is registered as \"" << name << "\".\n";
        return 2;
    }
    for (const auto& entry : factory->getEntries())
        if (entry.key == factory->resolve(name)) {
            out << entry.key << "  (group \"" << entry.group << "\")";
            for (const auto& alias : entry.aliases)
                out << "  alias " << alias;
            out << '\n';
        }
    auto functor = factory->create(name);
    // A default that depends on the functor (a formula over its own maps or tables) is
    // made only when its editor is prepared, as before a run.
    functor->preparePorts();
    out << "  \"" << functor->getDescription() << "\"\n";
    for (const auto& port : functor->getInputPorts())
        describeInput(*functor, *port, "input", out);
    for (const auto& port : functor->getOutputPorts())
        describeOutput(*port, "output", out);
    if (auto* container = dynamic_cast<VRK::ContainerFunctor*>(functor.get())) {
        for (const auto& port : container->getInternalOutputPorts())
            describeOutput(*port, "internal output", out);
        for (const auto& port : container->getInternalInputPorts())
            describeInput(*functor, *port, "internal input", out);
    }
    return 0;
}
