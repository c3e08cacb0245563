// Sound whose loudness and place the player sets.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/runloop/Observers.h"

#include <vector>

namespace vorbel {

// Hands everything on to other sound; what it made follows its volumes from then on, also while it is heard.
// At full volumes nothing is changed, and all effects are heard in the middle. Main thread only.
class AdjustableAudio final : public Audio {
public:
    // It must outlive this, and this the sounds and players that it made.
    explicit AdjustableAudio(Audio& audio) : audio_(audio) {}

    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;
    [[nodiscard]] std::unique_ptr<vorbel::Tone> tone() override;

    // Calls the observer with the name of each effect that begins to sound, however loud.
    [[nodiscard]] Subscription onSound(std::function<void(std::string_view)> observer) {
        return played_.add(std::move(observer));
    }

    void setSoundVolume(float volume);  // 0…1 of each effect's own; the tones' too
    void setPlayerVolume(float volume); // 0…1 of what the player was set to
    void placeSounds(bool placed);      // whether an effect is heard at its place

private:
    class Sound;
    class Player;
    class Tone;

    Audio& audio_;
    Observers<std::string_view> played_;
    float soundVolume_ = 1;
    float playerVolume_ = 1;
    bool soundsArePlaced_ = false;
    std::vector<Sound*> sounds_; // those that live
    std::vector<Player*> players_;
    std::vector<Tone*> tones_;
};

} // namespace vorbel
