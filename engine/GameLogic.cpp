#include "engine/GameLogic.h"

#include "l10n/L10n.h"

namespace vorbel {

GameLogic::GameLogic(const Platform& platform)
    : scene(create3DScene(platform.random)),
      platform_(platform),
      physicsWorld_(scene),
      balls_(scene),
      sounds_(platform.audio, platform.resources),
      clock_(platform.mainQueue) {
    redIsAI.setAfterChange([this] {
        dropHumanAim();
        triggerAIIfNeeded();
    });
    blueIsAI.setAfterChange([this] {
        if (blueIsAI) {
            blueCountry = randomOpponent(playerCountry);
        }
        dropHumanAim();
        triggerAIIfNeeded();
    });
    physicsWorld_.setContactDelegate(
        [this](const Node& nodeA, const Node& nodeB) { physicsWorldDidBegin(nodeA, nodeB); });
    startCrowdNoise();
    spawnBall();
    triggerAIIfNeeded();
}

GameLogic::~GameLogic() = default;

bool GameLogic::isCurrentTurnAI() const {
    return currentTurn == BallColor::red ? redIsAI : blueIsAI;
}

std::string GameLogic::t(TextKey key) const {
    return std::string(L10n::t(key, language));
}

std::string GameLogic::t(TextKey key, std::initializer_list<std::string_view> arguments) const {
    return L10n::fill(L10n::t(key, language), arguments);
}

} // namespace vorbel
