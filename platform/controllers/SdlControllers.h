// Controllers through SDL, which knows most of them by name.
#pragma once

#include "platform/controllers/Controllers.h"

#include <map>
#include <memory>
#include <set>

union SDL_Event;

namespace vorbel {

// Takes every device: a game controller by SDL's list of them, any other, such as an interface for switches, by
// the numbers of its buttons. Starts no thread. Main thread only; one at a time.
class SdlControllers final : public Controllers {
public:
    SdlControllers(); // without the system's devices it works as usual, and finds none
    SdlControllers(const SdlControllers&) = delete;
    SdlControllers& operator=(const SdlControllers&) = delete;
    ~SdlControllers() override;

    void poll(const Listener& listener) override;
    [[nodiscard]] bool isAnyConnected() const override { return !devices_.empty(); }
    [[nodiscard]] ControllerFamily family() const override { return family_; }

private:
    class Device;

    void handle(const SDL_Event& event, const Listener& listener);
    void connect(int place);
    void disconnect(int id, const Listener& listener);
    void tell(int id, ControllerButton button, bool pressed, const Listener& listener);
    void move(int id, bool upright, int position, const Listener& listener);
    void pull(int id, ControllerButton trigger, int way, const Listener& listener);

    std::map<int, std::shared_ptr<Device>> devices_; // by SDL's number for what is connected
    std::map<int, std::set<ControllerButton>> held_; // of each of them
    ControllerFamily family_ = ControllerFamily::letters;
};

} // namespace vorbel
