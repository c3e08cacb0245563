// Times, and what is said about many of them.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <vector>

#include <unistd.h>

namespace vorbel::bench {

// Milliseconds on the clock on the wall, and of all processor cores together.
struct Moment {
    double wall = 0;
    double cpu = 0;

    static Moment now() {
        timespec used{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
        const auto wall = std::chrono::steady_clock::now().time_since_epoch();
        return {std::chrono::duration<double, std::milli>(wall).count(),
                static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6};
    }
    Moment operator-(const Moment& start) const { return {wall - start.wall, cpu - start.cpu}; }
};

inline double median(std::vector<double> values) {
    if (values.empty()) {
        return 0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Medians of both kinds of time.
class Timings {
public:
    void add(const Moment& spent) {
        wall_.push_back(spent.wall);
        cpu_.push_back(spent.cpu);
    }
    [[nodiscard]] double wall() const { return median(wall_); }
    [[nodiscard]] double cpu() const { return median(cpu_); }

private:
    std::vector<double> wall_;
    std::vector<double> cpu_;
};

// On a terminal only: what is measured now, and how much of it is done. The next row takes its place.
inline void progress(const char* what, int done, int all) {
    if (isatty(STDERR_FILENO) != 0) {
        std::fprintf(stderr, "\r\033[Kmeasuring %s: %d of %d\r", what, done + 1, all);
    }
}

inline void printRow(const char* what, double value, const char* unit) {
    if (isatty(STDERR_FILENO) != 0) {
        std::fputs("\033[K", stderr);
    }
    std::printf("%-56s %10.2f %s\n", what, value, unit);
}

} // namespace vorbel::bench
