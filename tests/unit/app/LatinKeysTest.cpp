#include "app/keys/LatinKeys.h"

#include <QInputDevice>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr quint32 placeOfN = 57;

} // namespace

class LatinKeysTest : public testing::Test {
protected:
    const QInputDevice keyboard{QString(), 1,
                                QInputDevice::DeviceType::Keyboard}; // Qt would make one and keep it

    [[nodiscard]] Qt::Key latinKey(int key, quint32 place) const {
        return latinKeyAt(QKeyEvent(QEvent::KeyPress, key, Qt::ControlModifier, place, 0, 0, QString(), false,
                                    1, &keyboard));
    }
};

TEST_F(LatinKeysTest, ALetterOfAnotherScriptStandsForTheLatinOneAtItsPlace) {
    EXPECT_EQ(latinKey(0x0422, placeOfN), Qt::Key_N) << "Cyrillic";
    EXPECT_EQ(latinKey(0x039d, placeOfN), Qt::Key_N) << "Greek";
    EXPECT_EQ(latinKey(0x0649, placeOfN), Qt::Key_N) << "Arabic";
    EXPECT_EQ(latinKey(0x0410, 41), Qt::Key_F);
}

TEST_F(LatinKeysTest, EachRowEndsWhereItsKeysEnd) {
    constexpr int yer = 0x042a;
    EXPECT_EQ(latinKey(yer, 23), Qt::Key(0));
    EXPECT_EQ(latinKey(yer, 24), Qt::Key_Q);
    EXPECT_EQ(latinKey(yer, 33), Qt::Key_P);
    EXPECT_EQ(latinKey(yer, 34), Qt::Key(0));
    EXPECT_EQ(latinKey(yer, 38), Qt::Key_A);
    EXPECT_EQ(latinKey(yer, 46), Qt::Key_L);
    EXPECT_EQ(latinKey(yer, 47), Qt::Key(0));
    EXPECT_EQ(latinKey(yer, 52), Qt::Key_Z);
    EXPECT_EQ(latinKey(yer, 58), Qt::Key_M);
    EXPECT_EQ(latinKey(yer, 59), Qt::Key_Comma);
    EXPECT_EQ(latinKey(yer, 60), Qt::Key(0));
}

TEST_F(LatinKeysTest, WhatTheToolkitKnowsItselfIsLeftToIt) {
    EXPECT_EQ(latinKey(Qt::Key_B, placeOfN), Qt::Key(0)) << "a Latin letter, at another place than usual";
    EXPECT_EQ(latinKey(Qt::Key_ydiaeresis, placeOfN), Qt::Key(0));
    EXPECT_EQ(latinKey(Qt::Key_Escape, placeOfN), Qt::Key(0));
}

} // namespace vorbel
