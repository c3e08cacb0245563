// A line on a terminal about work that takes long: how much is done, and how long the rest will take.
#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <mutex>
#include <string>

namespace vorbel::sim {

// "12 of 400 matches, 3 min left". Nothing is said of the time before anything is done.
[[nodiscard]] std::string progressText(std::int64_t done, std::int64_t all, double elapsedSeconds);

// From any thread.
class Progress {
public:
    // Nothing is ever written when `out` is null; otherwise it must outlive this.
    Progress(std::ostream* out, std::int64_t all);
    ~Progress(); // clears the line
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void addOne();

private:
    using Clock = std::chrono::steady_clock;
    void write(const std::string& text);

    std::mutex mutex_;
    std::ostream* out_;
    std::int64_t all_;
    std::int64_t done_ = 0;
    Clock::time_point start_ = Clock::now();
    Clock::time_point written_;
};

} // namespace vorbel::sim
