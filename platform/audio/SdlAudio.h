// Sound through SDL's mixer.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/resources/Resources.h"

namespace vorbel {

class MixerDevice;

// System sounds are the resources `NAME.wav`, files are MP3. Without a sound device everything works as usual
// and nothing is heard. The device stays open until this and the last sound and player made by it are gone.
//
// One player is heard at a time: one that starts to play takes the place of the one before.
class SdlAudio final : public Audio {
public:
    // Opens the sound device. The resources must outlive this.
    explicit SdlAudio(const Resources& resources);

    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;
    [[nodiscard]] std::unique_ptr<Tone> tone() override;

private:
    const Resources& resources_;
    std::shared_ptr<MixerDevice> device_; // null when no device at all could be opened
};

} // namespace vorbel
