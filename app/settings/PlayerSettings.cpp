#include "app/settings/PlayerSettings.h"

#include "app/text/Fonts.h"

#include <utility>

namespace vorbel {

namespace {

AppLanguage storedLanguage(const UserDefaults& defaults) {
    const std::string code = defaults.text(languageKey).value_or("");
    return languageFromRawValue(code).value_or(defaultLanguage);
}

} // namespace

PlayerSettings::PlayerSettings(GameLogic& match, MainQueue& queue, UserDefaults& defaults)
    : match_(match), queue_(queue), defaults_(defaults), selectedLanguage_(storedLanguage(defaults)) {}

void PlayerSettings::setRedAIOn(bool on) {
    if (std::exchange(redAIOn_, on) == on) {
        return;
    }
    later([this, on] {
        match_.redIsAI = on;
        match_.triggerAIIfNeeded();
    });
    emit redAIOnChanged();
}

void PlayerSettings::setBlueAIOn(bool on) {
    if (std::exchange(blueAIOn_, on) == on) {
        return;
    }
    later([this, on] {
        // A tournament that has just begun has set this, and announced blue's country, already.
        if (match_.blueIsAI != on) {
            match_.blueIsAI = on;
        }
    });
    emit blueAIOnChanged();
}

void PlayerSettings::setDifficulty(AIDifficulty difficulty) {
    if (std::exchange(difficulty_, difficulty) == difficulty) {
        return;
    }
    later([this, difficulty] { match_.aiDifficulty = difficulty; });
    emit difficultyChanged();
}

void PlayerSettings::setDifficultyIndex(int index) {
    if (index >= 0 && index < static_cast<int>(allDifficulties.size())) {
        setDifficulty(allDifficulties[static_cast<std::size_t>(index)]);
    }
}

void PlayerSettings::setSelectedCountry(Country country) {
    selectedCountry_ = country;
    emit choicesChanged();
}

void PlayerSettings::setSelectedClass(BocciaClass sportClass) {
    selectedClass_ = sportClass;
    emit choicesChanged();
}

void PlayerSettings::setStartingTournament(bool tournament) {
    startingTournament_ = tournament;
}

QString PlayerSettings::fontFamily() const {
    return vorbel::fontFamily(selectedLanguage_);
}

void PlayerSettings::setSelectedLanguage(AppLanguage language) {
    if (std::exchange(selectedLanguage_, language) == language) {
        return;
    }
    defaults_.setText(languageKey, std::string(rawValue(language)));
    later([this, language] { match_.language = language; });
    emit languageChanged();
}

void PlayerSettings::handOverLanguage() {
    match_.language = selectedLanguage_;
}

void PlayerSettings::handOverChoices() {
    match_.playerClass = selectedClass_;
    match_.playerCountry = selectedCountry_;
    handOverLanguage();
}

void PlayerSettings::later(MainQueue::Task change) {
    queue_.post(lifetime_.whileAlive(std::move(change)));
}

} // namespace vorbel
