#include "app/session/Log.h"

#include "app/command_line/Version.h"

#include <QDateTime>

#include <atomic>
#include <cstdio>
#include <fstream>
#include <system_error>

namespace vorbel {

namespace {

// The toolkit calls back a function without state of its own.
std::atomic<Log*>& current() {
    static std::atomic<Log*> log = nullptr;
    return log;
}

void takeMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (Log* log = current()) {
        log->note(type, message.toStdString());
    }
}

bool isWorthNoting(QtMsgType type) {
    return type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg;
}

bool isForEveryConsole(QtMsgType type) {
    return type == QtCriticalMsg || type == QtFatalMsg;
}

} // namespace

Log::Log(std::filesystem::path folder, bool verbose)
    : folder_(std::move(folder)), verbose_(verbose), former_(qInstallMessageHandler(takeMessage)) {
    current() = this;
}

Log::~Log() {
    qInstallMessageHandler(former_);
    current() = nullptr;
}

void Log::note(QtMsgType type, std::string_view message) {
    const std::lock_guard guard(mutex_);
    if (verbose_ || isForEveryConsole(type)) {
        std::fprintf(stderr, "vorbel: %.*s\n", static_cast<int>(message.size()), message.data());
    }
    if (isWorthNoting(type) && last_ != message) {
        last_ = message;
        const std::string time = QDateTime::currentDateTime().toString(Qt::ISODate).toStdString();
        write(time + " " + std::string(version()) + " " + last_ + "\n");
    }
}

void Log::write(const std::string& line) const {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    const std::filesystem::path file = fileIn(folder_);
    if (const auto size = std::filesystem::file_size(file, error); !error && size + line.size() > sizeLimit) {
        std::filesystem::rename(file, folder_ / "log.old", error);
    }
    std::ofstream(file, std::ios::app) << line.substr(0, sizeLimit);
}

} // namespace vorbel
