// Where a player's matches are kept.
#pragma once

#include <chrono>
#include <filesystem>
#include <iosfwd>
#include <memory>

namespace vorbel::recording {

// A folder with a file for each match, `match-20260131-235959-01.jsonl` after the time in UTC when it was begun to be
// written. Files with other names are nobody's business here.
class RecordingFolder {
public:
    static constexpr std::size_t kept = 50; // matches; the oldest of more are removed

    explicit RecordingFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // A new file, open for writing; null where none can be made. Makes the folder when there is none.
    [[nodiscard]] std::unique_ptr<std::ostream> newFile(std::chrono::system_clock::time_point now) const;

private:
    void removeOldest() const;

    std::filesystem::path folder_;
};

} // namespace vorbel::recording
