#include "app/session/LastSession.h"

#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vorbel {

namespace {

constexpr std::string_view prefix = "running-";

// Takes the mark of a game that is gone. A game that runs holds its own: the system lets go of it when the game
// dies, however it dies.
bool isAbandoned(const std::filesystem::path& mark) {
    const int file = open(mark.c_str(), O_RDWR | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    const bool abandoned = flock(file, LOCK_EX | LOCK_NB) == 0 && unlink(mark.c_str()) == 0;
    close(file);
    return abandoned;
}

} // namespace

LastSession::LastSession(const std::filesystem::path& folder) : endedBadly_(clearAbandonedMarks(folder)) {
    mark(folder);
}

LastSession::~LastSession() {
    if (held_ >= 0) {
        unlink(mark_.c_str());
        close(held_);
    }
}

bool LastSession::clearAbandonedMarks(const std::filesystem::path& folder) {
    bool found = false;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().filename().string().starts_with(prefix)) {
            found = isAbandoned(entry.path()) || found;
        }
    }
    return found;
}

void LastSession::mark(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::string name = (folder / (std::string(prefix) + "XXXXXX")).string();
    held_ = mkostemp(name.data(), O_CLOEXEC);
    if (held_ >= 0) {
        flock(held_, LOCK_EX);
        mark_ = name;
    }
}

} // namespace vorbel
