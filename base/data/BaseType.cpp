#include "base/data/BaseType.h"

#include <algorithm>
#include <mutex>

namespace VRK {

namespace {
std::mutex registryMutex;
std::vector<const BaseType*>& registry()
{
    static std::vector<const BaseType*> types;
    return types;
}
void enter(const BaseType* type)
{
    std::lock_guard<std::mutex> lock(registryMutex);
    registry().push_back(type);
}
} // namespace

BaseType::BaseType(const std::string& name, const std::string& description)
    : name_(name), description_(description)
{
    enter(this);
}

BaseType::BaseType(const std::string& name, const std::string& description,
                   const std::shared_ptr<BaseType>& parent)
    : name_(name), description_(description), parent_(parent)
{
    enter(this);
}

BaseType::~BaseType()
{
    std::lock_guard<std::mutex> lock(registryMutex);
    auto& types = registry();
    types.erase(std::remove(types.begin(), types.end(), this), types.end());
}

std::vector<const BaseType*> BaseType::getAllTypes()
{
    std::lock_guard<std::mutex> lock(registryMutex);
    return registry();
}

void BaseType::toStream(std::ostream& out, int indent) const
{
    nestIndent(out, indent) << name_;
    if (parent_)
        out << " : " << parent_->getName();
}

bool BaseType::isParent(const std::shared_ptr<BaseType>& other) const
{
    return other && parent_ == other;
}

bool BaseType::isKindOf(const std::shared_ptr<BaseType>& other) const
{
    for (const BaseType* type = this; type; type = type->parent_.get())
        if (type == other.get())
            return true;
    return false;
}

std::shared_ptr<DataEditor> BaseType::createEditor() const { return nullptr; }

std::shared_ptr<DataViewer> BaseType::createViewer() const { return nullptr; }

bool BaseType::isWorkdir() const { return false; }

} // namespace VRK
