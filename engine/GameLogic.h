// The one object that holds a whole match: the scene with its balls, whose turn it is, the aim, the scores,
// the tournament. Keys, the computer opponent and tests change a match only through its operations.
//
// Its members are implemented in the files named after what they do; the comment above each group says where.
#pragma once

#include "engine/MatchTypes.h"
#include "l10n/AppLanguage.h"
#include "l10n/BocciaClass.h"
#include "l10n/Country.h"
#include "platform/Platform.h"
#include "platform/physics/PhysicsWorld.h"
#include "platform/runloop/Lifetime.h"
#include "platform/runloop/Published.h"
#include "platform/scenegraph/Scene.h"

#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

struct SpectatorSprite;

// Main thread only. Not movable: observers and deferred work refer to it.
class GameLogic {
public:
    // The court's centre at the height of a resting ball's centre: where the jack is re-spotted.
    static constexpr Vec3 crossPosition{0.0, 0.035, -6.25};

    static constexpr double tickPeriod = 0.02; // s
    static constexpr int ballsPerSide = 6;     // in each end

    // Builds the arena, starts the crowd and puts the jack into red's box. The services must outlive the
    // match.
    explicit GameLogic(const Platform& platform);
    ~GameLogic();
    GameLogic(const GameLogic&) = delete;
    GameLogic& operator=(const GameLogic&) = delete;

    // --- State

    Scene scene; // built once; later only balls come and go and the pointer moves

    // In Russian until a rule sets it.
    Published<std::string> message{"Нажмите [ПРОБЕЛ] для начала прицеливания"};
    Published<AimState> aimState{AimState::idle};
    Published<GamePhase> phase{GamePhase::throwingJack};
    Published<BallColor> currentTurn{BallColor::red}; // red or blue
    Published<bool> redIsAI{false};                   // assigning it may start the computer's turn
    Published<bool> blueIsAI{false};                  // the same; true also draws a new country for blue
    Published<AIDifficulty> aiDifficulty{AIDifficulty::medium};
    Published<BocciaClass> playerClass{BocciaClass::bc2};
    Published<Country> playerCountry{Country::france}; // red's
    Published<Country> blueCountry{Country::germany};
    Published<bool> tournamentActive{false};
    Published<int> tournamentRound{0}; // 1 … 4 while a tournament runs
    Published<AppLanguage> language{AppLanguage::ru};
    // Colour balls still to be thrown, or not yet at rest, in this end.
    Published<int> redBallsLeft{ballsPerSide};
    Published<int> blueBallsLeft{ballsPerSide};
    Published<int> redScore{0};
    Published<int> blueScore{0};
    Published<std::vector<EndResult>> endHistory{{}};
    Published<int> currentEnd{1};   // from 1
    int maxEnds = 4;                // informative: the rules count on four ends whatever it says
    Published<double> aimAngle{0};  // rad, 0 down the court, positive to the right, within ±π/4
    Published<double> aimPitch{0};  // rad above the court, 0 … π/3
    Published<double> aimPower{10}; // percent of full throwing speed, about 10 … 100
    Node::Ptr activeBallNode; // the ball waiting in the throwing box; null between a throw and the next spawn

    // --- engine/GameLogic.cpp

    [[nodiscard]] bool isCurrentTurnAI() const;
    [[nodiscard]] std::string t(TextKey key) const;
    [[nodiscard]] std::string t(TextKey key, std::initializer_list<std::string_view> arguments) const;

    // --- engine/Aiming.cpp: the human thrower's side of a throw

    void startAimingLoop(); // starts, or restarts, the 20 ms tick that moves physics, power and settling
    void stopAimingLoop();
    // Calls the observer after each tick, when physics and rules have moved on.
    [[nodiscard]] Subscription onTick(std::function<void()> observer) {
        return tickObservers_.add(std::move(observer));
    }
    void updateAiming(); // one tick of the rules, without physics
    void moveAimLeft();  // the four aiming keys act only while a human sets the angle
    void moveAimRight();
    void moveAimUp(); // never for class BC3: a ramp keeps the throw on the ground
    void moveAimDown();
    void processInput(); // the one action key: next stage of the throw, next end, next match

    // --- engine/Throwing.cpp

    // Where a side's balls wait and are thrown from, at the height of a resting ball's centre.
    [[nodiscard]] static Vec3 throwOrigin(BallColor side);
    void spawnBall();       // puts the next ball, the jack or one of the current side, into the throwing box
    void throwActiveBall(); // launches the waiting ball along the aim; nothing without one

    // --- engine/Settling.cpp

    // One tick of a running throw: hands over when all balls rest, at the latest after 3 s.
    void checkPhysics();

    // Clicks when two balls strike each other.
    void physicsWorldDidBegin(const Node& nodeA, const Node& nodeB);

    // --- engine/EndFlow.cpp

    void handleTurnTransition(); // after every throw: judges it and prepares the next one, or ends the end
    void determineNextTurn();    // the side that is not closest to the jack throws; ties go to red
    void repositionJackIfKnockedOut();
    [[nodiscard]] static bool jackCrossedVLine(const Vec3& position);
    [[nodiscard]] static bool isOutOfBounds(const Vec3& position); // beyond a side line
    void clearField();                                             // removes all balls
    void startNewEnd(); // with a jack throw by the side whose end it is

    // --- engine/Scoring.cpp

    void calculateScore();   // scores the end and decides how the match goes on; nothing without a jack
    void startTieBreakEnd(); // an extra end with the jack on the cross
    void resetMatch();
    [[nodiscard]] std::string matchWinnerTitle() const; // names blue when the scores are equal

    // --- engine/AITurn.cpp, engine/AITarget.cpp: the computer opponent

    struct AITarget {
        Vec3 point;
        double powerMultiplier;
    };
    void triggerAIIfNeeded(); // schedules the computer's turn if it is to throw
    void performAITurn();     // aims and schedules the release
    [[nodiscard]] AITarget computeAITarget();
    [[nodiscard]] std::vector<AICandidate> generateAdvancedCandidates(const Vec3& jackPosition) const;
    [[nodiscard]] Vec3 freeSpotNearJack(const Vec3& jack) const;
    [[nodiscard]] Vec3 extendTarget(const Vec3& target, double beyondBy) const;

    // --- career/Tournament.cpp

    void startTournament(Country country);
    void advanceTournament(); // after a match: next round, champion or eliminated
    void announceTournamentRound();
    [[nodiscard]] Country randomOpponent(Country excluded);

    // --- scene/: builders of the arena (make… returns a node for the caller to add), and its sounds

    // Court.cpp. The random source dresses the stands: differently in every run of the game.
    [[nodiscard]] static Scene create3DScene(RandomSource& random);
    static void addCourtLine(Scene& scene, const Vec3& from, const Vec3& to); // nothing under 1 mm of length
    static void addThrowingBoxes(Scene& scene, double courtWidth);
    [[nodiscard]] Node::Ptr makeRestingJack(const Vec3& position) const;

    // Stands.cpp
    static void addStands(Scene& scene, double courtWidth, double courtLength, RandomSource& random);
    [[nodiscard]] static Node::Ptr makeSpectatorBillboard(const SpectatorSprite& sprite, double height);

    // Flags.cpp, FlagDesigns.cpp. A flag's children are its layers, `width` × `height` metres.
    static void addFlags(Scene& scene);
    [[nodiscard]] static Node::Ptr makeStripedFlag(std::span<const Color> stripeColors, bool horizontal,
                                                   double width, double height); // needs at least one colour
    [[nodiscard]] static Node::Ptr makeCircleFlag(const Color& background, const Color& circle, double width,
                                                  double height);
    [[nodiscard]] static Node::Ptr makeCrossFlag(const Color& background, const Color& crossColor,
                                                 const Color& innerCrossColor, double width, double height);
    [[nodiscard]] static Node::Ptr makeCantonFlag(const Color& fieldColor, double width, double height);
    [[nodiscard]] static Node::Ptr makeKoreaFlag(double width, double height);
    [[nodiscard]] static Node::Ptr makeStarFlag(double width, double height);

    [[nodiscard]] static Node::Ptr makeReferee(double courtWidth, double courtLength); // Referee.cpp

    void startCrowdNoise(); // Sound.cpp

private:
    // The balls of a side that are in the scene, the waiting one included: in the order of their throws.
    [[nodiscard]] std::vector<Vec3> ballPositions(BallColor color) const;
    // Their distances from the jack between centres in metres, in the same order.
    [[nodiscard]] std::vector<double> distancesToJack(BallColor side, const Vec3& jack) const;
    [[nodiscard]] Node::Ptr jackNode() const; // null when there is none

    void tick();
    [[nodiscard]] bool humanSetsAngle() const;
    void turnAim(double angle);
    void raiseAim(double angle);
    void advanceHumanThrow();
    void releaseBall();
    void setPointerVisible(bool visible);
    void freezeBalls();
    void passJackToOtherSide(const Node& jack);
    void resetAim();
    [[nodiscard]] EndResult countPoints(const Vec3& jack) const;
    void continueAfter(const EndResult& result);
    [[nodiscard]] bool computerMayThrow() const;
    void dropHumanAim();
    void aimAt(const AITarget& target);

    static void restart(SystemSound* sound); // from its beginning; null: silence

    Platform platform_;
    PhysicsWorld physicsWorld_;
    std::unique_ptr<SystemSound> throwSound_;
    std::unique_ptr<SystemSound> hitSound_;
    std::unique_ptr<SystemSound> scoreSound_;
    std::unique_ptr<AudioPlayer> audioPlayer_; // the crowd
    int jackThrowAttempts_ = 0;                // in this end
    double powerDirection_ = 1;                // +1 or −1
    int ticksSinceThrown_ = 0;
    Observers<> tickObservers_;
    Subscription timer_;
    Lifetime lifetime_;
};

} // namespace vorbel
