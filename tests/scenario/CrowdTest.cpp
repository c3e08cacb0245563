// The crowd's sound at the start of a match.
#include "tests/scenario/Match.h"

#include <fstream>

namespace vorbel::test {

class CrowdTest : public testing::Test {
protected:
    CrowdTest() {
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "crowd.mp3") << "sound";
    }
    ~CrowdTest() override { std::filesystem::remove_all(folder); }

    std::string startMatch(const Resources& resources) {
        testing::internal::CaptureStdout();
        const GameLogic game(Platform{queue, random, audio, resources});
        return testing::internal::GetCapturedStdout();
    }

    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) /
                                         testing::UnitTest::GetInstance()->current_test_info()->name();
    VirtualQueue queue;
    SeededRandom random{1};
    SpyAudio audio;
};

TEST_F(CrowdTest, TheCrowdLoopsQuietly) {
    EXPECT_EQ(startMatch(Resources({folder})), "");
    EXPECT_EQ(audio.crowd, "loop -1 volume 0.4 play ");
}

TEST_F(CrowdTest, AMissingCrowdIsNoError) {
    EXPECT_EQ(startMatch(Resources()), "");
    EXPECT_EQ(audio.crowd, "");
}

TEST_F(CrowdTest, ABrokenCrowdFileGivesOneLine) {
    audio.filesAreBroken = true;
    EXPECT_EQ(startMatch(Resources({folder})), "Не удалось запустить звук трибун\n");
    EXPECT_EQ(audio.crowd, "");
}

TEST_F(CrowdTest, AMissingEffectIsSilent) {
    class NoAudio final : public Audio {
        std::unique_ptr<SystemSound> systemSound(std::string_view) override { return nullptr; }
        std::unique_ptr<AudioPlayer> player(const std::filesystem::path&) override { return nullptr; }
        std::unique_ptr<Tone> tone() override { return nullptr; }
    };
    NoAudio none;
    const Resources nothing;
    GameLogic game(Platform{queue, random, none, nothing});
    game.throwActiveBall();
    game.calculateScore();
    EXPECT_FALSE(game.activeBallNode());
}

} // namespace vorbel::test
