// A Wayland desktop inside the virtual display.
#pragma once

#include "tests/scenario/program/Program.h"

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>

namespace vorbel {

// Weston without panel, in one window in the upper left corner, where the pointer rests too; ended with this object.
class Compositor {
public:
    [[nodiscard]] static bool isInstalled();

    // The screen's size is in points.
    explicit Compositor(QSize screen, int scale = 1);
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    [[nodiscard]] bool isReady(); // waits until it shows its empty desktop
    [[nodiscard]] Program::Environment environment() const;
    [[nodiscard]] QRect screen() const { return screen_; } // in pixels
    [[nodiscard]] QImage picture() const;

    // What hides the empty desktop: the game's window with its decoration, in pixels. Null when nothing does.
    [[nodiscard]] QRect covered() const;

private:
    QRect screen_;
    QTemporaryDir place_;
    QProcess process_;
};

} // namespace vorbel
