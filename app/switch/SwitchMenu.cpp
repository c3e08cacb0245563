#include "app/switch/SwitchMenu.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace vorbel {

namespace {

// Screens mark what holds many controls that belong together.
const QQuickItem* groupOf(const QQuickItem& control) {
    const QQuickItem* parent = control.parentItem();
    while (parent != nullptr && !parent->property("switchGroup").toBool()) {
        parent = parent->parentItem();
    }
    return parent;
}

bool canBePressed(const QQuickItem* control) {
    return control != nullptr && control->isVisible() && control->isEnabled();
}

// What has no place in the order of the focus, marked by a property of this name, in the order in which it is seen.
void collect(QQuickItem& item, const char* mark, std::vector<QPointer<QQuickItem>>& found) {
    if (!canBePressed(&item)) {
        return;
    }
    if (item.property(mark).toBool()) {
        found.emplace_back(&item);
    }
    for (QQuickItem* const child : item.childItems()) {
        collect(*child, mark, found);
    }
}

constexpr const char* titleMark = "switchTitle";     // of a menu in the menu bar
constexpr const char* commandMark = "switchCommand"; // in such a menu

QRectF inWindow(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

} // namespace

void SwitchMenu::beginAnew() {
    gather();
    show();
}

void SwitchMenu::gather() {
    controls_.clear();
    collect(*window_.contentItem(), commandMark, controls_);
    inDropDown_ = !controls_.empty();
    if (inDropDown_) {
        walk_ = MenuWalk(std::vector<int>(controls_.size(), 0));
    } else {
        gatherScreen();
    }
}

// From the control that has the keyboard, which is the one to go on with.
void SwitchMenu::gatherScreen() {
    // Than any screen has: the chain of an unfinished screen may be no circle.
    constexpr std::size_t more = 500;
    std::vector<int> groups;
    std::vector<const QQuickItem*> known{nullptr}; // by number
    QQuickItem* const first = window_.activeFocusItem();
    for (QQuickItem* item = first; item != nullptr && controls_.size() < more;) {
        if (item->activeFocusOnTab() && canBePressed(item)) {
            const auto place = std::ranges::find(known, groupOf(*item));
            groups.push_back(static_cast<int>(place - known.begin()));
            if (place == known.end()) {
                known.push_back(groupOf(*item));
            }
            controls_.emplace_back(item);
        }
        item = item->nextItemInFocusChain(true);
        item = item == first ? nullptr : item;
    }
    collect(*window_.contentItem(), titleMark, controls_);
    groups.resize(controls_.size(), 0);
    walk_ = MenuWalk(groups);
}

bool SwitchMenu::isDropDownOpen() const {
    Controls commands;
    collect(*window_.contentItem(), commandMark, commands);
    return !commands.empty();
}

bool SwitchMenu::isUpToDate() const {
    return !controls_.empty() && inDropDown_ == isDropDownOpen() &&
           std::ranges::all_of(controls_, &canBePressed, &QPointer<QQuickItem>::get);
}

void SwitchMenu::advance() {
    if (!isUpToDate()) {
        return beginAnew();
    }
    walk_.advance();
    if (inDropDown_ && !walk_.current()) {
        QMetaObject::invokeMethod(controls_.front(), "leave"); // nothing else leads out of it
    }
    show();
}

void SwitchMenu::show() {
    const auto range = walk_.current();
    if (range && isUpToDate() && !controls_[range->first]->property(titleMark).toBool()) {
        controls_[range->first]->forceActiveFocus(Qt::TabFocusReason);
    }
}

void SwitchMenu::press() {
    if (!isUpToDate()) {
        return beginAnew();
    }
    if (const auto place = walk_.press()) {
        activate(*controls_[*place]);
    }
    if (isUpToDate()) {
        show();
    } else if (isDropDownOpen()) {
        beginAnew();
    }
}

// As by Return, which menus of the bar do not know; what only scrolls goes on by a page.
void SwitchMenu::activate(QQuickItem& control) {
    if (control.property(titleMark).toBool() || control.property(commandMark).toBool()) {
        QMetaObject::invokeMethod(&control, "take");
        return;
    }
    const Qt::Key key = control.inherits("QQuickFlickable") ? Qt::Key_PageDown : Qt::Key_Return;
    control.forceActiveFocus(Qt::TabFocusReason);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &press);
}

QString SwitchMenu::name() const {
    const auto range = walk_.current();
    if (!range || !isUpToDate()) {
        return {};
    }
    const QString first = controls_[range->first]->property("text").toString();
    if (range->count > 1) {
        const QString last = controls_[range->first + range->count - 1]->property("text").toString();
        return first + QStringLiteral(" – ") + last;
    }
    return controls_[range->first]->property(titleMark).toBool() ? first : QString();
}

QRectF SwitchMenu::frame() const {
    const auto range = walk_.current();
    QRectF frame;
    if (range && isUpToDate()) {
        for (std::size_t i = 0; i < range->count; ++i) {
            frame = frame.united(inWindow(*controls_[range->first + i]));
        }
    }
    return frame;
}

} // namespace vorbel
