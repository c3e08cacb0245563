// Sound whose loudness the player sets.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/runloop/Observers.h"

#include <vector>

namespace vorbel {

// Hands everything on to other sound; what it made follows its volumes from then on, also while it is heard.
// At full volumes nothing is changed. Main thread only.
class AdjustableAudio final : public Audio {
public:
    // It must outlive this, and this the sounds and players that it made.
    explicit AdjustableAudio(Audio& audio) : audio_(audio) {}

    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;

    // Calls the observer with the name of each effect that begins to sound, however loud.
    [[nodiscard]] Subscription onSound(std::function<void(std::string_view)> observer) {
        return played_.add(std::move(observer));
    }

    void setSoundVolume(float volume);  // 0…1 of each effect's own
    void setPlayerVolume(float volume); // 0…1 of what the player was set to

private:
    class Sound;
    class Player;

    Audio& audio_;
    Observers<std::string_view> played_;
    float soundVolume_ = 1;
    float playerVolume_ = 1;
    std::vector<Sound*> sounds_; // those that live
    std::vector<Player*> players_;
};

} // namespace vorbel
