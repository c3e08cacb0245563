// Which action has which press, and what is stored of that.
#include "app/keys/Assignments.h"
#include "app/keys/PressedKey.h"

#include <Qt>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbel {

using testing::ElementsAre;
using testing::IsEmpty;

class AssignmentsTest : public testing::Test {
protected:
    const Assignments standard{&ActionRow::key};
    Assignments keys{&ActionRow::key};

    [[nodiscard]] Assignments readFrom(std::string_view text) const {
        Assignments read{&ActionRow::key};
        read.read(text, &isFreeKey);
        return read;
    }
};

TEST_F(AssignmentsTest, AtFirstTheyAreThoseOfTheGivenGame) {
    EXPECT_THAT(keys.of(GameAction::left), ElementsAre(Qt::Key_Left));
    EXPECT_THAT(keys.of(GameAction::accept), ElementsAre(Qt::Key_Space));
    EXPECT_THAT(keys.of(GameAction::menu), IsEmpty());
    EXPECT_EQ(keys.actionOf(Qt::Key_M), GameAction::mute);
    EXPECT_EQ(keys.actionOf(Qt::Key_A), std::nullopt);
}

TEST_F(AssignmentsTest, AnActionHasUpToThree) {
    EXPECT_TRUE(keys.give(GameAction::left, Qt::Key_A));
    EXPECT_TRUE(keys.give(GameAction::left, Qt::Key_B));
    EXPECT_FALSE(keys.give(GameAction::left, Qt::Key_C));
    EXPECT_TRUE(keys.give(GameAction::left, Qt::Key_B)) << "it has that one already";
    EXPECT_THAT(keys.of(GameAction::left), ElementsAre(Qt::Key_Left, Qt::Key_A, Qt::Key_B));
}

TEST_F(AssignmentsTest, APressGoesOverToTheActionThatGetsIt) {
    EXPECT_TRUE(keys.give(GameAction::menu, Qt::Key_M));
    EXPECT_THAT(keys.of(GameAction::mute), IsEmpty());
    EXPECT_THAT(keys.of(GameAction::menu), ElementsAre(Qt::Key_M));
}

TEST_F(AssignmentsTest, NobodyIsLeftWithoutWhatThePlayNeeds) {
    EXPECT_TRUE(keys.isIndispensable(Qt::Key_Space));
    EXPECT_FALSE(keys.give(GameAction::menu, Qt::Key_Space));
    EXPECT_FALSE(keys.takeAway(Qt::Key_Space));
    EXPECT_EQ(keys, standard);
    keys.give(GameAction::accept, Qt::Key_A);
    EXPECT_TRUE(keys.give(GameAction::menu, Qt::Key_Space));
    EXPECT_THAT(keys.of(GameAction::accept), ElementsAre(Qt::Key_A));
    EXPECT_FALSE(keys.isIndispensable(Qt::Key_M));
}

TEST_F(AssignmentsTest, WhatIsStoredIsReadAgain) {
    keys.give(GameAction::left, Qt::Key_A);
    keys.give(GameAction::menu, Qt::Key_M);
    keys.takeAway(Qt::Key_Backspace);
    EXPECT_EQ(readFrom(keys.text()), keys);
    EXPECT_EQ(readFrom(""), standard);
}

TEST_F(AssignmentsTest, AnActionThatIsNotNamedKeepsWhatIsNotGivenAway) {
    const Assignments read = readFrom("accept 65 77");
    EXPECT_THAT(read.of(GameAction::accept), ElementsAre(Qt::Key_A, Qt::Key_M));
    EXPECT_THAT(read.of(GameAction::mute), IsEmpty());
    EXPECT_THAT(read.of(GameAction::left), ElementsAre(Qt::Key_Left));
}

TEST_F(AssignmentsTest, WhatIsDamagedIsLeftAlone) {
    for (const char* damaged : {"accept", "left 65 66 67 68", "left 65 65", "left 65 right 65", "65",
                                "left x", "left 65x", "left -3", "left 0", "flight 65", "left 16777216",
                                "left 99999999999999", "accept 16777234", "left,65", "left 65\x01"}) {
        EXPECT_EQ(readFrom(damaged), standard) << damaged;
    }
}

} // namespace vorbel
