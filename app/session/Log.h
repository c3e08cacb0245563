// What went wrong, on paper.
#pragma once

#include <QMessageLogContext>

#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>

namespace vorbel {

// For as long as it lives it takes the toolkit's messages and our own: warnings and worse are noted in a file of
// the state folder, a line each. What makes the program give something up (qCritical) is said on the console as
// well, the rest there only on request. The system's journal gets nothing. One at a time.
class Log {
public:
    static constexpr std::size_t sizeLimit = 65536; // bytes; a file that is full becomes `log.old`

    Log(std::filesystem::path folder, bool verbose);
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    ~Log();

    [[nodiscard]] static std::filesystem::path fileIn(const std::filesystem::path& folder) {
        return folder / "log";
    }

    // Any thread. The same again and again is noted once. What cannot be written is lost.
    void note(QtMsgType type, std::string_view message);

private:
    void write(const std::string& line) const;

    std::filesystem::path folder_;
    bool verbose_;
    std::mutex mutex_;
    std::string last_;
    QtMessageHandler former_;
};

} // namespace vorbel
