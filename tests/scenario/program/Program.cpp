#include "tests/scenario/program/Program.h"

#include "platform/store/SettingsDefaults.h"

#include <QFile>
#include <QRegularExpression>

#include <csignal>

#include <sys/types.h>

namespace vorbel {

Program::Program(const QStringList& arguments, const Environment& environment) {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("XDG_CONFIG_HOME"), home_.path());
    variables.insert(QStringLiteral("XDG_STATE_HOME"), home_.path());
    variables.insert(QStringLiteral("XDG_DATA_HOME"), home_.path() + QStringLiteral("/data"));
    variables.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("dummy"));
    for (const auto& [name, value] : environment) {
        value.isEmpty() ? variables.remove(name) : variables.insert(name, value);
    }
    process_.setProcessEnvironment(variables);
    process_.start(QStringLiteral(VORBEL_PROGRAM), arguments);
    process_.waitForStarted();
}

Program::~Program() {
    if (isRunning()) {
        process_.terminate();
        if (!process_.waitForFinished(5'000)) {
            process_.kill();
            process_.waitForFinished();
        }
    }
}

std::optional<int> Program::status(int milliseconds) {
    if (isRunning() && !process_.waitForFinished(milliseconds)) {
        return std::nullopt;
    }
    return process_.exitStatus() == QProcess::NormalExit ? std::optional(process_.exitCode()) : std::nullopt;
}

void Program::signal(int number) const {
    kill(static_cast<pid_t>(process_.processId()), number);
}

int Program::residentMegabytes() const {
    QFile status(QStringLiteral("/proc/%1/status").arg(process_.processId()));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QRegularExpression resident(QStringLiteral("VmRSS:\\s*(\\d+) kB"));
    return resident.match(QString::fromUtf8(status.readAll())).captured(1).toInt() / 1024;
}

QString Program::output() {
    process_.waitForReadyRead(0);
    return output_ += QString::fromUtf8(process_.readAllStandardOutput());
}

QString Program::errors() {
    process_.waitForReadyRead(0);
    return errors_ += QString::fromUtf8(process_.readAllStandardError());
}

int Program::storedInteger(const QString& key) const {
    const SettingsDefaults stored(std::filesystem::path(home_.path().toStdString()) / "vorbel");
    return stored.integer(key.toStdString()).value_or(0);
}

} // namespace vorbel
