#ifndef VRK_BASE_GRAPH_FUNCTORCONTAINER_H
#define VRK_BASE_GRAPH_FUNCTORCONTAINER_H

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace VRK {

class Functor;

// An ordered collection of functors that it owns: a script or a container functor.
class FunctorContainer {
public:
    // Walks a snapshot of the contents, so the container may change meanwhile.
    class FunctorIterator {
    public:
        explicit FunctorIterator(std::vector<Functor*> functors);
        Functor* next() const;
        bool hasNext() const;

    private:
        std::vector<Functor*> functors_;
        mutable size_t index_ = 0;
    };

    FunctorContainer() = default;
    FunctorContainer(const FunctorContainer& other);
    virtual ~FunctorContainer();

    // Creates a functor by registered name or alias and adds it.
    virtual Functor* createFunctor(const std::string& name, bool notify);
    // Moves a functor from its present container into this one.
    virtual void transferFunctor(Functor* functor, bool notify);
    // With `notify`, the functor hears of its new container (`onContainerAdded`), and
    // every functor inside it of the same container at its depth below it
    // (`onIndirectContainerAdded`): one call a functor placed, however deep the nesting.
    virtual void addFunctor(const std::shared_ptr<Functor>& functor, bool notify);
    virtual void eraseFunctor(Functor* functor, bool notify);
    virtual Functor* getFunctor(size_t index) const;
    virtual bool containsFunctor(Functor* functor) const;
    virtual size_t getFunctorCount() const;
    virtual void reorderFunctor(Functor* functor, int index);
    // Erases the functor and clears the caller's pointer to it.
    virtual void releaseFunctor(Functor*& functor);
    virtual FunctorIterator getFunctorIterator() const;
    virtual void clear();
    // Adds a copy of `functor` and returns it.
    virtual Functor* copyFunctor(Functor* functor, bool notify);

    // The container seen as a functor; none for a script.
    virtual Functor* asFunctor() { return nullptr; }
    virtual const Functor* asFunctor() const { return nullptr; }
    // The container that holds this one; none for a script.
    FunctorContainer* getParentContainer() const;

    const std::vector<std::shared_ptr<Functor>>& getFunctors() const { return functors_; }
    std::shared_ptr<Functor> getSharedFunctor(const Functor* functor) const;

    // Whether a functor inside may hold output data made since the contents were last
    // cleared. A functor that runs marks its container and every enclosing one, so that
    // clearing a container that nothing inside has run since costs nothing: without it,
    // each level of a deep nest would clear everything below it at every pass.
    void noteContentsRun()
    {
        if (!contentsMayHoldData_.load(std::memory_order_relaxed))
            markContentsRun();
    }
    // Forgets the mark, telling whether it was set.
    bool takeContentsRun() { return contentsMayHoldData_.exchange(false, std::memory_order_relaxed); }

private:
    void markContentsRun();

    std::vector<std::shared_ptr<Functor>>::const_iterator find(const Functor* functor) const;

    std::vector<std::shared_ptr<Functor>> functors_;
    // Set from the start: a functor may be given data before any run.
    std::atomic<bool> contentsMayHoldData_{true};
};

} // namespace VRK

#endif
