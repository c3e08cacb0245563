#include "tools/sim/Progress.h"

#include <cmath>
#include <ostream>

namespace vorbel::sim {

namespace {

constexpr double minute = 60; // s
constexpr auto writingInterval = std::chrono::milliseconds(200);
constexpr const char* clearLine = "\r\033[K";

std::string timeText(double seconds) {
    return seconds < minute ? std::to_string(std::llround(seconds)) + " s"
                            : std::to_string(std::llround(seconds / minute)) + " min";
}

} // namespace

std::string progressText(std::int64_t done, std::int64_t all, double elapsedSeconds) {
    std::string text = std::to_string(done) + " of " + std::to_string(all) + " matches";
    if (done > 0) {
        const double share = static_cast<double>(all - done) / static_cast<double>(done);
        text += ", " + timeText(elapsedSeconds * share) + " left";
    }
    return text;
}

Progress::Progress(std::ostream* out, std::int64_t all) : out_(out), all_(all) {
    write(progressText(0, all_, 0));
}

Progress::~Progress() {
    write({});
}

void Progress::addOne() {
    const std::scoped_lock lock(mutex_);
    ++done_;
    const Clock::time_point now = Clock::now();
    if (now - written_ >= writingInterval) {
        written_ = now;
        write(progressText(done_, all_, std::chrono::duration<double>(now - start_).count()));
    }
}

void Progress::write(const std::string& text) {
    if (out_ != nullptr) {
        *out_ << clearLine << text << std::flush;
    }
}

} // namespace vorbel::sim
