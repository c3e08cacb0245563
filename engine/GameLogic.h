// The one object that holds a whole match: its state, the scene with its balls, its clock and its sounds.
// Keys, the computer opponent and tests change a match only through its operations, which ask the rules.
//
// Its members are implemented in the files named after what they do; the comment above each group says where.
#pragma once

#include "engine/ArenaBuilders.h"
#include "engine/Clockwork.h"
#include "engine/CourtBalls.h"
#include "engine/MatchAction.h"
#include "engine/MatchSounds.h"
#include "engine/MatchStart.h"
#include "engine/MatchState.h"
#include "l10n/AppLanguage.h"
#include "l10n/BocciaClass.h"
#include "l10n/Country.h"
#include "platform/Platform.h"
#include "platform/physics/PhysicsWorld.h"
#include "rules/ComputerAim.h"
#include "rules/CourtGeometry.h"
#include "rules/JackValidity.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

// Main thread only. Not movable: observers and deferred work refer to it.
class GameLogic : public ArenaBuilders {
    MatchState state_; // first: what is published of it below refers to it

public:
    static constexpr Vec3 crossPosition = court::cross; // where the jack is re-spotted
    static constexpr double tickPeriod = Clockwork::tickPeriod;

    // Builds the arena, starts the crowd and puts the jack into red's box. The services must outlive it.
    explicit GameLogic(const Platform& platform);
    ~GameLogic();
    GameLogic(const GameLogic&) = delete;
    GameLogic& operator=(const GameLogic&) = delete;

    // --- State: engine/MatchState.h says what each means

    const Published<AimState>& aimState = state_.aimState;
    const Published<GamePhase>& phase = state_.phase;
    const Published<BallColor>& currentTurn = state_.currentTurn;
    const Published<bool>& tournamentActive = state_.tournamentActive;
    const Published<int>& tournamentRound = state_.tournamentRound;
    const Published<int>& redBallsLeft = state_.redBallsLeft;
    const Published<int>& blueBallsLeft = state_.blueBallsLeft;
    const Published<int>& redScore = state_.redScore;
    const Published<int>& blueScore = state_.blueScore;
    const Published<std::vector<EndResult>>& endHistory = state_.endHistory;
    const Published<int>& currentEnd = state_.currentEnd;
    const Published<double>& aimAngle = state_.aimAngle;
    const Published<double>& aimPitch = state_.aimPitch;
    const Published<double>& aimPower = state_.aimPower;

    // The ball waiting in the throwing box; null between a throw and the next spawn.
    [[nodiscard]] const Node::Ptr& activeBallNode() const { return balls_.waiting(); }

    // Where the balls lie that have been thrown in this end.
    [[nodiscard]] Position thrownBalls() const { return balls_.thrown(); }

    Scene scene; // built once; later balls come and go, the pointer moves, and options change what is seen

    // --- Written by the player's choices as well as by the match

    Published<std::string> message{
        "Нажмите [ПРОБЕЛ] для начала прицеливания"}; // Russian until a rule sets it
    Published<bool> redIsAI{false};                  // assigning it may start the computer's turn
    Published<bool> blueIsAI{false};                 // the same; true also draws a new country for blue
    Published<AIDifficulty> aiDifficulty{AIDifficulty::medium};
    Published<BocciaClass> playerClass{BocciaClass::bc2};
    Published<Country> playerCountry{Country::france}; // red's
    Published<Country> blueCountry{Country::germany};
    Published<AppLanguage> language{AppLanguage::ru};
    int maxEnds = endsPerMatch; // informative: the rules count on four ends whatever it says

    // --- engine/GameLogic.cpp

    [[nodiscard]] bool isCurrentTurnAI() const;
    [[nodiscard]] std::string t(TextKey key) const;
    [[nodiscard]] std::string t(TextKey key, std::initializer_list<std::string_view> arguments) const;

    // --- engine/Aiming.cpp: the human thrower's side of a throw

    void startAimingLoop(); // starts, or restarts, the 20 ms tick that moves physics, power and settling
    void stopAimingLoop();
    // A paused match does nothing by itself until it is resumed; the computer then begins its step anew.
    void pause() { clock_.pause(); }
    void resume() { clock_.resume(); }
    // Calls the observer after each tick, when physics and rules have moved on.
    [[nodiscard]] Subscription onTick(std::function<void()> observer) {
        return clock_.onTick(std::move(observer));
    }
    // Whether that tick moved what is seen: a ball, or the pointer.
    [[nodiscard]] bool isAnythingMoving() const {
        return physicsWorld_.isAnythingMoving() || scene.isAnythingTurning();
    }
    void updateAiming(); // one tick of the rules, without physics
    void moveAimLeft();  // the four aiming keys act only while a human sets the angle
    void moveAimRight();
    void moveAimUp(); // never for class BC3: a ramp keeps the throw on the ground
    void moveAimDown();
    void processInput(); // the one action key: next stage of the throw, next end, next match

    // --- engine/AimingHelp.cpp: more time and smaller steps, for throwers who need them

    void setPowerPace(double pace); // 0…1 of the class's swing; at 0 the power waits to be set by hand
    [[nodiscard]] double powerPace() const { return state_.powerPace; }
    [[nodiscard]] bool humanSetsPower() const; // the power waits to be set by hand
    void changePower(double percent);          // only while humanSetsPower(), within the range of the swing
    void turnAim(double angle);                // rad; like moveAimLeft and moveAimRight
    void raiseAim(double angle);               // rad; like moveAimUp and moveAimDown
    void takeBack(); // a human's last stage: the power, then the aim; nothing once the ball is released

    // --- engine/Throwing.cpp

    [[nodiscard]] static Vec3 throwOrigin(BallColor side) { return court::throwOrigin(side); }
    void spawnBall();       // puts the next ball, the jack or one of the current side, into the throwing box
    void throwActiveBall(); // launches the waiting ball along the aim; nothing without one
    void checkPhysics();    // one tick of a running throw: hands over when it is over
    // Two nodes begin to touch: clicks when they are balls that strike each other.
    void physicsWorldDidBegin(const Node& nodeA, const Node& nodeB);

    // --- engine/EndFlow.cpp

    void handleTurnTransition(); // after every throw: judges it and prepares the next one, or ends the end
    void determineNextTurn();
    void repositionJackIfKnockedOut(); // over a side line: onto the cross
    [[nodiscard]] static bool jackCrossedVLine(const Vec3& position) {
        return vorbel::jackCrossedVLine(position);
    }
    [[nodiscard]] static bool isOutOfBounds(const Vec3& position) { return vorbel::isOutOfBounds(position); }
    void clearField() { balls_.clear(); }
    void startNewEnd(); // with a jack throw by the side whose end it is

    // --- engine/MatchFlow.cpp

    void calculateScore();   // scores the end and decides how the match goes on; nothing without a jack
    void startTieBreakEnd(); // an extra end with the jack on the cross
    void resetMatch();
    [[nodiscard]] std::string matchWinnerTitle() const; // names blue when the scores are equal
    void startTournament(Country country);
    void advanceTournament(); // after a match: next round, champion or eliminated
    void announceTournamentRound();
    [[nodiscard]] Country randomOpponent(Country excluded);

    // --- engine/AITurn.cpp: the computer opponent

    using AITarget = Target;
    void triggerAIIfNeeded(); // schedules the computer's turn if it is to throw
    void performAITurn();     // aims and schedules the release
    [[nodiscard]] AITarget computeAITarget();
    [[nodiscard]] std::vector<AICandidate> generateAdvancedCandidates(const Vec3& jackPosition) const;
    [[nodiscard]] Vec3 freeSpotNearJack(const Vec3& jack) const;
    [[nodiscard]] Vec3 extendTarget(const Vec3& target, double beyondBy) const;

    // --- engine/MatchStart.cpp: for who takes a match down, and plays it again

    [[nodiscard]] MatchStart start() const;   // as it stands, before the first action of a match
    void beginMatch(const MatchStart& start); // anew, whatever was before
    // Calls the observer when a match has been begun anew, the first one not: that begins with this object.
    [[nodiscard]] Subscription onMatchBegan(std::function<void()> observer) {
        return beginnings_.add(std::move(observer));
    }
    // Calls the observer before each action. What else is written by players are the published values above.
    [[nodiscard]] Subscription onAction(std::function<void(const MatchAction&)> observer) {
        return actions_.add(std::move(observer));
    }

    // --- engine/MatchSounds.cpp

    void startCrowdNoise() { sounds_.startCrowdNoise(); }

private:
    friend class MatchSetup; // the tests' door: puts a match into any position

    void tick();
    void tell(MatchAction::Kind kind, double by = 0) const { actions_.tell({kind, by}); }
    void scheduleAITurn();
    [[nodiscard]] bool humanSetsAngle() const;
    void advanceHumanThrow();
    [[nodiscard]] bool powerIsSetByHand() const { return state_.powerPace == 0; }
    void beginThrow();
    void releaseBall();
    void passJackToOtherSide();
    void resetAim();
    void continueAfter(const EndResult& result);
    [[nodiscard]] bool computerMayThrow() const;
    void dropHumanAim();
    void dropAim(); // back to `idle`, whoever was aiming
    [[nodiscard]] AimingError drawError();

    Platform platform_;
    PhysicsWorld physicsWorld_;
    CourtBalls balls_;
    MatchSounds sounds_;
    Clockwork clock_;
    Observers<> beginnings_;
    Observers<MatchAction> actions_;
    Lifetime lifetime_;
};

} // namespace vorbel
