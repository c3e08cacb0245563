// The game's real window with its menu, in this process, on a clock that moves only when told to.
#pragma once

#include "app/shell/NotificationCenter.h"
#include "app/shell/VorbelApp.h"
#include "app/window/ContentView.h"
#include "platform/HeadlessPlatform.h"
#include "platform/store/MemoryDefaults.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <string>
#include <vector>

namespace vorbel {

inline constexpr MenuScreen allScreens[] = {
    MenuScreen::main,  MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules,      MenuScreen::about,
    MenuScreen::diary, MenuScreen::options, MenuScreen::leave,   MenuScreen::matchResult};

[[nodiscard]] Resources gameResources(); // those of the tree

class MenuWindow {
public:
    explicit MenuWindow(const Resources& resources = gameResources());

    [[nodiscard]] ContentView& view() { return view_; }
    OneSwitch& oneSwitch(); // listening, as in the game, to all that is pressed
    [[nodiscard]] MemoryDefaults& defaults() { return defaults_; }
    [[nodiscard]] QQuickWindow& window() { return *window_; }
    [[nodiscard]] VirtualQueue& queue() { return platform_.queue; }
    [[nodiscard]] QQuickItem& menu() const; // the overlay

    [[nodiscard]] QStringList complaints() const { return complaints_; } // of the QML engine

    void setLanguage(AppLanguage language);
    void open(MenuScreen screen);
    void settle();                                           // lets everything that is due happen
    void wait(double seconds);                               // of the game's clock
    void press(Qt::Key key, int times = 1);                  // in the window
    void click(QQuickItem& item);                            // in its middle, with the mouse
    [[nodiscard]] QQuickItem* button(const QString& text);   // that is seen and can be pressed, or null
    [[nodiscard]] QImage picture();                          // of the window
    void layOut() { static_cast<void>(picture()); }          // places are right only after drawing
    [[nodiscard]] QQuickItem* focus() const;                 // the control that has the keyboard
    [[nodiscard]] QString focusedText() const;               // of that control
    [[nodiscard]] std::vector<QQuickItem*> controls() const; // buttons, switches and links of the open screen
    [[nodiscard]] QQuickItem&
    control(const QString& text) const; // the first of them with that text; one must be there

private:
    HeadlessPlatform platform_{1};
    MemoryDefaults defaults_;
    NotificationCenter notifications_;
    ContentView view_;
    VorbelApp shell_{*view_.settings(), notifications_};
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
    QStringList complaints_;
};

// The visible items below one, itself included, that the predicate holds for; parents before children.
template <typename Predicate>
void collect(QQuickItem& item, Predicate wanted, std::vector<QQuickItem*>& found) {
    if (!item.isVisible()) {
        return;
    }
    if (wanted(item)) {
        found.push_back(&item);
    }
    for (QQuickItem* child : item.childItems()) {
        collect(*child, wanted, found);
    }
}

[[nodiscard]] QRectF inScene(const QQuickItem& item); // where it lies in the window

[[nodiscard]] bool isOfType(const QQuickItem& item,
                            const char* className); // its own type or one it derives from

} // namespace vorbel
