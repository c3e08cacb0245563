// The aim as a tone: its pitch is the power, its place between left and right the angle.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"

#include <QObject>

#include <memory>

namespace vorbel {

class GameLogic;
class MatchChanges;
class Options;

// By option, while a human aims: sounds as long as angle or power move, and a moment longer. Without the option there
// is no tone at all. Main thread only.
class AimTone final : public QObject {
    Q_OBJECT

public:
    static constexpr double lingering = 0.25; // s

    // All must outlive it.
    AimTone(const GameLogic& match, const Options& options, MatchChanges& changes, Audio& audio,
            MainQueue& queue);

private:
    struct Aimed {
        double angle = 0; // as the match has them
        double power = 0;
        bool operator==(const Aimed&) const = default;
    };

    void followOption();
    void follow();
    void sound(const Aimed& aimed);
    void silence();
    [[nodiscard]] bool humanAims() const;
    [[nodiscard]] Aimed aimed() const;

    const GameLogic& match_;
    const Options& options_;
    MatchChanges& changes_;
    Audio& audio_;
    MainQueue& queue_;
    std::unique_ptr<Tone> tone_; // null until the option is first turned on
    QMetaObject::Connection following_;
    Aimed last_;
    Lifetime untilSilent_; // of the tone that sounds
};

} // namespace vorbel
