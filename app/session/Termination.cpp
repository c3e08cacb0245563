#include "app/session/Termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace vorbel {

namespace {

constexpr std::array endings = {SIGTERM, SIGINT, SIGHUP};

// A signal comes between any two instructions, so all that its handler does is to write into this pipe, which the
// event loop reads.
std::array<int, 2>& ends() {
    static std::array<int, 2> both = {-1, -1};
    return both;
}

void passOn(int /*signal*/) {
    const int error = errno;
    [[maybe_unused]] const auto written = ::write(ends()[1], "", 1);
    errno = error;
}

void handleWith(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : endings) {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

Termination::Termination() {
    if (pipe2(ends().data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        auto* notifier = new QSocketNotifier(ends()[0], QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [notifier] {
            notifier->setEnabled(false);
            QCoreApplication::exit(0);
        });
        handleWith(passOn);
    }
}

Termination::~Termination() {
    handleWith(SIG_DFL);
    for (int& end : ends()) {
        close(std::exchange(end, -1));
    }
}

} // namespace vorbel
