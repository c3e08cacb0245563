// A Wayland desktop inside the virtual display.
#pragma once

#include "tests/scenario/program/Program.h"

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>

#include <vector>

namespace vorbel {

// Weston without panel, a window for each of its screens, which lie in a row from the upper left corner on, where the
// pointer rests too; ended with this object.
class Compositor {
public:
    struct Screen {
        QSize size; // in points
        int scale = 1;
    };

    [[nodiscard]] static bool isInstalled();

    explicit Compositor(const std::vector<Screen>& screens);
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    [[nodiscard]] bool isReady(); // waits until it shows its empty desktop
    [[nodiscard]] Program::Environment environment() const;

    // In pixels of the virtual display.
    [[nodiscard]] QRect screen(std::size_t number = 0) const { return screens_.at(number); }
    [[nodiscard]] QImage picture(std::size_t number = 0) const;

    // What hides the empty desktop of that screen: the game's window with its decoration, in the screen's pixels. Null
    // when nothing does.
    [[nodiscard]] QRect covered(std::size_t number = 0) const;

    // With the mouse, by that many pixels of the virtual display.
    void dragWindow(QPoint from, QPoint way) const;

private:
    void placeScreens() const;
    [[nodiscard]] bool isEmpty(std::size_t number) const;

    std::vector<QRect> screens_;
    QTemporaryDir place_;
    QProcess process_;
};

} // namespace vorbel
