// SDL's mixer, open as long as anything plays on it.
#pragma once

#include <memory>

namespace vorbel {

class MixerDevice {
public:
    static constexpr int sampleRate = 48000; // Hz, that of the resources and of most sound cards
    static constexpr int channels = 2;
    // The mixer's samples are floats.

    // Opens the sound device, or where there is none SDL's own that plays to nobody, so that files are still
    // checked and played in time. Null when SDL has not even that.
    [[nodiscard]] static std::shared_ptr<MixerDevice> open();

    MixerDevice() = default; // for open(): an open mixer is taken over
    MixerDevice(const MixerDevice&) = delete;
    MixerDevice& operator=(const MixerDevice&) = delete;
    ~MixerDevice();
};

} // namespace vorbel
