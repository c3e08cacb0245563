// An MP3 file, decoded piece by piece.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

struct mpg123_handle_struct;

namespace vorbel {

class Mp3Stream {
public:
    // Null when the file is missing or does not begin with music. The sound comes as two channels at
    // `sampleRate` Hz.
    [[nodiscard]] static std::unique_ptr<Mp3Stream> open(const std::filesystem::path& file, int sampleRate);

    // Fills with interleaved samples, −1…1, and returns how many were there: fewer only at the end. A damaged
    // place in the file is skipped.
    std::size_t read(std::span<float> samples);

    // Back to the first sample.
    void rewind();

private:
    struct Closer {
        void operator()(mpg123_handle_struct* handle) const;
    };
    using Handle = std::unique_ptr<mpg123_handle_struct, Closer>;

    explicit Mp3Stream(Handle handle) : handle_(std::move(handle)) {}

    Handle handle_;
};

} // namespace vorbel
