// The changes of a match that can be seen, told once for each burst of them.
#pragma once

#include "engine/GameLogic.h"

#include <QObject>

#include <vector>

namespace vorbel {

// A value tells of its change before it changes, and changes come in bursts: all of them are told together a
// moment later, from the main queue. Main thread only.
class MatchChanges final : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    MatchChanges(const GameLogic& match, MainQueue& queue);

    void tellSoon(); // something that is shown beside the match has changed

    // While a picture is being drawn, changes wait; afterwards they are told at once. A display that is
    // slower than the tick thus never holds the tick up.
    void hold();
    void release();

signals:
    void changed();

private:
    template <typename T>
    void observe(const Published<T>& value);
    void tell();

    MainQueue& queue_;
    std::vector<Subscription> observations_;
    bool pending_ = false;
    bool held_ = false;
    Lifetime lifetime_;
};

} // namespace vorbel
