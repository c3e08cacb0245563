// Which keys can get a meaning, and what they are called.
#include "app/keys/PressedKey.h"

#include <QInputDevice>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace vorbel {

TEST(PressedKeyTest, KeysThatLeadThroughTheMenusKeepTheirMeaning) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
                              Qt::Key_F10, Qt::Key_F11, Qt::Key_Home, Qt::Key_End}) {
        EXPECT_TRUE(belongsToMenus(key)) << key;
        EXPECT_FALSE(isFreeKey(key)) << key;
    }
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta}) {
        EXPECT_TRUE(isModifier(key)) << key;
        EXPECT_FALSE(isFreeKey(key)) << key;
    }
}

TEST(PressedKeyTest, EveryOtherKeyIsFree) {
    for (const int key :
         {int{Qt::Key_Space}, int{Qt::Key_Left}, int{Qt::Key_A}, int{Qt::Key_5}, int{Qt::Key_F5},
          int{Qt::Key_Comma}, int{Qt::Key_Backspace}, int{Qt::Key_Odiaeresis}, 0x0416}) {
        EXPECT_TRUE(isFreeKey(key)) << key;
    }
}

TEST(PressedKeyTest, WhatIsNoKeyIsNotFree) {
    for (const int key : {0, -1, 7, int{'a'}, int{Qt::Key_unknown}, 0x7fffffff}) {
        EXPECT_FALSE(isFreeKey(key)) << key;
    }
}

TEST(PressedKeyTest, AKeyIsCalledWhatIsWrittenOnIt) {
    EXPECT_EQ(keyName(Qt::Key_Space, AppLanguage::en), "Space");
    EXPECT_EQ(keyName(Qt::Key_Space, AppLanguage::de), "Leertaste");
    EXPECT_EQ(keyName(Qt::Key_Left, AppLanguage::de), QStringLiteral("←"));
    EXPECT_EQ(keyName(Qt::Key_A, AppLanguage::ru), "A");
    EXPECT_EQ(keyName(Qt::Key_F5, AppLanguage::th), "F5");
}

TEST(PressedKeyTest, ALetterIsTheSameKeyUnderEveryLayout) {
    const QInputDevice keyboard{QString(), 1, QInputDevice::DeviceType::Keyboard};
    constexpr quint32 placeOfF = 41;
    constexpr int cyrillicA = 0x0410; // there
    const auto pressed = [&](int key) {
        return pressedKey(
            QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, placeOfF, 0, 0, QString(), false, 1, &keyboard));
    };
    EXPECT_EQ(pressed(cyrillicA), Qt::Key_F);
    EXPECT_EQ(pressed(Qt::Key_F), Qt::Key_F);
}

} // namespace vorbel
