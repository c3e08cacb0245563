// The end of the session: logging out, shutting down, Ctrl-C in the terminal.
#pragma once

#include <QObject>

namespace vorbel {

// For as long as it lives, the signals of such an end let the application's event loop come to its end, as if the
// player had closed the window: what is to be saved is saved. One at a time; needs the application object.
class Termination final : public QObject {
    Q_OBJECT

public:
    Termination();
    ~Termination() override;
};

} // namespace vorbel
