#include "app/keys/LatinKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <string_view>
#include <utility>

namespace vorbel {

namespace {

struct Row {
    quint32 firstCode; // of the kernel, and 8 more
    std::string_view keys;
};

constexpr Row rows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM,"}};

bool isLetterOfAnotherScript(int key) {
    constexpr int lastOfLatin1 = 0xff;
    return key > lastOfLatin1 && key < Qt::Key_Escape; // the keys without a character begin there
}

constexpr Qt::KeyboardModifiers modifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

} // namespace

Qt::Key latinKeyAt(const QKeyEvent& event) {
    if (isLetterOfAnotherScript(event.key())) {
        for (const auto& [first, keys] : rows) {
            const quint32 place = event.nativeScanCode() - first; // wraps around before the row
            if (place < keys.size()) {
                return static_cast<Qt::Key>(keys[place]);
            }
        }
    }
    return Qt::Key(0);
}

LatinKeys::LatinKeys(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

void LatinKeys::setSequences(const QVariantList& sequences) {
    if (std::exchange(sequences_, sequences) != sequences) {
        emit sequencesChanged();
    }
}

void LatinKeys::setEnabled(bool enabled) {
    if (std::exchange(enabled_, enabled) != enabled) {
        emit enabledChanged();
    }
}

bool LatinKeys::eventFilter(QObject* receiver, QEvent* event) {
    if (!enabled_ || event->type() != QEvent::KeyPress || !receiver->isWindowType() ||
        !matches(static_cast<const QKeyEvent&>(*event))) {
        return false;
    }
    emit activated();
    return true;
}

bool LatinKeys::matches(const QKeyEvent& event) const {
    const Qt::Key key = latinKeyAt(event);
    return key != Qt::Key(0) && std::ranges::any_of(sequences_, [&](const QVariant& sequence) {
               return QKeySequence(sequence.toString())[0] ==
                      QKeyCombination(event.modifiers() & modifiers, key);
           });
}

} // namespace vorbel
