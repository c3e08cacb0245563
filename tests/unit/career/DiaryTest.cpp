#include "career/Diary.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorbel {

namespace {

const std::chrono::system_clock::time_point startOf2001{std::chrono::seconds(978307200)};

DiaryEntry entry() {
    return {"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F", startOf2001 + std::chrono::milliseconds(1500),
            "diary.win", 1};
}

} // namespace

TEST(DiaryTest, IsStoredAsAJsonArrayWithExactlyFourMembersAnEntry) {
    EXPECT_EQ(
        encodeDiary({entry()}),
        R"([{"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":1.5,"resultKey":"diary.win","xpGained":1}])");
    EXPECT_EQ(encodeDiary({}), "[]");
}

TEST(DiaryTest, ReadsBackWhatItWrote) {
    const std::vector<DiaryEntry> entries{entry(), entry()};
    EXPECT_EQ(decodeDiary(encodeDiary(entries)), entries);
}

TEST(DiaryTest, IgnoresMembersItDoesNotKnow) {
    EXPECT_EQ(
        decodeDiary(
            R"([{"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"diary.loss","xpGained":0,"mood":"fine"}])")
            .size(),
        1U);
}

TEST(DiaryTest, AMissingMemberOrOneOfAWrongTypeSpoilsTheWholeDiary) {
    const std::string good =
        R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"diary.loss","xpGained":0})";
    for (
        const char* bad :
        {R"({"date":0,"resultKey":"diary.loss","xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","resultKey":"diary.loss","xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":"today","resultKey":"diary.loss","xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":7,"xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"x","xpGained":0.5})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"x","xpGained":3000000000})",
         R"({"id":"17","date":0,"resultKey":"x","xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6G","date":0,"resultKey":"x","xpGained":0})",
         R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"x"})", "7", "null", "[]"}) {
        EXPECT_TRUE(decodeDiary("[" + good + "," + bad + "]").empty()) << bad;
    }
}

TEST(DiaryTest, ADateFarBeyondTheClockIsTheFarthestThatTheClockKnows) {
    for (const char* date : {"1e300", "-1e300"}) {
        const auto entries = decodeDiary(R"([{"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":)" +
                                         std::string(date) + R"(,"resultKey":"diary.win","xpGained":1}])");
        ASSERT_EQ(entries.size(), 1U);
        const double years =
            std::chrono::duration<double>(entries[0].date - startOf2001).count() / 31556952.0;
        EXPECT_GT(std::abs(years), 200) << date;
        EXPECT_EQ(years > 0, date[0] != '-');
    }
}

TEST(DiaryTest, WhatIsNoJsonArrayIsAnEmptyDiary) {
    for (const char* blob : {"", "{", "{}", "[", "null", "\xff\xfe", "[{]"}) {
        EXPECT_TRUE(decodeDiary(blob).empty()) << blob;
    }
}

TEST(DiaryTest, AWholeDiaryIsNotDamaged) {
    const ReadDiary diary = readDiary(encodeDiary({entry(), entry()}));
    EXPECT_EQ(diary.entries, (std::vector{entry(), entry()}));
    EXPECT_FALSE(diary.damaged);
    EXPECT_FALSE(readDiary(" []\r\n").damaged) << "an editor's line break";
    EXPECT_TRUE(readDiary("").damaged);
}

TEST(DiaryTest, OneBadEntryAmongFiveHundredDamagesTheWholeDiary) {
    std::string json = encodeDiary(std::vector<DiaryEntry>(500, entry()));
    json.replace(json.find("\"id\"", json.size() / 2), 4, "\"Id\""); // a member's name
    const ReadDiary diary = readDiary(json);
    EXPECT_TRUE(diary.damaged);
    EXPECT_TRUE(diary.entries.empty());
}

TEST(DiaryTest, ACutDiaryIsDamagedWhereverItIsCut) {
    const std::string json = encodeDiary({entry(), entry(), entry()});
    for (std::size_t length = 0; length < json.size(); ++length) {
        const ReadDiary diary = readDiary(json.substr(0, length));
        EXPECT_TRUE(diary.damaged) << length;
        EXPECT_TRUE(diary.entries.empty()) << length;
    }
}

} // namespace vorbel
