#include "app/speech/PromptVoice.h"

#include "app/keys/ControlsModel.h"
#include "app/options/Options.h"
#include "app/settings/PlayerSettings.h"
#include "app/switch/OneSwitch.h"

#include <utility>

namespace vorbel {

PromptVoice::PromptVoice(const OneSwitch& oneSwitch, const ControlsModel& controls, const Options& options,
                         const PlayerSettings& settings, Voice& voice)
    : oneSwitch_(oneSwitch), controls_(controls), options_(options), settings_(settings), voice_(voice) {
    connect(&oneSwitch_, &OneSwitch::changed, this, &PromptVoice::tellPrompt);
    connect(&controls_, &ControlsModel::newsChanged, this, [this] { say(controls_.news()); });
}

void PromptVoice::tellPrompt() {
    if (!options_.isOn(Option::speech)) {
        told_.clear();
        return;
    }
    if (const QString now = oneSwitch_.spoken(); std::exchange(told_, now) != now) {
        say(now);
    }
}

// After what is being said: none of it is worth an interruption.
void PromptVoice::say(const QString& text) {
    if (options_.isOn(Option::speech) && !text.isEmpty()) {
        voice_.say(text.toStdString(), rawValue(settings_.selectedLanguage()), false);
    }
}

} // namespace vorbel
