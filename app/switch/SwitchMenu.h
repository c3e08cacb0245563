// The menus with one switch: which control is offered, and how it is pressed.
#pragma once

#include "app/switch/MenuWalk.h"

#include <QPointer>
#include <QRectF>

#include <vector>

class QQuickItem;
class QQuickWindow;

namespace vorbel {

// Walks through the controls of the open screen that take the keyboard. Main thread only.
class SwitchMenu {
public:
    // The window must outlive it.
    explicit SwitchMenu(QQuickWindow& window) : window_(window) {}

    void beginAnew(); // another screen is open, or its controls have changed
    void advance();   // offers the next
    void press();     // presses what is offered

    [[nodiscard]] QRectF frame() const; // around what is offered, in the window; empty while the walk rests

private:
    void gather();
    [[nodiscard]] bool isUpToDate() const; // all that was gathered is still there to be pressed
    void show();
    void activate(QQuickItem& control);

    QQuickWindow& window_;
    std::vector<QPointer<QQuickItem>> controls_;
    MenuWalk walk_{{}};
};

} // namespace vorbel
