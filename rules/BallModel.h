// The ball: leather, filled with granules, so that it does not bounce.
#pragma once

namespace vorbel::ball {

inline constexpr double radius = 0.05; // m
inline constexpr double mass = 0.2;    // kg
inline constexpr double friction = 0.8;
inline constexpr double rollingFriction = 0.05;
inline constexpr double restitution = 0;

// Share of its speed that a ball loses in a second at the rate of now, rolling and turning: dv/dt = −0.4·v.
inline constexpr double damping = 0.4; // 1/s

// A ball slower than this over the court counts as resting and stops where it is.
inline constexpr double restingSpeed = 0.25; // m/s

} // namespace vorbel::ball
