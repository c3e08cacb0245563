// The real program, run as a player runs it.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <optional>

namespace vorbel {

// A process of its own with folders of its own for settings and state, ended with this object.
class Program {
public:
    using Environment = std::map<QString, QString>; // an empty value removes the variable

    explicit Program(const QStringList& arguments, const Environment& environment = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] bool isRunning() const { return process_.state() == QProcess::Running; }

    void signal(int number) const; // sends it to the process

    [[nodiscard]] int residentMegabytes() const; // 0 once it has ended

    // Waits for its end: the exit status, none when it takes longer or crashed.
    [[nodiscard]] std::optional<int> status(int milliseconds = 20'000);

    // All that it wrote so far.
    [[nodiscard]] QString output();
    [[nodiscard]] QString errors();

    // The stored integer of that key; 0 when there is none.
    [[nodiscard]] int storedInteger(const QString& key) const;

private:
    QTemporaryDir home_;
    QProcess process_;
    QString output_;
    QString errors_;
};

} // namespace vorbel
