#include "platform/audio/Mp3Stream.h"

#include <mpg123.h>

#include <vector>

namespace vorbel {

namespace {

// How far to search on where there is no music. Random bytes look like music now and then.
constexpr long noSearch = 0;

// Two channels of float, and the end cut as the file's own tag says, so that a loop has no gap. The library
// may not write to the console: a game is not the place for its notes.
bool isConfigured(mpg123_handle* handle, int sampleRate) {
    constexpr long flags = MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_FORCE_FLOAT | MPG123_GAPLESS;
    return mpg123_param(handle, MPG123_ADD_FLAGS, flags, 0.0) == MPG123_OK &&
           mpg123_param(handle, MPG123_FORCE_RATE, sampleRate, 0.0) == MPG123_OK &&
           mpg123_param(handle, MPG123_RESYNC_LIMIT, noSearch, 0.0) == MPG123_OK;
}

} // namespace

void Mp3Stream::Closer::operator()(mpg123_handle_struct* handle) const {
    mpg123_delete(handle);
}

std::unique_ptr<Mp3Stream> Mp3Stream::open(const std::filesystem::path& file, int sampleRate) {
    Handle handle(mpg123_new(nullptr, nullptr));
    if (!handle || !isConfigured(handle.get(), sampleRate) ||
        mpg123_open(handle.get(), file.c_str()) != MPG123_OK) {
        return nullptr;
    }
    std::unique_ptr<Mp3Stream> stream(new Mp3Stream(std::move(handle)));
    std::vector<float> firstHalfSecond(static_cast<std::size_t>(sampleRate));
    const bool hasMusic = stream->read(firstHalfSecond) > 0;
    if (!hasMusic || mpg123_errcode(stream->handle_.get()) != MPG123_OK) {
        return nullptr;
    }
    stream->rewind();
    return stream;
}

std::size_t Mp3Stream::read(std::span<float> samples) {
    std::size_t filled = 0; // bytes
    int result = MPG123_OK;
    while (filled < samples.size_bytes() && (result == MPG123_OK || result == MPG123_NEW_FORMAT)) {
        std::size_t decoded = 0;
        result = mpg123_read(handle_.get(), std::as_writable_bytes(samples).data() + filled,
                             samples.size_bytes() - filled, &decoded);
        filled += decoded;
    }
    return filled / sizeof(float);
}

void Mp3Stream::rewind() {
    mpg123_seek(handle_.get(), 0, SEEK_SET);
}

} // namespace vorbel
