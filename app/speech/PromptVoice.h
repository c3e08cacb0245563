// Says aloud what stands written for the player beside the messages.
#pragma once

#include "platform/speech/Voice.h"

#include <QObject>
#include <QString>

namespace vorbel {

class ControlsModel;
class OneSwitch;
class Options;
class PlayerSettings;

// What the next press of the one switch will do, and what became of a key that was given away. While speech is off its
// voice is never used. Main thread only.
class PromptVoice final : public QObject {
    Q_OBJECT

public:
    // All five must outlive it.
    PromptVoice(const OneSwitch& oneSwitch, const ControlsModel& controls, const Options& options,
                const PlayerSettings& settings, Voice& voice);

private:
    void tellPrompt();
    void say(const QString& text);

    const OneSwitch& oneSwitch_;
    const ControlsModel& controls_;
    const Options& options_;
    const PlayerSettings& settings_;
    Voice& voice_;
    QString told_; // of the prompts
};

} // namespace vorbel
