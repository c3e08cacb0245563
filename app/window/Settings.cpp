// The player's settings. A setting reaches the match as a task of its own, so that the match never changes
// while the view is being updated.
#include "app/text/Fonts.h"
#include "app/window/ContentView.h"

namespace vorbel {

void ContentView::setRedAIOn(bool on) {
    if (std::exchange(redAIOn_, on) == on) {
        return;
    }
    later([this, on] {
        gameLogic_.redIsAI = on;
        gameLogic_.triggerAIIfNeeded();
    });
    emit redAIOnChanged();
}

void ContentView::setBlueAIOn(bool on) {
    if (std::exchange(blueAIOn_, on) == on) {
        return;
    }
    later([this, on] {
        // A tournament that has just begun has set this, and announced blue's country, already.
        if (gameLogic_.blueIsAI != on) {
            gameLogic_.blueIsAI = on;
        }
    });
    emit blueAIOnChanged();
}

void ContentView::setDifficulty(AIDifficulty difficulty) {
    if (std::exchange(difficulty_, difficulty) == difficulty) {
        return;
    }
    later([this, difficulty] { gameLogic_.aiDifficulty = difficulty; });
    emit difficultyChanged();
}

void ContentView::setDifficultyIndex(int index) {
    if (index >= 0 && index < static_cast<int>(allDifficulties.size())) {
        setDifficulty(allDifficulties[static_cast<std::size_t>(index)]);
    }
}

void ContentView::setMenuScreen(MenuScreen screen) {
    if (std::exchange(menuScreen_, screen) != screen) {
        emit menuScreenChanged();
    }
}

void ContentView::setSelectedCountry(Country country) {
    selectedCountry_ = country;
    scheduleRefresh();
    emit choicesChanged();
}

void ContentView::setSelectedClass(BocciaClass sportClass) {
    selectedClass_ = sportClass;
    scheduleRefresh();
    emit choicesChanged();
}

void ContentView::setStartingTournament(bool tournament) {
    startingTournament_ = tournament;
}

QString ContentView::fontFamily() const {
    return vorbel::fontFamily(selectedLanguage_);
}

void ContentView::setSelectedLanguage(AppLanguage language) {
    if (std::exchange(selectedLanguage_, language) == language) {
        return;
    }
    defaults_.setText("boccia_language", std::string(rawValue(language)));
    later([this, language] { gameLogic_.language = language; });
    emit languageChanged();
}

} // namespace vorbel
