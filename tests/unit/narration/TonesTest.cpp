// The pitch of a power and the side of an angle.
#include "narration/Tones.h"

#include "rules/Aim.h"

#include <gtest/gtest.h>

namespace vorbel::narration {

TEST(TonesTest, EachTenthOfThePowerIsTheSameIntervalInTwoOctaves) {
    struct Case {
        double power, pitch; // percent, Hz
    };
    for (const auto& [power, pitch] :
         {Case{10, 261.63}, Case{32.5, 369.99}, Case{55, 523.25}, Case{77.5, 739.99}, Case{100, 1046.50}}) {
        EXPECT_NEAR(pitchOf(power), pitch, 0.05) << power;
    }
    EXPECT_NEAR(pitchOf(40) / pitchOf(30), pitchOf(90) / pitchOf(80), 1e-9);
    EXPECT_GT(pitchOf(100.85), pitchOf(100)) << "the swing turns round a little beyond";
}

TEST(TonesTest, AnAngleIsHeardOnItsSideAsFarOutAsItIsTurned) {
    struct Case {
        double angle, pan;
    };
    for (const auto& [angle, pan] : {Case{0, 0}, Case{-aim::angleLimit, -1}, Case{aim::angleLimit, 1},
                                     Case{aim::angleLimit / 2, 0.5}, Case{-1, -1}}) {
        EXPECT_NEAR(panOf(angle), pan, 1e-12) << angle;
    }
}

} // namespace vorbel::narration
