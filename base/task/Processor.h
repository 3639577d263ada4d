#ifndef VRK_BASE_TASK_PROCESSOR_H
#define VRK_BASE_TASK_PROCESSOR_H

#include <tbb/global_control.h>

#include <atomic>
#include <memory>
#include <mutex>


namespace VRK {

// The process-wide number of processors that parallel work may use; 0 means all.
class Processor {
public:
    Processor();
    ~Processor();

    void setProcessorCount(unsigned int count);
    unsigned int getProcessorCount() const;
    // The count that parallel work actually gets: the set count, or every hardware
    // thread when it is 0.
    unsigned int getEffectiveProcessorCount() const;

    // Within a run the count belongs to the branch that a thread works on: a processor
    // policy changes it for its own contents, not for the work beside it, and the count
    // of the process is the same after the run as before. A branch starts with the count
    // of the thread that started it.
    class BranchScope {
    public:
        explicit BranchScope(unsigned int count);
        ~BranchScope();
        BranchScope(const BranchScope&) = delete;
        BranchScope& operator=(const BranchScope&) = delete;

    private:
        unsigned int count_;
        unsigned int* previous_;
    };

private:
    std::atomic<unsigned int> count_;
    std::mutex mutex_;
    std::unique_ptr<tbb::global_control> control_;
};

} // namespace VRK

#endif
