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
    virtual void setPan(float pan) = 0; // −1 (left) … 1 (right), at first 0; heard from the next play() on
};

// A sound file that is decoded while it plays.
class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;
    virtual void setLoopCount(int count) = 0; // repeats after the first time; −1 repeats for ever
    virtual void setVolume(float volume) = 0; // 0…1
    virtual void play() = 0;
};

// A steady tone. Neither its begin nor its end clicks, and it glides from one sound to the next.
class Tone {
public:
    virtual ~Tone() = default;
    virtual void sound(double pitch, double pan) = 0; // Hz; −1 (left) … 1 (right); until it is silenced
    virtual void silence() = 0;
    virtual void setVolume(float volume) = 0; // 0…1, at first 1
};

class Audio {
public:
    virtual ~Audio() = default;

    // The effect of that name; null when there is no such sound.
    [[nodiscard]] virtual std::unique_ptr<SystemSound> systemSound(std::string_view name) = 0;

    // A player for the file; null when it cannot be opened or decoded.
    [[nodiscard]] virtual std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) = 0;

    // Silent at first; null when nothing at all can be played. One at a time is heard.
    [[nodiscard]] virtual std::unique_ptr<Tone> tone() = 0;
};

// No sound at all: every effect and file is accepted, nothing is heard.
class SilentAudio final : public Audio {
public:
    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;
    [[nodiscard]] std::unique_ptr<Tone> tone() override;
};

} // namespace vorbel
