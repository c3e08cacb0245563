// The Russian sentences of the message line, each as it is shown: they are composed in code, where no list of
// texts holds them.
#include "engine/Messages.h"

#include <gtest/gtest.h>

namespace vorbel {
namespace {

constexpr AppLanguage ru = AppLanguage::ru;

TEST(RussianMessagesTest, LeadThroughAThrow) {
    EXPECT_EQ(messages::aimingHint(ru), "Стрелки [←][→] и [↑][↓] для прицела. [ПРОБЕЛ] - ок.");
    EXPECT_EQ(messages::lockPower(ru), "[ПРОБЕЛ] Зафиксировать силу броска");
    EXPECT_EQ(messages::ballInPlay(ru), "Мяч в игре...");
    EXPECT_EQ(messages::aiAiming(ru, BallColor::red), "ИИ (Красные) целится...");
    EXPECT_EQ(messages::aiAiming(ru, BallColor::blue), "ИИ (Синие) целится...");
}

TEST(RussianMessagesTest, SayWhoseTurnItIs) {
    EXPECT_EQ(messages::turn(ru, BallColor::red), "Ход Красных. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::turn(ru, BallColor::blue), "Ход Синих. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::jackOut(ru, BallColor::red),
              "Кон в недопустимой зоне! Ход переходит красным. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::jackOut(ru, BallColor::blue),
              "Кон в недопустимой зоне! Ход переходит синим. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::newEndStart(ru, 3, BallColor::red), "Начат Энд 3. Ход Красных. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::newEndStart(ru, 2, BallColor::blue), "Начат Энд 2. Ход Синих. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::tieBreak(ru, 5, BallColor::red),
              "Ничья в матче! Доп. энд 5: кон установлен в центре. Ход Красных. [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::tieBreak(ru, 6, BallColor::blue),
              "Ничья в матче! Доп. энд 6: кон установлен в центре. Ход Синих. [ПРОБЕЛ] для прицела");
}

TEST(RussianMessagesTest, TellTheResultOfAnEnd) {
    EXPECT_EQ(messages::endResult(ru, {1, 2, 0}), "Красные взяли энд! Очков: 2.");
    EXPECT_EQ(messages::endResult(ru, {1, 0, 3}), "Синие взяли энд! Очков: 3.");
    EXPECT_EQ(messages::endResult(ru, {1, 0, 0}), "Ничья в энде!");
    EXPECT_EQ(messages::endResult(ru, {1, 2, 1}), "Равноудалённые мячи! Красные +2, Синие +1.");
    EXPECT_EQ(messages::nextEndPrompt(ru, {1, 0, 3}),
              "Синие взяли энд! Очков: 3. [ПРОБЕЛ] для следующего энда");
    EXPECT_EQ(messages::nextEndPrompt(ru, {1, 0, 0}), "Ничья в энде! [ПРОБЕЛ] для следующего энда");
}

TEST(RussianMessagesTest, TellTheResultOfAMatch) {
    EXPECT_EQ(messages::teamWinMatch(ru, BallColor::red), "КРАСНЫЕ ВЫИГРАЛИ МАТЧ!");
    EXPECT_EQ(messages::teamWinMatch(ru, BallColor::blue), "СИНИЕ ВЫИГРАЛИ МАТЧ!");
    EXPECT_EQ(messages::matchOver(ru, 7, 4), "КРАСНЫЕ ВЫИГРАЛИ МАТЧ! Счет 7:4. [ПРОБЕЛ] для новой игры");
    EXPECT_EQ(messages::matchOver(ru, 2, 5), "СИНИЕ ВЫИГРАЛИ МАТЧ! Счет 2:5. [ПРОБЕЛ] для новой игры");
}

TEST(RussianMessagesTest, LeadThroughATournament) {
    EXPECT_EQ(messages::tournamentRound(ru, 1, Country::southKorea),
              "Турнир, раунд 1/4! Соперник: Южная Корея (Лёгкий). [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::tournamentRound(ru, 4, Country::poland),
              "Турнир, раунд 4/4! Соперник: Польша (Ультра). [ПРОБЕЛ] для прицела");
    EXPECT_EQ(messages::tournamentEliminated(ru, 2),
              "Турнир окончен: вылет в раунде 2/4. [ПРОБЕЛ] для новой игры");
    EXPECT_EQ(messages::tournamentChampion(ru),
              "ЧЕМПИОН ТУРНИРА! Вы выиграли все 4 раунда! [ПРОБЕЛ] для новой игры");
}

// The other languages fill their templates; the arguments come in the order that every template expects.
TEST(EnglishMessagesTest, FillTheTemplates) {
    constexpr AppLanguage en = AppLanguage::en;
    EXPECT_EQ(messages::newEndStart(en, 2, BallColor::blue), "End 2 started. Blue's turn. [SPACE] to aim");
    EXPECT_EQ(messages::tieBreak(en, 5, BallColor::red),
              "Match tied! Extra end 5: jack placed at center. Red's turn. [SPACE] to aim");
    EXPECT_EQ(messages::nextEndPrompt(en, {1, 2, 0}), "Red won the end! Points: 2. [SPACE] for the next end");
    EXPECT_EQ(messages::endResult(en, {1, 2, 1}), "Red +2, Blue +1");
    EXPECT_EQ(messages::matchOver(en, 2, 5), "Blue WIN THE MATCH! Score 2:5. [SPACE] for a new game");
    EXPECT_EQ(messages::tournamentRound(en, 3, Country::poland),
              "Tournament round 3/4! Opponent: Poland (Hard). [SPACE] to aim");
    EXPECT_EQ(messages::tournamentEliminated(en, 2),
              "Tournament over: eliminated in round 2/4. [SPACE] for a new game");
    EXPECT_EQ(messages::tournamentChampion(en),
              "TOURNAMENT CHAMPION! You won all 4 rounds! [SPACE] for a new game");
}

} // namespace
} // namespace vorbel
