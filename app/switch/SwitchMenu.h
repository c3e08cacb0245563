// The menus with one switch: which control is offered, and how it is pressed.
#pragma once

#include "app/switch/MenuWalk.h"

#include <QPointer>
#include <QRectF>
#include <QString>

#include <vector>

class QQuickItem;
class QQuickWindow;

namespace vorbel {

// Walks through the controls of the open screen that take the keyboard, and the titles of the menu bar; or, while a
// menu of the bar is open, through its commands. Main thread only.
class SwitchMenu {
public:
    // The window must outlive it.
    explicit SwitchMenu(QQuickWindow& window) : window_(window) {}

    void beginAnew(); // another screen is open, or its controls have changed
    void advance();   // offers the next
    void press();     // presses what is offered

    [[nodiscard]] bool isDropDownOpen() const;
    // What is offered, where the focus alone does not say it.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QRectF frame() const; // around what is offered, in the window; empty while the walk rests

private:
    using Controls = std::vector<QPointer<QQuickItem>>;

    void gather();
    void gatherScreen();
    [[nodiscard]] bool isUpToDate() const; // all that was gathered is still there to be pressed
    void show();
    void activate(QQuickItem& control);

    QQuickWindow& window_;
    Controls controls_;
    bool inDropDown_ = false;
    MenuWalk walk_{{}};
};

} // namespace vorbel
