// The game's window as the desktop knows it.
#pragma once

#include "app/shell/WindowFrame.h"

#include <QObject>

class QScreen;
class QWindow;

namespace vorbel {

// Where a client may place its windows, full screen is a frameless window as large as the screen. On Wayland
// it may not: there it is the desktop's own full-screen state, which remembers the former frame as well.
class QtWindowFrame final : public QObject, public WindowFrame {
    Q_OBJECT

public:
    explicit QtWindowFrame(QWindow& window); // must outlive this

    [[nodiscard]] bool isShown() const override;
    [[nodiscard]] QRect frame() const override;
    [[nodiscard]] WindowStyle style() const override;
    [[nodiscard]] QRect screen() const override;
    [[nodiscard]] std::vector<QRect> screens() const override;
    [[nodiscard]] WindowStyle coveringStyle() const override;
    void setStyle(const WindowStyle& style) override;
    void setFrame(const QRect& frame) override;

signals:
    void screenChanged(); // another screen, or another size of it

private:
    void watch(QScreen* screen);

    QWindow& window_;
    QMetaObject::Connection watched_;
};

} // namespace vorbel
