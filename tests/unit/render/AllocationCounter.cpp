// Replaces the allocation functions of the whole program. They are in a file of their own so that no compiler
// sees through one of a pair only.
#include "tests/unit/render/AllocationCounter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> allocations = 0;

} // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc)
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    ++allocations;
    return std::malloc(size > 0 ? size : 1);
}
void* operator new(std::size_t size) {
    if (void* memory = operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
    std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc)

int vorbel::allocationCount() {
    return allocations;
}
