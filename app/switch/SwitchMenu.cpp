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

QRectF inWindow(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

} // namespace

void SwitchMenu::beginAnew() {
    gather();
    show();
}

// From the control that has the keyboard, which is the one to go on with.
void SwitchMenu::gather() {
    // Than any screen has: the chain of an unfinished screen may be no circle.
    constexpr std::size_t more = 500;
    controls_.clear();
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
    walk_ = MenuWalk(groups);
}

bool SwitchMenu::isUpToDate() const {
    return !controls_.empty() && std::ranges::all_of(controls_, &canBePressed, &QPointer<QQuickItem>::get);
}

void SwitchMenu::advance() {
    if (!isUpToDate()) {
        return beginAnew();
    }
    walk_.advance();
    show();
}

void SwitchMenu::show() {
    if (const auto range = walk_.current(); range && isUpToDate()) {
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
    }
}

// As by Return; what only scrolls goes on by a page.
void SwitchMenu::activate(QQuickItem& control) {
    const Qt::Key key = control.inherits("QQuickFlickable") ? Qt::Key_PageDown : Qt::Key_Return;
    control.forceActiveFocus(Qt::TabFocusReason);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &press);
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
