// What the options change of the arena that is seen.
#pragma once

#include "app/options/Options.h"
#include "scene/Ball.h"

#include <QObject>

namespace vorbel {

class MatchChanges;
class Scene;

// Changes the scene when an option asks for another look of it, and never without. Main thread only.
class SightOptions final : public QObject {
    Q_OBJECT

public:
    // All three must outlive it.
    SightOptions(Scene& scene, const Options& options, MatchChanges& changes);

private:
    void handOver();
    void dressNewBalls(); // each has come with some change of the match

    Scene& scene_;
    const Options& options_;
    MatchChanges& changes_;
    BallLook balls_; // as the scene has it
    bool clearPointer_ = false;
};

} // namespace vorbel
