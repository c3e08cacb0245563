// An aim in tones.
#pragma once

namespace vorbel::narration {

// Hz: two octaves up from the lowest power to the highest, each percent by the same interval.
[[nodiscard]] double pitchOf(double power); // percent

// −1 (left) … 1 (right), the limits of the angle.
[[nodiscard]] double panOf(double angle); // rad, as rules/Aim.h has it

} // namespace vorbel::narration
