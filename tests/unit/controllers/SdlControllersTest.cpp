// Controllers that SDL makes up: what is pressed on them reaches the game.
#include "platform/controllers/SdlControllers.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace vorbel {

namespace {

using Told = std::vector<std::pair<ControllerButton, bool>>;

// Plugged in for as long as it lives.
class VirtualDevice {
public:
    explicit VirtualDevice(SDL_JoystickType type, Uint16 vendor = 0, Uint16 product = 0)
        : place_(attach(type, vendor, product)), joystick_(SDL_JoystickOpen(place_)) {}
    VirtualDevice(const VirtualDevice&) = delete;
    VirtualDevice& operator=(const VirtualDevice&) = delete;
    ~VirtualDevice() {
        SDL_JoystickClose(joystick_);
        SDL_JoystickDetachVirtual(place_);
    }

    void set(int button, bool pressed) { SDL_JoystickSetVirtualButton(joystick_, button, pressed ? 1 : 0); }
    void tilt(int axis, int position) {
        SDL_JoystickSetVirtualAxis(joystick_, axis, static_cast<Sint16>(position));
    }

private:
    static int attach(SDL_JoystickType type, Uint16 vendor, Uint16 product) {
        SDL_VirtualJoystickDesc device{};
        device.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
        device.type = static_cast<Uint16>(type);
        device.naxes = 6;
        device.nbuttons = 21;
        device.vendor_id = vendor;
        device.product_id = product;
        device.name = "Virtual";
        return SDL_JoystickAttachVirtualEx(&device);
    }

    int place_;
    SDL_Joystick* joystick_;
};

} // namespace

class SdlControllersTest : public testing::Test {
protected:
    SdlControllers controllers;

    Told poll() {
        Told told;
        controllers.poll([&](ControllerButton button, bool pressed) { told.emplace_back(button, pressed); });
        return told;
    }
};

TEST_F(SdlControllersTest, ButtonsOfAGameControllerAreToldByWhatTheyAreFor) {
    VirtualDevice pad(SDL_JOYSTICK_TYPE_GAMECONTROLLER);
    poll();
    EXPECT_TRUE(controllers.isAnyConnected());
    const std::vector<std::pair<int, ControllerButton>> buttons{
        {SDL_CONTROLLER_BUTTON_A, ControllerButton::south},
        {SDL_CONTROLLER_BUTTON_B, ControllerButton::east},
        {SDL_CONTROLLER_BUTTON_START, ControllerButton::start},
        {SDL_CONTROLLER_BUTTON_X, ControllerButton::west},
        {SDL_CONTROLLER_BUTTON_DPAD_LEFT, ControllerButton::left},
        {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, ControllerButton::right},
        {SDL_CONTROLLER_BUTTON_DPAD_UP, ControllerButton::up},
        {SDL_CONTROLLER_BUTTON_DPAD_DOWN, ControllerButton::down}};
    for (const auto& [number, button] : buttons) {
        pad.set(number, true);
        EXPECT_EQ(poll(), (Told{{button, true}})) << number;
        EXPECT_EQ(poll(), Told()) << "held, it is told once";
        pad.set(number, false);
        EXPECT_EQ(poll(), (Told{{button, false}})) << number;
    }
}

TEST_F(SdlControllersTest, TheLeftStickIsADirectionFromHalfItsWay) {
    VirtualDevice pad(SDL_JOYSTICK_TYPE_GAMECONTROLLER);
    poll();
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTX, 15'000);
    EXPECT_EQ(poll(), Told());
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTX, 20'000);
    EXPECT_EQ(poll(), (Told{{ControllerButton::right, true}}));
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTX, 15'000);
    EXPECT_EQ(poll(), Told()) << "a hand that trembles presses once";
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTX, 0);
    EXPECT_EQ(poll(), (Told{{ControllerButton::right, false}}));
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTY, -32'768);
    EXPECT_EQ(poll(), (Told{{ControllerButton::up, true}}));
    pad.tilt(SDL_CONTROLLER_AXIS_LEFTY, 32'767);
    EXPECT_EQ(poll(), (Told{{ControllerButton::up, false}, {ControllerButton::down, true}}));
}

TEST_F(SdlControllersTest, ATriggerIsAButtonFromHalfItsWay) {
    VirtualDevice pad(SDL_JOYSTICK_TYPE_GAMECONTROLLER);
    poll();
    pad.tilt(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, 20'000); // at rest it is at the lower end
    EXPECT_EQ(poll(), (Told{{ControllerButton::rightTrigger, true}}));
    pad.tilt(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, -32'768);
    EXPECT_EQ(poll(), (Told{{ControllerButton::rightTrigger, false}}));
}

TEST_F(SdlControllersTest, WhatIsPrintedOnItIsThatOfTheDeviceThatWasPressed) {
    EXPECT_EQ(controllers.family(), ControllerFamily::letters);
    constexpr Uint16 vendorWithShapes = 0x054c;
    constexpr Uint16 productWithShapes = 0x0ce6;
    VirtualDevice pad(SDL_JOYSTICK_TYPE_GAMECONTROLLER, vendorWithShapes, productWithShapes);
    poll();
    pad.set(SDL_CONTROLLER_BUTTON_A, true);
    poll();
    EXPECT_EQ(controllers.family(), ControllerFamily::shapes);
}

TEST_F(SdlControllersTest, ButtonsOfAnUnknownDeviceAreToldByTheirNumbers) {
    VirtualDevice switches(SDL_JOYSTICK_TYPE_UNKNOWN);
    poll();
    for (const int number : {0, 1, 15}) {
        const auto button = static_cast<ControllerButton>(static_cast<int>(ControllerButton::first) + number);
        switches.set(number, true);
        EXPECT_EQ(poll(), (Told{{button, true}})) << number;
        switches.set(number, false);
        EXPECT_EQ(poll(), (Told{{button, false}})) << number;
    }
}

TEST_F(SdlControllersTest, DevicesComeAndGoAndLetGoOfWhatWasHeld) {
    EXPECT_FALSE(controllers.isAnyConnected());
    {
        VirtualDevice pad(SDL_JOYSTICK_TYPE_GAMECONTROLLER);
        poll();
        pad.set(SDL_CONTROLLER_BUTTON_DPAD_LEFT, true);
        poll();
    }
    EXPECT_EQ(poll(), (Told{{ControllerButton::left, false}}));
    EXPECT_FALSE(controllers.isAnyConnected());
    const VirtualDevice again(SDL_JOYSTICK_TYPE_GAMECONTROLLER);
    poll();
    EXPECT_TRUE(controllers.isAnyConnected());
}

} // namespace vorbel
