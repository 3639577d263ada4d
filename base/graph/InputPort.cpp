#include "base/graph/InputPort.h"

#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

InputPort::InputPort(const std::string& name, const std::string& description,
                     const std::shared_ptr<BaseType>& type, bool linked)
    : SinglePeerDataHolder(name, description, type), linked_(linked)
{
}

InputPort::InputPort(const InputPort& other)
    : SinglePeerDataHolder(other), linked_(other.linked_), optional_(other.optional_),
      valueSet_(other.valueSet_), position_(other.position_)
{
    unbind();
    if (other.editor_)
        editor_ = std::dynamic_pointer_cast<DataEditor>(
            FactoryFarmManager::Instance().getDataHolderCloneFactory()->create(*other.editor_));
    if (editor_)
        editor_->setOwner(nullptr);
}

InputPort::~InputPort() = default;

std::shared_ptr<InputPort> InputPort::clone() const { return std::make_shared<InputPort>(*this); }

void InputPort::setDataEditor(const std::shared_ptr<DataEditor>& editor)
{
    editor_ = editor;
    if (editor_)
        editor_->setOwner(getOwner());
}

void InputPort::pullData()
{
    if (isBound()) {
        SinglePeerDataHolder::pullData();
    } else if (editor_) {
        editor_->packData();
        setDataPtr(editor_->getDataPtr());
    }
}

void InputPort::setOwner(Functor* owner)
{
    SinglePeerDataHolder::setOwner(owner);
    if (editor_)
        editor_->setOwner(owner);
}

} // namespace VRK
