// How near two bodies are, and how fast they come nearer.
#pragma once

class btDispatcher;
class btPersistentManifold;

namespace vorbel {

struct Approach {
    double gap;   // m between the surfaces at the nearest contact; below 0: they overlap; infinite: far apart
    double speed; // m/s along the normal of that contact; negative when they part
};

Approach measureApproach(const btPersistentManifold& manifold);

// Takes the foreseen contacts of balls that meet within `seconds`, and returns the time until the next impact
// that is worth stopping for, `seconds` at most. Contacts from then on are dropped, to be found again at that
// time; those before it become contacts without a gap.
double stopAtNextImpact(btDispatcher& dispatcher, double seconds);

} // namespace vorbel
