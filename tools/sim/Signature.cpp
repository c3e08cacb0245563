#include "tools/sim/Signature.h"

#include "tools/sim/MatchPlayer.h"

#include <cmath>

namespace vorbel::sim {

namespace {

// Fowler–Noll–Vo, 64 bits, variant 1a.
class Hash {
public:
    void add(std::int64_t value) {
        constexpr std::uint64_t prime = 0x100000001b3;
        constexpr unsigned byteWidth = 8;
        for (unsigned shift = 0; shift < 64; shift += byteWidth) {
            state_ = (state_ ^ ((static_cast<std::uint64_t>(value) >> shift) & 0xffU)) * prime;
        }
    }
    // Rounded, so that the last bits of a sine, which differ between processors, do not count.
    void addRounded(double value) {
        constexpr double steps = 1000; // millimetres, milliradians
        add(std::llround(value * steps));
    }
    [[nodiscard]] std::uint64_t value() const { return state_; }

private:
    std::uint64_t state_ = 0xcbf29ce484222325;
};

void addThrow(Hash& hash, const Throw& played, const GameLogic& game) {
    hash.addRounded(played.angle);
    hash.addRounded(played.power);
    for (const Node::Ptr& ball : played.balls) {
        hash.addRounded(ball->position().x);
        hash.addRounded(ball->position().z);
    }
    hash.add(game.redScore);
    hash.add(game.blueScore);
}

} // namespace

std::uint64_t matchSignature() {
    Hash hash;
    std::uint64_t seed = 1;
    for (const AIDifficulty red : allDifficulties) {
        for (const AIDifficulty blue : allDifficulties) {
            MatchPlayer match({.seed = seed++, .red = red, .blue = blue});
            match.setThrowObserver(
                [&hash](const Throw& played, const GameLogic& game) { addThrow(hash, played, game); });
            hash.add(match.play() ? 1 : 0);
        }
    }
    return hash.value();
}

} // namespace vorbel::sim
