#include "app/window/HeldKeys.h"

#include <QInputDevice>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace vorbel {

class HeldKeysTest : public testing::Test {
protected:
    HeldKeys heldKeys;
    const QInputDevice keyboard{QString(), 1,
                                QInputDevice::DeviceType::Keyboard}; // Qt would make one and keep it

    // Whether the event goes no further.
    bool swallows(QEvent::Type type, Qt::Key key, quint64 time, bool marked = false, quint32 scanCode = 65) {
        QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, QString(), marked, 1, &keyboard);
        event.setTimestamp(time);
        return heldKeys.holdBack(event);
    }
    bool press(Qt::Key key, quint64 time) { return swallows(QEvent::KeyPress, key, time); }
    bool release(Qt::Key key, quint64 time) { return swallows(QEvent::KeyRelease, key, time); }
};

TEST_F(HeldKeysTest, APressInTheMomentOfItsReleaseIsARepeat) {
    EXPECT_FALSE(press(Qt::Key_Space, 1000));
    for (const quint64 time : {1660U, 1700U, 1740U}) {
        EXPECT_FALSE(release(Qt::Key_Space, time));
        EXPECT_TRUE(press(Qt::Key_Space, time));
    }
    EXPECT_FALSE(release(Qt::Key_Space, 1750));
    EXPECT_FALSE(press(Qt::Key_Space, 1751)) << "a quick second press is a press";
}

TEST_F(HeldKeysTest, WhatAssistiveTechnologyLetsPassHasNoTimeAndIsNoRepeat) {
    for (int time = 0; time < 2; ++time) {
        EXPECT_FALSE(press(Qt::Key_Return, 0));
        EXPECT_FALSE(release(Qt::Key_Return, 0));
    }
    EXPECT_FALSE(release(Qt::Key_Return, 1660));
    EXPECT_FALSE(release(Qt::Key_Return, 0)) << "the same one again";
    EXPECT_TRUE(press(Qt::Key_Return, 1660)) << "the repeat that came with it";
}

TEST_F(HeldKeysTest, ARepeatThatIsMarkedIsOneToo) {
    EXPECT_FALSE(press(Qt::Key_Return, 1000));
    EXPECT_TRUE(swallows(QEvent::KeyPress, Qt::Key_Return, 1660, true));
}

TEST_F(HeldKeysTest, AShortcutIsNotLookedForARepeat) {
    EXPECT_FALSE(release(Qt::Key_Space, 1660));
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Space, Qt::NoModifier, 65, 0, 0, QString(), false, 1,
                       &keyboard);
    override.setTimestamp(1660);
    override.ignore();
    EXPECT_TRUE(heldKeys.holdBack(override));
    EXPECT_TRUE(override.isAccepted());
    override.setTimestamp(1661);
    override.ignore();
    EXPECT_FALSE(heldKeys.holdBack(override));
    EXPECT_FALSE(override.isAccepted());
}

TEST_F(HeldKeysTest, AnotherKeyInTheSameMomentIsAPress) {
    EXPECT_FALSE(release(Qt::Key_Space, 1660));
    EXPECT_FALSE(press(Qt::Key_Return, 1660));
    EXPECT_FALSE(swallows(QEvent::KeyPress, Qt::Key_Space, 1660, false, 66)) << "at another place";
}

TEST_F(HeldKeysTest, KeysThatMoveSomethingRepeat) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab,
                              Qt::Key_Backtab, Qt::Key_PageUp, Qt::Key_PageDown}) {
        EXPECT_FALSE(release(key, 1660));
        EXPECT_FALSE(press(key, 1660)) << key;
        EXPECT_FALSE(swallows(QEvent::KeyPress, key, 1700, true)) << key;
    }
}

TEST_F(HeldKeysTest, AllOthersAreOneCommandAPress) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_F10,
                              Qt::Key_F11, Qt::Key_N, Qt::Key_F}) {
        EXPECT_TRUE(swallows(QEvent::KeyPress, key, 1700, true)) << key;
    }
}

TEST_F(HeldKeysTest, WhichKeysMoveSomethingCanBeSaid) {
    heldKeys.setMoving([](int key) { return key == Qt::Key_A; });
    EXPECT_TRUE(swallows(QEvent::KeyPress, Qt::Key_Left, 1700, true));
    EXPECT_FALSE(swallows(QEvent::KeyPress, Qt::Key_A, 1700, true));
}

} // namespace vorbel
