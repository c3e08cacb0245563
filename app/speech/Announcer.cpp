#include "app/speech/Announcer.h"

#include <QAccessible>

namespace vorbel {

bool Announcer::isHeard() {
    return QAccessible::isActive();
}

void Announcer::announceThrough(QQuickItem* item) {
    item_ = item;
}

void Announcer::say(const std::string& text, std::string_view /*language*/, bool /*urgent*/) {
    if (item_.isNull()) {
        return;
    }
    text_ = QString::fromStdString(text);
    emit textChanged();
    QAccessibleEvent shown(item_, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace vorbel
