// A match of the computer against itself.
#pragma once

#include "app/window/ContentView.h"
#include "platform/store/MemoryDefaults.h"

#include <QObject>

#include <filesystem>

class QQuickWindow;

namespace vorbel {

// Starts as soon as it is made and ends the application after the match: with status 0, or 1 when a picture
// could not be saved. View, queue and window must outlive it.
class Demonstration final : public QObject {
    Q_OBJECT

public:
    // An empty folder: no pictures are taken. It is made when it does not exist.
    Demonstration(ContentView& view, MainQueue& queue, QQuickWindow& window, std::filesystem::path pictures);

    // What the computer plays with: the player's language, but not the career, which is the player's own.
    [[nodiscard]] static MemoryDefaults guestDefaults(const UserDefaults& player);

private:
    void follow();
    void goOn(GamePhase phase);
    void takePicture(const QString& stage);
    void after(double seconds, MainQueue::Task task);

    ContentView& view_;
    MainQueue& queue_;
    QQuickWindow& window_;
    std::filesystem::path folder_;
    GamePhase phase_ = GamePhase::gameOver;
    int pictures_ = 0;
    bool failed_ = false;
    Lifetime lifetime_;
};

} // namespace vorbel
