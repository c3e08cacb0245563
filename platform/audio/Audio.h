// Sound as the game asks for it.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace vorbel {

// A short sound effect, decoded and ready to play.
class SystemSound {
public:
    virtual ~SystemSound() = default;
    virtual void play() = 0;                  // from the start; ignored while it is still sounding
    virtual void setVolume(float volume) = 0; // 0…1, at first 1; also while it sounds
    virtual void stop() = 0;                  // silent and rewound; harmless when it is not sounding
};

// A sound file that is decoded while it plays.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;
    virtual void setLoopCount(int count) = 0; // repeats after the first time; −1 repeats for ever
    virtual void setVolume(float volume) = 0; // 0…1
    virtual void play() = 0;
};

class Audio {
public:
    virtual ~Audio() = default;

    // The effect of that name; null when there is no such sound.
    [[nodiscard]] virtual std::unique_ptr<SystemSound> systemSound(std::string_view name) = 0;

    // A player for the file; null when it cannot be opened or decoded.
    [[nodiscard]] virtual std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) = 0;
};

// No sound at all: every effect and file is accepted, nothing is heard.
class SilentAudio final : public Audio {
public:
    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;
};

} // namespace vorbel
