// Texts that are recordings, and texts that are none.
#include "recording/PhysicsId.h"
#include "recording/RecordedLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbel::recording {

namespace {

using testing::HasSubstr;

const std::string heading = lineOf(Heading{std::string(physicsId), {0xfedcba9876543210, 12}, {}});
const std::string press = lineOf(Entry{7, MatchAction{MatchAction::Kind::press, 0}});
const std::string result = lineOf(Entry{9, Result{3, {2, 1}, {{2, 0}, {0, 1}}}});

std::string refusalOf(const std::string& text) {
    const auto read = readRecording(text);
    const auto* const why = std::get_if<std::string>(&read);
    return why == nullptr ? "" : *why;
}

std::string replaced(std::string text, std::string_view old, std::string_view with) {
    const std::size_t place = text.find(old);
    EXPECT_NE(place, std::string::npos) << old << " in " << text;
    return text.replace(place, old.size(), with);
}

} // namespace

TEST(ReadRecordingTest, GivesBackWhatWasWritten) {
    const MatchStart start{.redIsAI = true,
                           .level = AIDifficulty::ultra,
                           .sportClass = BocciaClass::bc3,
                           .playerCountry = Country::southKorea,
                           .blueCountry = Country::elSalvador,
                           .tournamentRound = 4,
                           .aim = {-0.1, 0.2, 100.7},
                           .powerDirection = -1,
                           .computerIsScheduled = true,
                           .powerPace = 0.125};
    const std::string text = lineOf(Heading{std::string(physicsId), {0xfedcba9876543210, 12}, start}) +
                             press + lineOf(Entry{8, MatchAction{MatchAction::Kind::turn, -0.05}}) +
                             lineOf(Entry{8, Choice(BlueIsAI{true})}) +
                             lineOf(Entry{8, Choice(Country::egypt)}) +
                             lineOf(Entry{8, Check{0xffffffffffffffff}}) + result;
    const auto recording = std::get<Recording>(readRecording(text));
    EXPECT_EQ(recording.heading.random.seed, 0xfedcba9876543210);
    std::string again = lineOf(recording.heading);
    for (const Entry& entry : recording.entries) {
        again += lineOf(entry);
    }
    EXPECT_EQ(again, text);
}

TEST(ReadRecordingTest, EveryActionAndChoiceHasAWordOfItsOwn) {
    using Kind = MatchAction::Kind;
    for (const Kind kind :
         {Kind::press, Kind::takeBack, Kind::turn, Kind::raise, Kind::power, Kind::pace, Kind::step}) {
        const auto entry = entryIn(lineOf(Entry{1, MatchAction{kind, 0.25}}));
        ASSERT_TRUE(entry);
        EXPECT_EQ(std::get<MatchAction>(entry->what), (MatchAction{kind, 0.25}));
    }
    for (const Country country : allCountries) {
        const auto entry = entryIn(lineOf(Entry{1, Choice(country)}));
        ASSERT_TRUE(entry);
        EXPECT_EQ(std::get<Country>(std::get<Choice>(entry->what)), country);
    }
    for (const AIDifficulty level : allDifficulties) {
        const auto entry = entryIn(lineOf(Entry{1, Choice(level)}));
        ASSERT_TRUE(entry);
        EXPECT_EQ(std::get<AIDifficulty>(std::get<Choice>(entry->what)), level);
    }
}

TEST(ReadRecordingTest, OneThatWasCutShortIsReadAsFarAsItGoes) {
    EXPECT_EQ(std::get<Recording>(readRecording(heading)).entries.size(), 0U);
    EXPECT_EQ(std::get<Recording>(readRecording(heading + press + result.substr(0, 20))).entries.size(), 1U);
}

TEST(ReadRecordingTest, WhatIsNoRecordingIsRefused) {
    for (const std::string& text :
         {std::string(), std::string("\n"), std::string("[]\n"), std::string("{}\n"), heading.substr(0, 30),
          press, replaced(heading, R"("seed":"f)", R"("seed":"g)"),
          replaced(heading, R"("level":"medium")", R"("level":"high")"),
          replaced(heading, R"("round":0)", R"("round":5)"),
          replaced(heading, R"("drawn":12)", R"("drawn":1e300)"),
          replaced(heading, R"("power":10.0)", R"("power":"10")"),
          replaced(heading, R"("version":1)", R"("version":0)")}) {
        EXPECT_EQ(refusalOf(text), "it is no recording of a match, or its first line was changed") << text;
    }
}

TEST(ReadRecordingTest, OneOfOtherPhysicsOrOfANewerGameIsRefusedByName) {
    EXPECT_EQ(refusalOf(replaced(heading, physicsId, "0123456789abcdef")),
              "it was played with other physics (0123456789abcdef) than this game's (" +
                  std::string(physicsId) + ")");
    EXPECT_EQ(refusalOf("{\"vorbel\":\"match\",\"version\":2,\"whatever\":true}\n"),
              "it comes from a newer game: it has version 2, and this game reads version 1");
}

TEST(ReadRecordingTest, LinesThatNobodyWroteAreRefused) {
    for (const std::string& line :
         {std::string(), std::string("press"),
          std::string(R"({"tick":6,"do":"press"})"), // before the first
          std::string(R"({"tick":-1,"do":"press"})"), std::string(R"({"tick":8,"do":"jump"})"),
          std::string(R"({"tick":8,"do":"turn","by":1e999})"), std::string(R"({"tick":1e18,"do":"press"})"),
          std::string(R"({"tick":4320001,"do":"press"})"),
          std::string(R"({"tick":8,"set":"red","to":"dog"})"), std::string(R"({"tick":8,"hash":"xyz"})"),
          std::string(R"({"tick":8,"hash":"1","result":5})")}) {
        EXPECT_EQ(refusalOf(heading + press + line + "\n"), "line 3 is none that the game writes there")
            << line;
    }
    EXPECT_THAT(refusalOf(heading + press + std::string(100'000, '[')), HasSubstr("line 3")); // has no end
    EXPECT_THAT(refusalOf(heading + result + press), HasSubstr("line 3")); // after the result
}

} // namespace vorbel::recording
