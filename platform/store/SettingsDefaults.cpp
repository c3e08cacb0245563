#include "platform/store/SettingsDefaults.h"

#include "platform/store/ValueFile.h"

#include <QDeadlineTimer>
#include <QLockFile>
#include <QStandardPaths>
#include <QUrl>

#include <system_error>
#include <vector>

namespace vorbel {

namespace fs = std::filesystem;

namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 5s;
// Of a lock without a name in it: whoever made it was killed before he could write his own.
constexpr auto forsakenAfter = 4s;

// The toolkit's own wait doubles its pauses, and so would starve beside a game that writes often.
void waitFor(QLockFile& lock) {
    constexpr int pause = 5; // ms
    const QDeadlineTimer deadline(longestWait);
    while (!lock.tryLock(pause) && lock.error() == QLockFile::LockFailedError && !deadline.hasExpired()) {
    }
}

// The toolkit would read what stands in the lock's place, and so wait for a pipe for ever.
bool canBeLock(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(file, error);
    return !fs::exists(status) || fs::is_regular_file(status);
}

// True while it lives.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag = true) {}
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag_ = false; }

private:
    bool& flag_;
};

std::vector<fs::path> unfinishedIn(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error; // then there is nothing to find
    for (fs::directory_iterator file(folder, error), end; !error && file != end; file.increment(error)) {
        if (isUnfinished(*file)) {
            found.push_back(*file);
        }
    }
    return found;
}

} // namespace

SettingsDefaults::SettingsDefaults(fs::path folder) : folder_(std::move(folder)) {
    removeUnfinished();
}

SettingsDefaults::~SettingsDefaults() {
    if (!pending_.empty()) {
        SettingsDefaults::atomically([this] { writePending(); });
    }
}

fs::path SettingsDefaults::userFolder() {
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return fs::path(settings.toStdString()) / "vorbel";
}

void SettingsDefaults::atomically(const std::function<void()>& change) {
    if (locked_) {
        return change();
    }
    std::error_code ignored; // the files will not be written either
    fs::create_directories(folder_, ignored);
    const fs::path file = folder_ / ".lock";               // no key's: a dot in a key is written as %2E
    QLockFile lock(QString::fromStdString(file.string())); // unlocks itself
    lock.setStaleLockTime(forsakenAfter);
    if (canBeLock(file)) {
        waitFor(lock);
    }
    const Raised raised(locked_);
    change();
}

void SettingsDefaults::setAside(std::string_view key) {
    atomically([this, key] { isSetAside(fileOf(key)); });
}

std::optional<DefaultsValue> SettingsDefaults::value(std::string_view key) const {
    const auto waiting = pending_.find(key);
    return waiting != pending_.end() ? std::optional(waiting->second) : valueIn(fileOf(key));
}

void SettingsDefaults::setValue(std::string_view key, DefaultsValue value) {
    pending_.insert_or_assign(std::string(key), std::move(value));
    atomically([this] { writePending(); });
}

// Keys may hold any character, file names may not: a dot or slash becomes %2E or %2F.
fs::path SettingsDefaults::fileOf(std::string_view key) const {
    const QString name = QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
    return folder_ / QUrl::toPercentEncoding(name, {}, ".").toStdString();
}

// Only under the lock: whoever is writing holds it, and needs what he has not finished.
void SettingsDefaults::removeUnfinished() {
    if (unfinishedIn(folder_).empty()) {
        return;
    }
    SettingsDefaults::atomically([this] {
        for (const fs::path& file : unfinishedIn(folder_)) {
            std::error_code ignored; // it does no harm
            fs::remove(file, ignored);
        }
    });
}

void SettingsDefaults::writePending() {
    std::erase_if(pending_,
                  [this](const auto& entry) { return isReplaced(fileOf(entry.first), entry.second); });
}

} // namespace vorbel
