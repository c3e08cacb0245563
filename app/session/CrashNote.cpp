#include "app/session/CrashNote.h"

#include "app/command_line/Version.h"

#include <array>
#include <csignal>
#include <string>
#include <string_view>

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

namespace vorbel {

namespace {

constexpr std::array crashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

// Whoever handles a signal finds nothing but what lies ready: no memory can be asked for any more.
struct Ready {
    std::string file;
    std::string line;                   // "… crashed, signal "
    std::array<char, 65536> stack = {}; // also for a crash that comes of a stack without end
};

Ready& ready() {
    static Ready all;
    return all;
}

void write(int file, std::string_view text) {
    [[maybe_unused]] const auto written = ::write(file, text.data(), text.size());
}

void noteCrash(int signal) {
    const int file = open(ready().file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file >= 0) {
        const std::array<char, 3> number = {static_cast<char>('0' + signal / 10),
                                            static_cast<char>('0' + signal % 10), '\n'};
        write(file, ready().line);
        write(file, {number.data(), number.size()});
        std::array<void*, 32> calls{};
        backtrace_symbols_fd(calls.data(), backtrace(calls.data(), calls.size()), file);
        close(file);
    }
    raise(signal); // to the system's own handler: this one was good for one time
}

} // namespace

void noteCrashesIn(const std::filesystem::path& file) {
    ready().file = file.string();
    ready().line = std::string(version()) + " crashed, signal ";
    stack_t stack{};
    stack.ss_sp = ready().stack.data();
    stack.ss_size = ready().stack.size();
    sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_handler = noteCrash;
    action.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    for (const int signal : crashes) {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace vorbel
