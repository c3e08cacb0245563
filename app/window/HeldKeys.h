// A key that is held down is one action, however long it is held.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

class QEvent;
class QKeyEvent;

namespace vorbel {

// Judges each event of the keyboard. Players with tremor or a slow release hold keys for long; the repeats of a held
// key never reach the game, but for the keys that move something: the aim, the focus, a page.
//
// Not every desktop marks the repeats. On X11 a repeat may come as a release and a press that share their time
// stamp, which no hand can do. While assistive technology is in use the toolkit lets it see each press and release
// first, and then sends a copy without a time: so the judge must stand before the application's event filters, and
// what has no time has been judged.
class HeldKeys {
public:
    // Whether a key moves something in every menu.
    [[nodiscard]] static bool movesInMenus(int key);

    // Whether a key moves something, where that is for the player to say. Until then it is as in menus.
    void setMoving(std::function<bool(int key)> moves) { moves_ = std::move(moves); }

    // Whether this is a repeat that must go no further.
    [[nodiscard]] bool holdBack(QEvent& event);

private:
    struct Stroke {
        int key = 0;
        std::uint32_t scanCode = 0;
        std::uint64_t time = 0; // ms, on the clock of the desktop; 0: none

        bool operator==(const Stroke&) const = default;
    };

    [[nodiscard]] static Stroke strokeOf(const QKeyEvent& event);
    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;

    std::function<bool(int key)> moves_ = &movesInMenus;
    Stroke lastRelease_;
};

} // namespace vorbel
