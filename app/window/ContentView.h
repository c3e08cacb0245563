// The content of the game's window: owns the match and everything that shows it or changes it for the player.
#pragma once

#include "app/career/Career.h"
#include "app/career/CareerRecorder.h"
#include "app/hud/HudModel.h"
#include "app/keys/GameControls.h"
#include "app/keys/Hints.h"
#include "app/keys/PressCatcher.h"
#include "app/match/MatchChanges.h"
#include "app/menu/MenuModel.h"
#include "app/options/LeaveQuestion.h"
#include "app/options/MatchOptions.h"
#include "app/options/Options.h"
#include "app/options/SightOptions.h"
#include "app/options/SoundNotes.h"
#include "app/options/SoundOptions.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/speech/AimTone.h"
#include "app/speech/Announcer.h"
#include "app/switch/OneSwitch.h"
#include "app/window/Keyboard.h"
#include "engine/GameLogic.h"
#include "platform/store/UserDefaults.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <utility>
#include <vector>

namespace vorbel {

class NotificationCenter;

// What moves the match and its chance, where they are not the program's own: for a match that is recorded or played again.
struct MatchServices {
    MainQueue& queue;
    RandomSource& random;
};

// Main thread only.
class ContentView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program before its window")

    Q_PROPERTY(vorbel::PlayerSettings* settings READ settings CONSTANT FINAL)
    Q_PROPERTY(vorbel::Keyboard* keyboard READ keyboard CONSTANT FINAL)
    Q_PROPERTY(vorbel::HudModel* hud READ hud CONSTANT FINAL)
    Q_PROPERTY(vorbel::Options* options READ options CONSTANT FINAL)
    Q_PROPERTY(vorbel::GameControls* controls READ controls CONSTANT FINAL)
    Q_PROPERTY(vorbel::SoundNotes* soundNotes READ soundNotes CONSTANT FINAL)
    Q_PROPERTY(vorbel::LeaveQuestion* leaving READ leaving CONSTANT FINAL)
    Q_PROPERTY(vorbel::OneSwitch* oneSwitch READ oneSwitch CONSTANT FINAL)
    Q_PROPERTY(vorbel::Announcer* announcer READ announcer CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuModel* menu READ menu CONSTANT FINAL)

public:
    // The services and the defaults must outlive the view.
    ContentView(const Platform& platform, UserDefaults& defaults)
        : ContentView(platform, defaults, {platform.mainQueue, platform.random}) {}
    ContentView(const Platform& platform, UserDefaults& defaults, const MatchServices& ofMatch);

    // Call once, when the view is first shown: starts the tick and gives the match the stored language.
    void appear();

    void useController(ControllerFamily family); // such a one was used just now

    // Call once: from now on each of the shell's notifications opens its screen.
    void receiveNotifications(NotificationCenter& center);

    [[nodiscard]] GameLogic& gameLogic() { return gameLogic_; }
    [[nodiscard]] MatchChanges& changes() { return changes_; }
    [[nodiscard]] const Resources& resources() const { return platform_.resources; }
    [[nodiscard]] Career& career() { return career_; }
    [[nodiscard]] OpenMenu& openMenu() { return openMenu_; }
    [[nodiscard]] PlayerSettings* settings() { return &settings_; }
    [[nodiscard]] Keyboard* keyboard() { return &keyboard_; }
    [[nodiscard]] HudModel* hud() { return &hud_; }
    [[nodiscard]] Options* options() { return &options_; }
    [[nodiscard]] GameControls* controls() { return &controls_; }
    [[nodiscard]] Hints& hints() { return hints_; }
    [[nodiscard]] SoundNotes* soundNotes() { return &soundNotes_; }
    [[nodiscard]] LeaveQuestion* leaving() { return &leaving_; }
    [[nodiscard]] OneSwitch* oneSwitch() { return &oneSwitch_; }
    [[nodiscard]] PressCatcher& catcher() { return catcher_; }
    [[nodiscard]] Announcer* announcer() { return &announcer_; }
    [[nodiscard]] MenuModel* menu() { return &menu_; }

private:
    void refresh();
    void updatePointer();

    AdjustableAudio audio_;
    Platform platform_; // with that sound
    GameLogic gameLogic_;
    PlayerSettings settings_;
    Options options_;
    GameControls controls_;
    Hints hints_{controls_};
    SoundOptions soundOptions_;
    SoundNotes soundNotes_;
    OpenMenu openMenu_;
    LeaveQuestion leaving_;
    MatchOptions matchOptions_;
    PressCatcher catcher_;
    OneSwitch oneSwitch_;
    Career career_;
    CareerRecorder recorder_;
    MatchChanges changes_;
    SightOptions sightOptions_;
    AimTone aimTone_;
    Keyboard keyboard_;
    HudModel hud_;
    Announcer announcer_;
    MenuModel menu_;
    std::vector<Subscription> notifications_;
    std::pair<double, double> shownAim_{0, 0}; // angle and pitch that the pointer was last turned to
};

} // namespace vorbel
