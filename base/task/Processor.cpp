#include "base/task/Processor.h"

#include <tbb/global_control.h>

#include <thread>

namespace VRK {

namespace {
unsigned int hardwareThreads()
{
    unsigned int threads = std::thread::hardware_concurrency();
    return threads == 0 ? 1 : threads;
}
thread_local unsigned int* branchCount = nullptr;
} // namespace

Processor::Processor() : count_(hardwareThreads()) {}

Processor::~Processor() = default;

void Processor::setProcessorCount(unsigned int count)
{
    if (branchCount) {
        *branchCount = count;
        return;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    count_ = count;
    control_.reset();
    control_ = std::make_unique<tbb::global_control>(
        tbb::global_control::max_allowed_parallelism, getEffectiveProcessorCount());
}

unsigned int Processor::getProcessorCount() const
{
    return branchCount ? *branchCount : count_.load();
}

unsigned int Processor::getEffectiveProcessorCount() const
{
    const unsigned int count = getProcessorCount();
    return count == 0 ? hardwareThreads() : count;
}

Processor::BranchScope::BranchScope(unsigned int count) : count_(count), previous_(branchCount)
{
    branchCount = &count_;
}

Processor::BranchScope::~BranchScope() { branchCount = previous_; }

} // namespace VRK
