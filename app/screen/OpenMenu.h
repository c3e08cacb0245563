// Which screen of the menu is open.
#pragma once

#include "app/screen/MenuScreen.h"

#include <QObject>

#include <utility>

namespace vorbel {

// The game starts with the main menu.
class OpenMenu final : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] MenuScreen menuScreen() const { return menuScreen_; }
    [[nodiscard]] bool isHidden() const { return menuScreen_ == MenuScreen::hidden; }

    void setMenuScreen(MenuScreen screen) {
        if (std::exchange(menuScreen_, screen) != screen) {
            emit menuScreenChanged();
        }
    }

signals:
    void menuScreenChanged();

private:
    MenuScreen menuScreen_ = MenuScreen::main;
};

} // namespace vorbel
