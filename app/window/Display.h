// What the desktop offers to draw on.
#pragma once

class QQuickWindow;

namespace vorbel {

// For as long as it lives, whatever the toolkit gives up for ends the program with status 1 and one clear
// line: that no display can be reached, or else what the toolkit said. Make it before the application object.
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
