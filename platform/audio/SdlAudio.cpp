#include "platform/audio/SdlAudio.h"

#include "platform/audio/MixerDevice.h"
#include "platform/audio/Mp3Stream.h"
#include "platform/audio/Panning.h"
#include "platform/audio/SdlTone.h"

#include <SDL_mixer.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <numbers>

namespace vorbel {

namespace {

using Chunk = std::unique_ptr<Mix_Chunk, decltype(&Mix_FreeChunk)>;

class Effect final : public SystemSound {
public:
    Effect(std::shared_ptr<MixerDevice> device, Chunk chunk)
        : device_(std::move(device)), chunk_(std::move(chunk)) {}

    void play() override {
        if (!isSounding()) {
            channel_ = Mix_GroupAvailable(-1);
            placeOn(channel_);
            channel_ = Mix_PlayChannel(channel_, chunk_.get(), 0);
        }
    }

    void setPan(float pan) override { pan_ = pan; }

    void setVolume(float volume) override {
        const float loudness = std::clamp(volume, 0.0F, 1.0F) * static_cast<float>(MIX_MAX_VOLUME);
        Mix_VolumeChunk(chunk_.get(), static_cast<int>(std::lround(loudness)));
    }

    void stop() override {
        if (isSounding()) {
            Mix_HaltChannel(channel_);
        }
    }

private:
    // The mixer forgets it when the channel comes to its end. In the middle the effect is heard as it is in its file.
    void placeOn(int channel) const {
        if (channel >= 0 && pan_ != 0) {
            const Panning sides = panning(pan_);
            const auto share = [](double gain) {
                constexpr double full = 255;
                return static_cast<Uint8>(std::lround(full * std::min(1.0, std::numbers::sqrt2 * gain)));
            };
            Mix_SetPanning(channel, share(sides.left), share(sides.right));
        }
    }

    // The mixer may have given the channel to another effect since.
    [[nodiscard]] bool isSounding() const {
        return channel_ >= 0 && Mix_Playing(channel_) != 0 && Mix_GetChunk(channel_) == chunk_.get();
    }

    std::shared_ptr<MixerDevice> device_; // outlives the chunk
    Chunk chunk_;
    int channel_ = -1; // where it was last played
    float pan_ = 0;
};

// A stream on the mixer's hook for music. The mixer could play the file itself, but its MP3 decoder writes
// notes about damaged files to the console.
class Track final : public AudioPlayer {
public:
    Track(std::shared_ptr<MixerDevice> device, std::unique_ptr<Mp3Stream> stream)
        : device_(std::move(device)), stream_(std::move(stream)) {}
    Track(const Track&) = delete;
    Track& operator=(const Track&) = delete;

    ~Track() override { silence(); }

    void setLoopCount(int count) override { loopCount_ = count; }
    void setVolume(float volume) override { volume_ = std::clamp(volume, 0.0F, 1.0F); }

    void play() override {
        silence();
        stream_->rewind();
        repeatsLeft_ = loopCount_;
        Mix_HookMusic(&Track::mixed, this);
    }

private:
    // Waits until the mixer's thread has left the stream.
    void silence() {
        if (Mix_GetMusicHookData() == this) {
            Mix_HookMusic(nullptr, nullptr);
        }
    }

    // Called on the mixer's thread.
    static void mixed(void* track, Uint8* bytes, int size) {
        static_cast<Track*>(track)->fill(
            {reinterpret_cast<float*>(bytes), static_cast<std::size_t>(size) / sizeof(float)});
    }

    void fill(std::span<float> output) {
        const std::size_t filled = readLooping(output);
        const float volume = volume_;
        std::ranges::transform(output.first(filled), output.begin(),
                               [volume](float x) { return x * volume; });
        std::ranges::fill(output.subspan(filled), 0.0F);
    }

    std::size_t readLooping(std::span<float> output) {
        std::size_t filled = stream_->read(output);
        while (filled < output.size() && repeatsLeft_ != 0) {
            repeatsLeft_ -= repeatsLeft_ > 0 ? 1 : 0;
            stream_->rewind();
            const std::size_t added = stream_->read(output.subspan(filled));
            if (added == 0) { // the file was damaged meanwhile: no use trying again and again
                repeatsLeft_ = 0;
            }
            filled += added;
        }
        return filled;
    }

    std::shared_ptr<MixerDevice> device_; // outlives the use of its hook
    std::unique_ptr<Mp3Stream> stream_;
    int loopCount_ = 0;
    int repeatsLeft_ = 0; // below 0: for ever. Used on the mixer's thread while it plays
    std::atomic<float> volume_ = 1.0F;
};

} // namespace

SdlAudio::SdlAudio(const Resources& resources) : resources_(resources), device_(MixerDevice::open()) {}

std::unique_ptr<SystemSound> SdlAudio::systemSound(std::string_view name) {
    const auto file = resources_.find(name, "wav");
    if (!device_ || !file) {
        return nullptr;
    }
    Chunk chunk(Mix_LoadWAV(file->c_str()), &Mix_FreeChunk);
    return chunk ? std::make_unique<Effect>(device_, std::move(chunk)) : nullptr;
}

std::unique_ptr<AudioPlayer> SdlAudio::player(const std::filesystem::path& file) {
    auto stream = device_ ? Mp3Stream::open(file, MixerDevice::sampleRate) : nullptr;
    return stream ? std::make_unique<Track>(device_, std::move(stream)) : nullptr;
}

std::unique_ptr<Tone> SdlAudio::tone() {
    return device_ ? std::make_unique<SdlTone>(device_) : nullptr;
}

} // namespace vorbel
