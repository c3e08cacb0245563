// Each sound of a match as a word, for players who do not hear it.
#pragma once

#include "app/options/Options.h"
#include "platform/audio/AdjustableAudio.h"
#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace vorbel {

class PlayerSettings;

// By option, the last sound's name for a moment. Main thread only.
class SoundNotes final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)

public:
    static constexpr double shownFor = 1.5; // s

    // All four must outlive it.
    SoundNotes(AdjustableAudio& audio, const Options& options, const PlayerSettings& settings,
               MainQueue& queue);

    [[nodiscard]] QString note() const; // empty while there is none

signals:
    void changed();

private:
    void show(std::string_view sound);

    const Options& options_;
    const PlayerSettings& settings_;
    MainQueue& queue_;
    std::optional<TextKey> shown_;
    Lifetime untilGone_; // of the note that is shown
    Subscription sounds_;
};

} // namespace vorbel
