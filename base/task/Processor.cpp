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
} // namespace

Processor::Processor() : count_(hardwareThreads()) {}

Processor::~Processor() = default;

void Processor::setProcessorCount(unsigned int count)
{
    std::lock_guard<std::mutex> lock(mutex_);
    count_ = count;
    control_.reset();
    control_ = std::make_unique<tbb::global_control>(
        tbb::global_control::max_allowed_parallelism, getEffectiveProcessorCount());
}

unsigned int Processor::getProcessorCount() const { return count_; }

unsigned int Processor::getEffectiveProcessorCount() const
{
    return count_ == 0 ? hardwareThreads() : count_.load();
}

} // namespace VRK
