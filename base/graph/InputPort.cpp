#include "base/graph/InputPort.h"

#include "base/error/DataException.h"
#include "base/error/ExceptionUtils.h"
#include "base/graph/Functor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/graph/PortScope.h"
#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

InputPort::InputPort(std::string_view name, std::string_view description,
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
        pullFromPeer();
    } else if (editor_) {
        editor_->packData();
        setDataPtr(editor_->getDataPtr());
    }
}

// Only a conversion can fail here; the modeller has to learn which binding it was.
void InputPort::pullFromPeer()
{
    try {
        SinglePeerDataHolder::pullData();
    } catch (const Exception& error) {
        const DataHolder& peer = *getPeer();
        if (!getOwner() || !peer.getOwner())
            throw;
        ExceptionUtils::raiseAt<DataException>(
            position_.isKnown() ? position_ : getOwner()->getPosition(),
            std::string(PortScope::isInternalInput(*this) ? "The internal input " : "The input ")
                + FunctorNameUtils::quote(getName()) + " of "
                + FunctorNameUtils::describe(*getOwner()) + " cannot take the data of the output "
                + FunctorNameUtils::quote(peer.getName()) + " of "
                + FunctorNameUtils::describe(*peer.getOwner()) + ": " + error.getMessage());
    }
}

void InputPort::setOwner(Functor* owner)
{
    SinglePeerDataHolder::setOwner(owner);
    if (editor_)
        editor_->setOwner(owner);
}

} // namespace VRK
