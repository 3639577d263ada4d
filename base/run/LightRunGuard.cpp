#include "base/run/LightRunGuard.h"

#include <algorithm>
#include <vector>

namespace VRK {

namespace {
std::vector<const Functor*>& running()
{
    thread_local std::vector<const Functor*> functors;
    return functors;
}
} // namespace

LightRunGuard::LightRunGuard(const Functor* functor) { running().push_back(functor); }

LightRunGuard::~LightRunGuard() { running().pop_back(); }

bool LightRunGuard::isRunning(const Functor* functor)
{
    return std::find(running().begin(), running().end(), functor) != running().end();
}

} // namespace VRK
