#include "app/keys/PressedKey.h"

#include "app/keys/LatinKeys.h"
#include "app/text/Texts.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace vorbel {

namespace {

constexpr std::array modifierKeys{Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_Alt,     Qt::Key_AltGr,
                                  Qt::Key_Meta,    Qt::Key_Super_L,    Qt::Key_Super_R, Qt::Key_CapsLock,
                                  Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Hyper_L, Qt::Key_Hyper_R};
constexpr std::array menuKeys{Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
                              Qt::Key_Home,   Qt::Key_End, Qt::Key_F10,     Qt::Key_F11};

constexpr int lastCharacter = 0xffff; // of those that keyboards have

QString arrow(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QStringLiteral("←");
    case Qt::Key_Right:
        return QStringLiteral("→");
    case Qt::Key_Up:
        return QStringLiteral("↑");
    case Qt::Key_Down:
        return QStringLiteral("↓");
    default:
        return {};
    }
}

} // namespace

int pressedKey(const QKeyEvent& event) {
    const Qt::Key latin = latinKeyAt(event);
    return latin != Qt::Key(0) ? latin : event.key();
}

bool isModifier(int key) {
    return std::ranges::find(modifierKeys, key) != modifierKeys.end();
}

bool belongsToMenus(int key) {
    return std::ranges::find(menuKeys, key) != menuKeys.end();
}

bool isFreeKey(int key) {
    const bool hasCharacter = key >= Qt::Key_Space && key <= lastCharacter && QChar(key).isPrint() &&
                              QChar(key).toUpper() == QChar(key);
    const bool hasNone = key >= Qt::Key_Escape && key < Qt::Key_unknown;
    return (hasCharacter || hasNone) && !isModifier(key) && !belongsToMenus(key);
}

QString keyName(int key, AppLanguage language) {
    if (key == Qt::Key_Space) {
        return text("key.space", language);
    }
    const QString shape = arrow(key);
    return shape.isEmpty() ? QKeySequence(key).toString(QKeySequence::NativeText) : shape;
}

} // namespace vorbel
