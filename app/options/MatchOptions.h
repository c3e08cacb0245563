// What the options change of a running match.
#pragma once

#include "app/options/Options.h"
#include "app/screen/OpenMenu.h"

#include <QObject>

namespace vorbel {

class GameLogic;

// Hands the options over to the match whenever they, or the open menu, change. Main thread only.
class MatchOptions final : public QObject {
    Q_OBJECT

public:
    // All three must outlive it.
    MatchOptions(GameLogic& match, const Options& options, const OpenMenu& menu);

private:
    void handOver();

    GameLogic& match_;
    const Options& options_;
    const OpenMenu& menu_;
};

} // namespace vorbel
