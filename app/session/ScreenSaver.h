// The desktop's screen saver, which takes a player who only watches for one who has gone.
#pragma once

#include <QObject>

namespace vorbel {

class GameLogic;
class MatchChanges;
class OpenMenu;

// Holds it off while a ball rolls or the computer plays, through the desktop's own interface, and never waits for an
// answer. On a desktop without one it does nothing.
class ScreenSaver final : public QObject {
    Q_OBJECT

public:
    // All three must outlive it.
    ScreenSaver(const GameLogic& match, const OpenMenu& menu, const MatchChanges& changes);
    ~ScreenSaver() override;

    // Whether there is something to watch in which the player has no part.
    [[nodiscard]] static bool isWatching(const GameLogic& match, const OpenMenu& menu);

private:
    void follow();
    void hold();
    void letGo();

    const GameLogic& match_;
    const OpenMenu& menu_;
    bool wanted_ = false;
    bool asked_ = false; // and not answered yet
    uint cookie_ = 0;    // what the desktop knows our wish by; 0: it holds nothing off for us
};

} // namespace vorbel
