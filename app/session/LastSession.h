// Whether the last game came to a good end.
#pragma once

#include <filesystem>

namespace vorbel {

// A game leaves a mark in the state folder as long as it runs, and holds it: what is marked and held by nobody did
// not come to its end. Games may run at once. Where nothing can be written, every end counts as a good one.
class LastSession {
public:
    explicit LastSession(const std::filesystem::path& folder); // is made
    LastSession(const LastSession&) = delete;
    LastSession& operator=(const LastSession&) = delete;
    ~LastSession(); // this game's good end

    // True for the first game that asks after a bad end, and for no other.
    [[nodiscard]] bool endedBadly() const { return endedBadly_; }

private:
    [[nodiscard]] static bool clearAbandonedMarks(const std::filesystem::path& folder);
    void mark(const std::filesystem::path& folder);

    bool endedBadly_;
    int held_ = -1; // the mark, open
    std::filesystem::path mark_;
};

} // namespace vorbel
