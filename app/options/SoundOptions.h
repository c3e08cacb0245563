// How loud the game is, and whether its sounds have a place.
#pragma once

#include "app/options/Options.h"
#include "platform/audio/AdjustableAudio.h"

#include <QObject>

namespace vorbel {

// Hands both over to the sound whenever they change. Main thread only.
class SoundOptions final : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    SoundOptions(AdjustableAudio& audio, const Options& options);

private:
    void handOver();
    [[nodiscard]] float volume(Option option) const; // 0…1

    AdjustableAudio& audio_;
    const Options& options_;
};

} // namespace vorbel
