// Controllers that tell what a test puts into them.
#pragma once

#include "platform/controllers/Controllers.h"

#include <utility>
#include <vector>

namespace vorbel {

class ScriptedControllers final : public Controllers {
public:
    std::vector<std::pair<ControllerButton, bool>> coming;
    bool connected = true;
    int polls = 0;

    void poll(const Listener& listener) override {
        ++polls;
        for (const auto& [button, pressed] : std::exchange(coming, {})) {
            listener(button, pressed);
        }
    }
    [[nodiscard]] bool isAnyConnected() const override { return connected; }
    [[nodiscard]] ControllerFamily family() const override { return ControllerFamily::letters; }
};

} // namespace vorbel
