#include "app/switch/OneSwitch.h"

#include "app/keys/PressCatcher.h"
#include "app/keys/PressedKey.h"
#include "app/options/Options.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"

#include <QKeyEvent>

#include <utility>

namespace vorbel {

namespace {

constexpr double millisecond = 0.001; // s

} // namespace

OneSwitch::OneSwitch(GameLogic& match, const Options& options, OpenMenu& openMenu,
                     const PlayerSettings& settings, PressCatcher& catcher, MainQueue& queue)
    : options_(options),
      openMenu_(openMenu),
      settings_(settings),
      catcher_(catcher),
      queue_(queue),
      throw_(match, options) {
    connect(&options_, &Options::changed, this, &OneSwitch::followOptions);
    connect(&settings_, &PlayerSettings::languageChanged, this, &OneSwitch::changed);
    connect(&catcher_, &PressCatcher::waitingChanged, this, &OneSwitch::changed);
    connect(&openMenu_, &OpenMenu::menuScreenChanged, this, [this] { beats_ = 0; });
    followOptions();
}

bool OneSwitch::isOn() const {
    return options_.isOn(Option::switchOn);
}

bool OneSwitch::isSwitch(int key) const {
    return isOn() && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter ||
                      (key != 0 && key == options_.value(Option::switchKey)));
}

bool OneSwitch::isSwitchKey(const QEvent& event) const {
    return isSwitch(pressedKey(static_cast<const QKeyEvent&>(event)));
}

bool OneSwitch::isMenuOpen() const {
    return !openMenu_.isHidden() || (menu_ && menu_->isDropDownOpen());
}

void OneSwitch::followOptions() {
    const int period = isOn() ? options_.value(Option::switchPace) / SwitchThrow::beatsOfAChoice : 0;
    if (std::exchange(period_, period) != period) {
        timer_ = period > 0 ? queue_.repeat(period * millisecond, [this] { beat(); }) : Subscription();
    }
    emit changed();
}

void OneSwitch::beat() {
    if (!isMenuOpen()) {
        throw_.beat();
    } else if (menu_ && !catcher_.isWaiting() && ++beats_ % SwitchThrow::beatsOfAChoice == 0) {
        menu_->advance();
    }
    emit changed();
}

void OneSwitch::press() {
    if (isOn() && !resting_) {
        rest();
        act();
        emit changed();
    }
}

void OneSwitch::rest() {
    if (const int time = options_.value(Option::switchRest); time > 0) {
        resting_ = true;
        queue_.postAfter(time * millisecond, lifetime_.whileAlive([this] { resting_ = false; }));
    }
}

void OneSwitch::act() {
    beats_ = 0;
    acting_ = true;
    if (!isMenuOpen()) {
        if (throw_.press() == SwitchThrow::Result::menuWanted) {
            openMenu_.setMenuScreen(MenuScreen::main);
        }
    } else if (menu_) {
        menu_->press();
    }
    acting_ = false;
}

QRectF OneSwitch::frame() const {
    return isOn() && isMenuOpen() && menu_ ? menu_->frame() : QRectF();
}

QString OneSwitch::prompt() const {
    if (!isOn()) {
        return {};
    }
    if (catcher_.isWaiting()) {
        return text("options.pressKey", settings_.selectedLanguage());
    }
    if (isMenuOpen()) {
        return frame().isEmpty() ? text("switch.resting", settings_.selectedLanguage()) : QString();
    }
    const auto key = throw_.prompt();
    return key ? text(*key, settings_.selectedLanguage()) : QString();
}

QString OneSwitch::spoken() const {
    const QString written = prompt();
    return written.isEmpty() && isOn() && isMenuOpen() && menu_ ? menu_->name() : written;
}

bool OneSwitch::eventFilter(QObject* receiver, QEvent* event) {
    if (!isOn() || acting_ || !receiver->isWindowType()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        if (isSwitchKey(*event)) {
            press();
            return true;
        }
        return false;
    case QEvent::ShortcutOverride:
        if (isSwitchKey(*event)) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyRelease:
        return isSwitchKey(*event);
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        press();
        return true;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return true;
    default:
        return false;
    }
}

} // namespace vorbel
