// The view-model of the game window: owns the match, keeps the player's settings, and is the only place where
// both meet. Settings flow one way, from here into the match.
//
// Its members are implemented in the files named after what they do; the comment above each group says where.
#pragma once

#include "app/hud/HudModel.h"
#include "app/menu/MenuModel.h"
#include "app/menu/MenuScreen.h"
#include "engine/GameLogic.h"
#include "platform/store/UserDefaults.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <utility>
#include <vector>

namespace vorbel {

struct DiaryEntry;
class NotificationCenter;

// Main thread only. The settings of one launch start afresh at the next one, but for those kept in the
// defaults: language, games played, athlete switch, experience and diary.
class ContentView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program before its window")

    Q_PROPERTY(vorbel::HudModel* hud READ hud CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuModel* menu READ menu CONSTANT FINAL)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool redAIOn READ redAIOn WRITE setRedAIOn NOTIFY redAIOnChanged FINAL)
    Q_PROPERTY(bool blueAIOn READ blueAIOn WRITE setBlueAIOn NOTIFY blueAIOnChanged FINAL)
    Q_PROPERTY(
        int difficultyIndex READ difficultyIndex WRITE setDifficultyIndex NOTIFY difficultyChanged FINAL)

public:
    // The services and the defaults must outlive the view.
    ContentView(const Platform& platform, UserDefaults& defaults);

    // Call once, when the view is first shown: starts the tick and gives the match the stored language.
    void appear();

    // While a picture is being drawn, changes of the match wait; afterwards they are shown together. A
    // display that is slower than the tick thus never holds the tick up.
    void holdRefreshes();
    void releaseRefreshes();

    [[nodiscard]] GameLogic& gameLogic() { return gameLogic_; }
    [[nodiscard]] const Resources& resources() const { return platform_.resources; }
    [[nodiscard]] HudModel* hud() { return &hud_; }
    [[nodiscard]] MenuModel* menu() { return &menu_; }

    // --- app/Settings.cpp: each change reaches the match a moment later, from the main queue

    [[nodiscard]] bool redAIOn() const { return redAIOn_; }
    [[nodiscard]] bool blueAIOn() const { return blueAIOn_; }
    [[nodiscard]] AIDifficulty difficulty() const { return difficulty_; }
    [[nodiscard]] int difficultyIndex() const { return static_cast<int>(difficulty_); }
    [[nodiscard]] MenuScreen menuScreen() const { return menuScreen_; }
    [[nodiscard]] Country selectedCountry() const { return selectedCountry_; }
    [[nodiscard]] BocciaClass selectedClass() const { return selectedClass_; }
    [[nodiscard]] bool startingTournament() const { return startingTournament_; } // not a single match
    [[nodiscard]] AppLanguage selectedLanguage() const { return selectedLanguage_; }
    [[nodiscard]] QString fontFamily() const; // for texts in that language

    void setRedAIOn(bool on);
    void setBlueAIOn(bool on);
    void setDifficulty(AIDifficulty difficulty);
    void setDifficultyIndex(int index); // position in allDifficulties; any other is ignored
    void setMenuScreen(MenuScreen screen);
    void setSelectedCountry(Country country);
    void setSelectedClass(BocciaClass sportClass);
    void setStartingTournament(bool tournament);
    void setSelectedLanguage(AppLanguage language); // kept in the defaults

    // --- app/Keyboard.cpp: the game's keys, which do nothing at all while a menu is open

    Q_INVOKABLE void pressAction();
    Q_INVOKABLE void pressLeft();
    Q_INVOKABLE void pressRight();
    Q_INVOKABLE void pressUp();
    Q_INVOKABLE void pressDown();
    Q_INVOKABLE void pressExitFullScreen(); // acts in every state

    // --- app/MatchEnd.cpp

    // Read from the defaults each time: another running game may have added to them.
    [[nodiscard]] int gamesPlayed() const;
    [[nodiscard]] bool isRealAthlete() const;
    [[nodiscard]] int athleteXP() const;
    [[nodiscard]] std::string diaryData() const; // JSON

    void setRealAthlete(bool is); // kept in the defaults

    // --- app/Notifications.cpp

    // Call once: from now on each of the shell's notifications opens its screen.
    void receiveNotifications(NotificationCenter& center);

signals:
    void redAIOnChanged();
    void blueAIOnChanged();
    void difficultyChanged();
    void menuScreenChanged();
    void choicesChanged(); // country or class
    void languageChanged();
    void careerChanged(); // games played, athlete switch, experience or diary
    void ticked();        // the match has moved on by one tick
    void refreshed();     // what is shown of the match may have changed
    void exitFullScreenRequested();

private:
    void observeMatch();
    template <typename T>
    void observe(Published<T>& value);
    void scheduleRefresh();
    void refresh();
    void updatePointer();
    void act(void (GameLogic::*operation)());
    void later(MainQueue::Task change);

    void recordFinishedMatch();
    void appendDiaryEntry(const DiaryEntry& entry);

    Platform platform_;
    UserDefaults& defaults_;

    GameLogic gameLogic_;
    bool redAIOn_ = false;
    bool blueAIOn_ = false;
    AIDifficulty difficulty_ = AIDifficulty::medium;
    MenuScreen menuScreen_ = MenuScreen::main;
    Country selectedCountry_ = Country::france;
    BocciaClass selectedClass_ = BocciaClass::bc4;
    bool startingTournament_ = false;
    AppLanguage selectedLanguage_;

    HudModel hud_;
    MenuModel menu_{*this};
    std::vector<Subscription> observations_;
    Subscription pulse_;
    bool refreshPending_ = false;
    bool refreshesHeld_ = false;
    GamePhase seenPhase_ = GamePhase::throwingJack;
    std::pair<double, double> shownAim_{0, 0}; // angle and pitch that the pointer was last turned to
    Lifetime lifetime_;
};

} // namespace vorbel
