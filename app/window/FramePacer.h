// Decides when the window draws its next picture: one at a time, and no more than the screen can show.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QQuickWindow;

namespace vorbel {

// Asking a window to draw while it still draws the last picture would block the main thread, and with it the
// game's tick, until that is done. So the next picture is asked for only when the last one was shown.
class FramePacer final : public QObject {
    Q_OBJECT

public:
    // The window must outlive this.
    explicit FramePacer(QQuickWindow& window);

    void request();    // a new picture, as soon as possible
    void frameBegan(); // main thread, or the render thread while the main thread waits for it
    void frameShown();

    // A window that is hidden in the middle of a picture never reports it as shown: call this now and then.
    void giveUpOnLostFrame();

signals:
    void idle(); // no picture is being drawn any more

private:
    void drawOnTime();

    QQuickWindow& window_;
    bool wanted_ = false;
    bool drawing_ = false;
    QElapsedTimer sinceBegin_; // of the last picture
    QTimer next_;
};

} // namespace vorbel
