// How many frames a second this machine shows.
#pragma once

#include "app/window/ContentView.h"

#include <QElapsedTimer>
#include <QObject>

class QQuickWindow;

namespace vorbel {

// Lets the computer play itself in the window for two seconds from the first frame on, asks for a frame as soon as
// one was shown, prints one line and ends the application; also when no frame ever comes. The window must outlive it.
class FrameRate final : public QObject {
    Q_OBJECT

public:
    FrameRate(ContentView& view, QQuickWindow& window);

private:
    void frameShown();
    void finish();

    QQuickWindow& window_;
    QElapsedTimer sinceFirst_;
    int frames_ = 0; // after the first
};

} // namespace vorbel
