// A recorded match in the window.
#pragma once

#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"
#include "recording/Replay.h"

#include <QObject>

namespace vorbel {

class ContentView;

// Shows the match from just before its first throw to its end, and says on the console whether it went as recorded.
// As an event filter of the application it keeps keys, mouse and fingers from the match; any of them ends the show, and
// with it the application: with status 0, or 1 when the match did not go as recorded. Main thread only.
class ReplayShow final : public QObject {
    Q_OBJECT

public:
    // The view's match must be made with the replay's services. All three must outlive it.
    ReplayShow(ContentView& view, MainQueue& queue, recording::Replay& replay);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void chooseAsRecorded();
    void begin();
    void tick();
    void tellTheEnd() const;
    void leave() const;

    ContentView& view_;
    MainQueue& queue_;
    recording::Replay& replay_;
    Subscription ticks_;
    Lifetime lifetime_;
};

} // namespace vorbel
