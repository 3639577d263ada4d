#include "base/graph/FunctorContainer.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/Functor.h"
#include "base/plugin/FactoryFarmManager.h"

#include <algorithm>
#include <cassert>

namespace VRK {

FunctorContainer::FunctorIterator::FunctorIterator(std::vector<Functor*> functors)
    : functors_(std::move(functors))
{
}

Functor* FunctorContainer::FunctorIterator::next() const
{
    assert(hasNext() && "next() is called only while hasNext() holds");
    return functors_[index_++];
}

bool FunctorContainer::FunctorIterator::hasNext() const { return index_ < functors_.size(); }

// The contents are taken apart level by level here: left to the nested destructors of
// their containers they would take the machine stack as deep as the nesting goes.
// A copy has contents of its own, which it makes as the copied container's are made.
FunctorContainer::FunctorContainer(const FunctorContainer&) {}

FunctorContainer::~FunctorContainer()
{
    std::vector<std::shared_ptr<Functor>> released = std::move(functors_);
    while (!released.empty()) {
        std::shared_ptr<Functor> functor = std::move(released.back());
        released.pop_back();
        FunctorContainer* inner = functor.use_count() == 1 ? functor->asContainer() : nullptr;
        if (!inner)
            continue;
        for (auto& content : inner->functors_)
            released.push_back(std::move(content));
        inner->functors_.clear();
    }
}

Functor* FunctorContainer::createFunctor(const std::string& name, bool notify)
{
    std::shared_ptr<Functor> functor =
        FactoryFarmManager::Instance().getFunctorFactory()->create(name);
    addFunctor(functor, notify);
    return functor.get();
}

void FunctorContainer::transferFunctor(Functor* functor, bool notify)
{
    assert(functor != 0 && "a container is handed a functor");
    FunctorContainer* source = functor->getContainer();
    assert(source != 0 && "functor->getContainer() != 0");
    std::shared_ptr<Functor> keep = source->getSharedFunctor(functor);
    source->eraseFunctor(functor, notify);
    addFunctor(keep, notify);
}

void FunctorContainer::addFunctor(const std::shared_ptr<Functor>& functor, bool notify)
{
    assert(functor != 0 && "a container is handed a functor");
    functors_.push_back(functor);
    functor->setContainer(this);
    const Functor* self = asFunctor();
    functor->setLevel(self ? self->getLevel() + 1 : 0);
    if (notify)
        functor->onContainerAdded(*this);
}

void FunctorContainer::eraseFunctor(Functor* functor, bool notify)
{
    auto position = find(functor);
    assert(position != functors_.end() && "containsFunctor(functor)");
    std::shared_ptr<Functor> keep = *position;
    functors_.erase(position);
    if (notify)
        keep->onContainerErased();
    keep->setContainer(nullptr);
}

Functor* FunctorContainer::getFunctor(size_t index) const
{
    assert(index < functors_.size() && "index < getFunctorCount()");
    return functors_[index].get();
}

bool FunctorContainer::containsFunctor(Functor* functor) const
{
    return find(functor) != functors_.end();
}

size_t FunctorContainer::getFunctorCount() const { return functors_.size(); }

void FunctorContainer::reorderFunctor(Functor* functor, int index)
{
    auto position = find(functor);
    assert(position != functors_.end() && "containsFunctor(functor)");
    assert(index >= 0 && size_t(index) < functors_.size() && "index in range");
    std::shared_ptr<Functor> keep = *position;
    functors_.erase(position);
    functors_.insert(functors_.begin() + index, keep);
}

void FunctorContainer::releaseFunctor(Functor*& functor)
{
    eraseFunctor(functor, true);
    functor = nullptr;
}

FunctorContainer::FunctorIterator FunctorContainer::getFunctorIterator() const
{
    std::vector<Functor*> functors;
    for (const auto& functor : functors_)
        functors.push_back(functor.get());
    return FunctorIterator(std::move(functors));
}

void FunctorContainer::clear()
{
    while (!functors_.empty())
        eraseFunctor(functors_.back().get(), true);
}

Functor* FunctorContainer::copyFunctor(Functor* functor, bool notify)
{
    assert(functor != 0 && "a container is handed a functor");
    std::shared_ptr<Functor> copy =
        FactoryFarmManager::Instance().getFunctorCloneFactory()->create(*functor);
    addFunctor(copy, notify);
    return copy.get();
}

FunctorContainer* FunctorContainer::getParentContainer() const
{
    const Functor* self = asFunctor();
    return self ? self->getContainer() : nullptr;
}

// Stops at the first container already marked: every container around a marked one is
// marked too, since clearing one clears all inside it.
void FunctorContainer::markContentsRun()
{
    for (FunctorContainer* container = this;
         container && !container->contentsMayHoldData_.exchange(true, std::memory_order_relaxed);
         container = container->getParentContainer()) {
    }
}

std::shared_ptr<Functor> FunctorContainer::getSharedFunctor(const Functor* functor) const
{
    auto position = find(functor);
    return position == functors_.end() ? nullptr : *position;
}

std::vector<std::shared_ptr<Functor>>::const_iterator
FunctorContainer::find(const Functor* functor) const
{
    return std::find_if(functors_.begin(), functors_.end(),
                        [&](const auto& candidate) { return candidate.get() == functor; });
}

} // namespace VRK
