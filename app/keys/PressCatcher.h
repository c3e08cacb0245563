// Waits for the one press that the player gives a meaning.
#pragma once

#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"

#include <QObject>

#include <functional>

namespace vorbel {

// While it waits no press reaches anything else. Escape, a click and patience that ends leave everything as it was.
// Main thread only.
class PressCatcher final : public QObject {
    Q_OBJECT

public:
    static constexpr double patience = 10; // s: not everybody can press Escape

    // The queue must outlive it.
    explicit PressCatcher(MainQueue& queue) : queue_(queue) {}

    // The key, as pressedKey() has it, is given to `taken` once it is pressed; never, if that is given up.
    void awaitKey(std::function<void(int key)> taken);
    void awaitButton(std::function<void(int button)> taken); // the same with a ControllerButton
    void giveUp();                                           // without effect unless it waits

    [[nodiscard]] bool isWaiting() const { return taken_ != nullptr; }

    // Was pressed while it waits.
    void pressKey(int key);
    void pressButton(int button); // a wait for a key ends with it

    bool eventFilter(QObject* receiver, QEvent* event) override; // of the application, while it waits

signals:
    void waitingChanged();

private:
    void wait(std::function<void(int)> taken, bool forButton);
    void take(int press);
    void stop();

    MainQueue& queue_;
    std::function<void(int)> taken_; // null unless it waits
    bool forButton_ = false;
    int attempts_ = 0; // so far
    Lifetime lifetime_;
};

} // namespace vorbel
