// Takes a match down while it is played.
#pragma once

#include "platform/runloop/Published.h"
#include "recording/Recording.h"
#include "recording/StateHash.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <vector>

namespace vorbel::recording {

// Watches a match through what it publishes, and writes line by line: a program that is killed loses nothing that was
// played before. A match in which no ball was thrown leaves nothing. Main thread only.
class Recorder {
public:
    static constexpr std::int64_t checkInterval = 500; // ticks: 10 s, some fifty checks in a match

    // Where a match goes, asked for at its first throw; null or broken: it is not recorded.
    using OpenOutput = std::function<std::unique_ptr<std::ostream>()>;

    // Match and random numbers, which must be the match's, must outlive it.
    Recorder(GameLogic& match, MatchRandom& random, OpenOutput open);

    // Each further match begins with a seed of its own from that source, which must outlive this.
    void drawSeedsFrom(RandomSource& seeds) { seeds_ = &seeds; }

    // Whether every match so far that was begun to be written could be written. Once false it stays so.
    [[nodiscard]] bool isWritten() const { return isWritten_; }

private:
    void begin();
    void follow();
    template <typename T, typename Choose>
    void observe(const Published<T>& value, Choose choose);
    void add(std::variant<MatchAction, Choice, Check, Result> what);
    void write(const std::string& line);
    void openOutput();
    void tickIsOver();
    [[nodiscard]] Result result() const;

    GameLogic& match_;
    MatchRandom& random_;
    RandomSource* seeds_ = nullptr;
    OpenOutput open_;
    std::vector<Subscription> observations_;

    std::int64_t tick_ = 0; // that are over
    StateHash hash_;
    bool isOver_ = false;
    std::string waiting_; // for the first throw
    std::unique_ptr<std::ostream> output_;
    bool isOpen_ = false; // or was to be
    bool isWritten_ = true;
};

} // namespace vorbel::recording
