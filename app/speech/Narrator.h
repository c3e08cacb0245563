// Says aloud what a sighted player sees of the match.
#pragma once

#include "engine/GameLogic.h"
#include "platform/speech/Voice.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vorbel {

class Options;

// Acts only while its option is on; otherwise it observes nothing and its voice is never used. Changes of the
// match come in bursts, and each burst is told in one go, a task of the main queue later. Main thread only.
class Narrator final : public QObject {
    Q_OBJECT

public:
    // All four must outlive it.
    Narrator(const GameLogic& match, const Options& options, MainQueue& queue, Voice& voice);

    // How messages are worded for this player; until then as the match has them.
    void setWording(std::function<std::string(const std::string&)> wording) { wording_ = std::move(wording); }

    void sayEverything(); // where everything lies, at once

private:
    // What a finished throw left behind, taken before the match goes on.
    struct Rest {
        Position position;
        std::optional<Vec3> ball; // a colour ball; none for the jack
    };

    void followOption();
    void observe();
    void aimStateWillBe(AimState next);
    void aimMoves();
    void tellSoon();
    void tell();
    void tellAimOnceItRests();
    void tellAim();
    void say(const std::vector<std::string>& sentences, bool urgent);

    [[nodiscard]] std::string result(const Rest& rest) const; // of a throw
    [[nodiscard]] std::string aim() const;
    [[nodiscard]] std::string jack() const;
    [[nodiscard]] int decimals() const; // of an angle in degrees
    [[nodiscard]] bool humanAims() const;

    const GameLogic& match_;
    const Options& options_;
    MainQueue& queue_;
    Voice& voice_;
    std::function<std::string(const std::string&)> wording_ = [](const std::string& message) {
        return message;
    };
    std::vector<Subscription> observations_; // none while the option is off

    // --- What the next task tells
    bool isDue_ = false;
    std::optional<Rest> rest_;
    std::optional<double> power_; // that was locked, percent
    std::string message_;
    bool endIsOver_ = false;
    bool aimBegins_ = false;
    bool aimIsLocked_ = false;

    Node::Ptr thrown_;    // the ball on its way, unless it is the jack
    int aimMoves_ = 0;    // counted, so that only the last one is told
    std::string toldAim_; // what was last said of it
    Lifetime lifetime_;
};

} // namespace vorbel
