#include "tests/unit/speech/SpeechDispatcher.h"

#include "tests/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <functional>

namespace vorbel::test {

namespace {

constexpr int patience = 30'000; // ms, on a busy machine

bool comesTrue(const std::function<bool()>& condition) {
    return waitUntil(condition, std::chrono::milliseconds(patience), std::chrono::milliseconds(5));
}

} // namespace

bool SpeechDispatcher::isInstalled() {
    return !QStandardPaths::findExecutable("speech-dispatcher").isEmpty();
}

SpeechDispatcher::SpeechDispatcher() {
    QDir(folder_.path()).mkpath("modules");
    write("speechd.conf", QString("LogLevel 1\nLogDir \"%1\"\nSymbolsPreproc \"none\"\n"
                                  "AddModule \"file\" \"sd_generic\" \"file.conf\"\nDefaultModule file\n"
                                  "AudioOutputMethod \"alsa\"\n")
                              .arg(folder_.path()));
    QString voices;
    for (const char* language : {"de", "en", "zh"}) {
        voices += QString("AddVoice \"%1\" \"MALE1\" \"%1\"\nGenericLanguage \"%1\" \"%1\" \"utf-8\"\n")
                      .arg(language);
    }
    write("modules/file.conf",
          QString("GenericExecuteSynth \"echo \\'$VOICE\\'\\'|\\'\\'$DATA\\' >> %1\"\n%2")
              .arg(path("spoken"), voices));
    write(".asoundrc", "pcm.!default { type null }\nctl.!default { type null }\n"); // it insists on a device
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", folder_.path());
    service_.setProcessEnvironment(environment);
    service_.start("speech-dispatcher", {"-s", "-C", folder_.path(), "-P", path("pid"), "-c", "unix_socket",
                                         "-S", path("socket")});
    service_.waitForStarted(patience);
    comesTrue([this] { return QFile::exists(path("socket")); });
    qputenv("SPEECHD_ADDRESS", "unix_socket:" + path("socket").toUtf8());
}

SpeechDispatcher::~SpeechDispatcher() {
    service_.terminate();
    service_.waitForFinished(patience);
}

bool SpeechDispatcher::isRunning() const {
    return QFile::exists(path("socket")) && service_.state() == QProcess::Running;
}

std::string SpeechDispatcher::spoken(int lines) const {
    comesTrue([this, lines] { return read("spoken").count('\n') >= lines; });
    return read("spoken").toStdString();
}

void SpeechDispatcher::write(const QString& name, const QString& content) const {
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content.toUtf8());
    }
}

QString SpeechDispatcher::read(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace vorbel::test
