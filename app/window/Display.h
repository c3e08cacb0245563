// What the desktop offers to draw on.
#pragma once

class QQuickWindow;

namespace vorbel {

// For as long as it lives, a failure to reach any display ends the program with one clear sentence and
// status 1. Make it before the application object.
class DisplayGuard {
public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;
};

// Chooses how windows are drawn: OpenGL 3.3 or OpenGL ES 3.0, or without the arena where there is neither.
// Call it after the application object was made and before the first window.
void chooseGraphics();

// The rest of that choice. Call it before the window is first drawn.
void prepareWindow(QQuickWindow& window);

} // namespace vorbel
