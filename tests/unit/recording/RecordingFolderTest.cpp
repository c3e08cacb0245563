// The files of the last matches.
#include "recording/RecordingFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

namespace vorbel::recording {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// 2026-01-31, 23:59:59 UTC
constexpr std::chrono::sys_seconds evening =
    std::chrono::sys_days(std::chrono::January / 31 / 2026) + 23h + 59min + 59s;

class RecordingFolderTest : public testing::Test {
protected:
    RecordingFolderTest() { fs::remove_all(place); }
    ~RecordingFolderTest() override { fs::remove_all(place); }

    [[nodiscard]] std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& file : fs::directory_iterator(place)) {
            found.insert(file.path().filename());
        }
        return found;
    }

    fs::path place =
        fs::temp_directory_path() /
        ("vorbel-recordings-" + std::to_string(testing::UnitTest::GetInstance()->random_seed())) /
        testing::UnitTest::GetInstance()->current_test_info()->name();
    RecordingFolder folder{place};
};

} // namespace

TEST_F(RecordingFolderTest, NamesAMatchAfterItsTimeAndNeverTwoAlike) {
    *folder.newFile(evening) << "one";
    *folder.newFile(evening + 700ms) << "two";
    *folder.newFile(evening + 1s) << "three";
    EXPECT_EQ(names(),
              (std::set<std::string>{"match-20260131-235959-01.jsonl", "match-20260131-235959-02.jsonl",
                                     "match-20260201-000000-01.jsonl"}));
    std::ifstream second(place / "match-20260131-235959-02.jsonl");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(second), {}), "two");
}

TEST_F(RecordingFolderTest, KeepsTheLastFiftyAndWhatIsNoneOfItsOwn) {
    fs::create_directories(place);
    std::ofstream(place / "match-of-my-life.jsonl") << "kept";
    for (int i = 0; i < 53; ++i) {
        EXPECT_TRUE(folder.newFile(evening + i * 24h));
    }
    const auto left = names();
    EXPECT_EQ(left.size(), RecordingFolder::kept + 1);
    EXPECT_FALSE(left.contains("match-20260202-235959-01.jsonl")); // the third
    EXPECT_TRUE(left.contains("match-20260203-235959-01.jsonl"));  // the fourth
    EXPECT_TRUE(left.contains("match-of-my-life.jsonl"));
}

TEST_F(RecordingFolderTest, WhereNoFileCanBeMadeThereIsNone) {
    EXPECT_FALSE(RecordingFolder("/proc/nowhere").newFile(evening));
    fs::create_directories(place.parent_path());
    std::ofstream(place) << "a file, and no folder";
    EXPECT_FALSE(folder.newFile(evening));
}

} // namespace vorbel::recording
