#include "tools/sim/InOrder.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <vector>

namespace vorbel::sim {

void together(const std::function<void()>& work, unsigned jobs) {
    constexpr unsigned mostJobs = 256;
    std::vector<std::jthread> helpers;
    try {
        for (unsigned i = 1; i < std::min(jobs, mostJobs); ++i) {
            helpers.emplace_back(work);
        }
    } catch (const std::system_error&) { // no more threads
    }
    work();
}

} // namespace vorbel::sim
