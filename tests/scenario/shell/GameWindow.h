// The game's window as other programs on the desktop see it.
#pragma once

#include <QProcess>
#include <QRect>
#include <QString>

#include <optional>

namespace vorbel {

// A window manager of its own for the display, ended with this object.
class WindowManager {
public:
    WindowManager();
    ~WindowManager();
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    [[nodiscard]] bool isReady() const; // waits up to ten seconds

private:
    QProcess process_;
};

class GameWindow {
public:
    // Waits for it up to ten seconds; none when it does not appear.
    [[nodiscard]] static std::optional<GameWindow> find();

    // In pixels of the screen, without the decoration.
    [[nodiscard]] QRect frame() const;

    // What the window asks for and, under a window manager, how wide its decoration is on each side.
    [[nodiscard]] QString decoration() const;

    void place(const QRect& frame) const; // without waiting until it is there

private:
    explicit GameWindow(QString id) : id_(std::move(id)) {}

    QString id_;
};

void movePointer(QPoint place);

} // namespace vorbel
