#include "base/task/StackExtender.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/RuntimeException.h"

#include <sys/mman.h>
#include <ucontext.h>

#include <cstdint>
#include <exception>
#include <string>

namespace VRK {

namespace {

struct Switch {
    const std::function<void()>* work;
    std::exception_ptr error;
    ucontext_t caller;
};

// The entry of the new stack. makecontext passes int arguments only: the pointer comes
// in two halves.
void enter(unsigned int high, unsigned int low)
{
    auto* context =
        reinterpret_cast<Switch*>((static_cast<std::uintptr_t>(high) << 32) | std::uintptr_t(low));
    try {
        (*context->work)();
    } catch (...) {
        // Unwinding cannot cross into the caller's stack; the error is carried instead.
        context->error = std::current_exception();
    }
}

// The reserved stack, given back however the work ends.
struct Stack {
    void* base;
    size_t size;
    ~Stack() { munmap(base, size); }
};

} // namespace

void StackExtender::run(size_t bytes, const std::function<void()>& work)
{
    void* base = mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
    if (base == MAP_FAILED)
        ExceptionUtils::raise<RuntimeException>(
            "There is not enough memory for a stack of " + std::to_string(bytes >> 20)
            + " MB, which the run needs for its depth of nesting.");
    const Stack stack{base, bytes};
    Switch context{&work, nullptr, {}};
    ucontext_t callee;
    getcontext(&callee);
    callee.uc_stack.ss_sp = stack.base;
    callee.uc_stack.ss_size = stack.size;
    callee.uc_link = &context.caller;
    const auto address = reinterpret_cast<std::uintptr_t>(&context);
    makecontext(&callee, reinterpret_cast<void (*)()>(&enter), 2,
                static_cast<unsigned int>(address >> 32), static_cast<unsigned int>(address));
    swapcontext(&context.caller, &callee);
    if (context.error)
        std::rethrow_exception(context.error);
}

} // namespace VRK
