#include "engine/GameLogic.h"

#include "l10n/L10n.h"

namespace vorbel {

GameLogic::GameLogic(const Platform& platform)
    : scene(create3DScene(platform.random)),
      platform_(platform),
      physicsWorld_(scene),
      throwSound_(platform.audio.systemSound("Pop")),
      hitSound_(platform.audio.systemSound("Tink")),
      scoreSound_(platform.audio.systemSound("Glass")) {
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

Node::Ptr GameLogic::jackNode() const {
    return scene.root->findChild(nodeName(BallColor::jack));
}

std::vector<Vec3> GameLogic::ballPositions(BallColor color) const {
    std::vector<Vec3> positions;
    for (const Node::Ptr& node : scene.root->children()) {
        if (node->name == nodeName(color)) {
            positions.push_back(node->position());
        }
    }
    return positions;
}

std::vector<double> GameLogic::distancesToJack(BallColor side, const Vec3& jack) const {
    std::vector<double> distances;
    for (const Vec3& ball : ballPositions(side)) {
        distances.push_back(glm::distance(ball, jack));
    }
    return distances;
}

} // namespace vorbel
