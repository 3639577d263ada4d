#include "base/BaseType.h"

namespace VRK {

BaseType::BaseType(const std::string& name, const std::string& description)
    : name_(name), description_(description)
{
}

BaseType::BaseType(const std::string& name, const std::string& description,
                   const std::shared_ptr<BaseType>& parent)
    : name_(name), description_(description), parent_(parent)
{
}

BaseType::~BaseType() = default;

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

} // namespace VRK
