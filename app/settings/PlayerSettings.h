// The player's settings. They flow one way, from here into the match, which never writes back.
#pragma once

#include "engine/GameLogic.h"
#include "platform/store/UserDefaults.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string_view>

namespace vorbel {

inline constexpr std::string_view languageKey = "boccia_language"; // in the defaults

// Each launch starts with the same settings, but for the language, which is kept in the defaults. A change
// reaches the match a moment later, as a task of the main queue, so that the match never changes while the
// window is being updated; country and class reach it when play starts. Main thread only.
class PlayerSettings final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool redAIOn READ redAIOn WRITE setRedAIOn NOTIFY redAIOnChanged FINAL)
    Q_PROPERTY(bool blueAIOn READ blueAIOn WRITE setBlueAIOn NOTIFY blueAIOnChanged FINAL)
    Q_PROPERTY(
        int difficultyIndex READ difficultyIndex WRITE setDifficultyIndex NOTIFY difficultyChanged FINAL)

public:
    // All three must outlive it.
    PlayerSettings(GameLogic& match, MainQueue& queue, UserDefaults& defaults);

    [[nodiscard]] bool redAIOn() const { return redAIOn_; }
    [[nodiscard]] bool blueAIOn() const { return blueAIOn_; }
    [[nodiscard]] AIDifficulty difficulty() const { return difficulty_; }
    [[nodiscard]] int difficultyIndex() const { return static_cast<int>(difficulty_); }
    [[nodiscard]] Country selectedCountry() const { return selectedCountry_; }
    [[nodiscard]] BocciaClass selectedClass() const { return selectedClass_; }
    [[nodiscard]] bool startingTournament() const { return startingTournament_; } // not a single match
    [[nodiscard]] AppLanguage selectedLanguage() const { return selectedLanguage_; }
    [[nodiscard]] QString fontFamily() const; // for texts in that language

    void setRedAIOn(bool on);
    void setBlueAIOn(bool on);
    void setDifficulty(AIDifficulty difficulty);
    void setDifficultyIndex(int index); // position in allDifficulties; any other is ignored
    void setSelectedCountry(Country country);
    void setSelectedClass(BocciaClass sportClass);
    void setStartingTournament(bool tournament);
    void setSelectedLanguage(AppLanguage language); // kept in the defaults

    void handOverLanguage(); // gives it to the match at once
    void handOverChoices();  // class, country and language: for the match that is about to be played

signals:
    void redAIOnChanged();
    void blueAIOnChanged();
    void difficultyChanged();
    void choicesChanged(); // country or class
    void languageChanged();

private:
    void later(MainQueue::Task change);

    GameLogic& match_;
    MainQueue& queue_;
    UserDefaults& defaults_;
    bool redAIOn_ = false;
    bool blueAIOn_ = false;
    AIDifficulty difficulty_ = AIDifficulty::medium;
    Country selectedCountry_ = Country::france;
    BocciaClass selectedClass_ = BocciaClass::bc4;
    bool startingTournament_ = false;
    AppLanguage selectedLanguage_;
    Lifetime lifetime_;
};

} // namespace vorbel
