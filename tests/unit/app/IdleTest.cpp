// How often the game wakes up while nothing happens: counted, on a clock that moves only when told to.
#include "app/controller/ControllerInput.h"
#include "app/window/ContentView.h"
#include "platform/HeadlessPlatform.h"
#include "platform/store/MemoryDefaults.h"
#include "tests/ScriptedControllers.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

// Hands everything on, and counts what runs.
class CountingQueue final : public MainQueue {
public:
    void post(Task task) override { clock_.post(counted(std::move(task))); }
    void postAfter(double seconds, Task task) override {
        clock_.postAfter(seconds, counted(std::move(task)));
    }
    [[nodiscard]] Subscription repeat(double period, Task task) override {
        return clock_.repeat(period, counted(std::move(task)));
    }

    int wakeUpsWithin(double seconds) {
        wakeUps_ = 0;
        clock_.advance(seconds);
        return wakeUps_;
    }

private:
    Task counted(Task task) {
        return [this, task = std::move(task)] {
            ++wakeUps_;
            task();
        };
    }

    VirtualQueue clock_;
    int wakeUps_ = 0;
};

constexpr double span = 10; // s
// Of the match itself: fifty times a second its timer, and the work that it posts.
constexpr int ticks = 2 * 50 * 10;

} // namespace

class IdleTest : public testing::Test {
protected:
    CountingQueue queue;
    HeadlessPlatform others{1};
    Platform services{queue, others.random, others.audio, others.resources};
    MemoryDefaults defaults;

    // Of the window's content, once it has settled.
    int wakeUps(ContentView& view, MenuScreen screen) {
        view.appear();
        view.openMenu().setMenuScreen(screen);
        queue.wakeUpsWithin(1);
        int shown = 0;
        const auto telling =
            QObject::connect(&view.changes(), &MatchChanges::changed, &view, [&shown] { ++shown; });
        const int counted = queue.wakeUpsWithin(span);
        QObject::disconnect(telling);
        EXPECT_EQ(shown, 0) << "nothing is shown anew";
        return counted;
    }
};

TEST_F(IdleTest, AMatchAloneWakesUpForItsTicks) {
    GameLogic match(services);
    match.startAimingLoop();
    queue.wakeUpsWithin(1);
    EXPECT_EQ(queue.wakeUpsWithin(span), ticks);
}

TEST_F(IdleTest, WithNoOptionSetTheWindowWakesUpNoMoreOften) {
    ContentView view(services, defaults);
    EXPECT_EQ(wakeUps(view, MenuScreen::main), ticks);
    EXPECT_EQ(wakeUps(view, MenuScreen::hidden), ticks);
}

TEST_F(IdleTest, OptionsForEyesAndEarsDoNotWakeItEither) {
    ContentView view(services, defaults);
    for (const Option option : {Option::speech, Option::tones, Option::hitPlaces, Option::ballMarks,
                                Option::ballOutlines, Option::clearPointer, Option::solidPanels}) {
        view.options()->set(option, 1);
    }
    view.options()->set(Option::textSize, 200);
    EXPECT_EQ(wakeUps(view, MenuScreen::hidden), ticks);
}

TEST_F(IdleTest, ControllersAreLookedForTwiceASecond) {
    ContentView view(services, defaults);
    ScriptedControllers none;
    none.connected = false;
    const ControllerInput input(none, view, queue);
    EXPECT_EQ(wakeUps(view, MenuScreen::hidden), ticks + 2 * static_cast<int>(span));
}

} // namespace vorbel
