#include "platform/physics/Damping.h"

#include <btBulletDynamicsCommon.h>

#include <cmath>

namespace vorbel {

void Damping::apply(btRigidBody& body, double seconds) {
    body.setLinearVelocity(body.getLinearVelocity() * factor(body.getLinearDamping(), seconds));
    body.setAngularVelocity(body.getAngularVelocity() * factor(body.getAngularDamping(), seconds));
}

double Damping::factor(double lostPerSecond, double seconds) {
    if (lostPerSecond != lostPerSecond_ || seconds != seconds_) {
        lostPerSecond_ = lostPerSecond;
        seconds_ = seconds;
        factor_ = std::pow(1 - lostPerSecond, seconds);
    }
    return factor_;
}

} // namespace vorbel
