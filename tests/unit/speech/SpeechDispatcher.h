// A speech service of the test's own, whose synthesizer writes into a file what it is to say.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <string>

namespace vorbel::test {

class SpeechDispatcher {
public:
    SpeechDispatcher(); // starts it, and tells this process where it is
    ~SpeechDispatcher();
    SpeechDispatcher(const SpeechDispatcher&) = delete;
    SpeechDispatcher& operator=(const SpeechDispatcher&) = delete;

    [[nodiscard]] static bool isInstalled();
    [[nodiscard]] bool isRunning() const;

    // What was said so far, each sentence as "language|text" in a line, once that many are there.
    [[nodiscard]] std::string spoken(int lines) const;

private:
    void write(const QString& name, const QString& content) const;
    [[nodiscard]] QString read(const QString& name) const;
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    QProcess service_;
};

} // namespace vorbel::test
