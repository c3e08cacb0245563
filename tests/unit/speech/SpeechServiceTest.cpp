#include "platform/speech/SpeechService.h"

#include "tests/unit/speech/SpeechDispatcher.h"

#include <gtest/gtest.h>

namespace vorbel::test {
namespace {

class SpeechServiceTest : public testing::Test {
protected:
    void SetUp() override {
        if (!SpeechDispatcher::isInstalled()) {
            GTEST_SKIP() << "no speech service is installed";
        }
    }
};

TEST_F(SpeechServiceTest, WhatIsSaidReachesTheServiceInItsLanguageAndOrder) {
    const SpeechDispatcher dispatcher;
    ASSERT_TRUE(dispatcher.isRunning());
    SpeechService voice;
    voice.say("Jackball 5,6 Meter entfernt", "de", false);
    EXPECT_EQ(dispatcher.spoken(1), "de|Jackball 5,6 Meter entfernt\n");
    voice.say("目标球距离5.6米", "zh", false);
    EXPECT_EQ(dispatcher.spoken(2), "de|Jackball 5,6 Meter entfernt\nzh|目标球距离5.6米\n");
    voice.say("Straight ahead", "en", true);
    EXPECT_EQ(dispatcher.spoken(3),
              "de|Jackball 5,6 Meter entfernt\nzh|目标球距离5.6米\nen|Straight ahead\n");
}

TEST_F(SpeechServiceTest, ChineseIsHandedOverWhole) {
    const SpeechDispatcher dispatcher;
    SpeechService voice;
    voice.say("目标球距离5.6米", "zh", false);
    EXPECT_EQ(dispatcher.spoken(1), "zh|目标球距离5.6米\n");
}

// Nothing starts a service under an address where none can listen, and nobody waits for it.
TEST_F(SpeechServiceTest, AMissingServiceIsSilent) {
    qputenv("SPEECHD_ADDRESS", "unix_socket:/nonexistent/socket");
    SpeechService voice;
    for (int i = 0; i < 100; ++i) {
        voice.say("a", "en", i % 2 == 0);
    }
    voice.hush();
}

} // namespace
} // namespace vorbel::test
