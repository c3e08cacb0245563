#include "platform/store/SettingsDefaults.h"

#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include <system_error>

namespace vorbel {

namespace fs = std::filesystem;

namespace {

std::optional<DefaultsValue> valueIn(const fs::path& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray content = file.readAll();
    return decoded({content.constData(), static_cast<std::size_t>(content.size())});
}

void setDamagedAside(const fs::path& path) {
    std::error_code ignored; // then it is replaced
    if (fs::exists(path, ignored) && !valueIn(path)) {
        fs::rename(path, fs::path(path) += ".damaged", ignored);
    }
}

// Replaces the file whole, once its new content is safely on the disk. The flush is needed for its result:
// commit() does not notice when what was still buffered finds no space.
bool isReplaced(const fs::path& path, const DefaultsValue& value) {
    const std::string content = encoded(value);
    const auto size = static_cast<qint64>(content.size());
    QSaveFile file(QString::fromStdString(path.string()));
    return file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size && file.flush() &&
           file.commit();
}

} // namespace

SettingsDefaults::SettingsDefaults(fs::path folder) : folder_(std::move(folder)) {}

SettingsDefaults::~SettingsDefaults() {
    writePending();
}

fs::path SettingsDefaults::userFolder() {
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return fs::path(settings.toStdString()) / "vorbel";
}

std::optional<DefaultsValue> SettingsDefaults::value(std::string_view key) const {
    const auto waiting = pending_.find(key);
    return waiting != pending_.end() ? std::optional(waiting->second) : valueIn(fileOf(key));
}

void SettingsDefaults::setValue(std::string_view key, DefaultsValue value) {
    pending_.insert_or_assign(std::string(key), std::move(value));
    writePending();
}

// Keys may hold any character, file names may not: a dot or slash becomes %2E or %2F.
fs::path SettingsDefaults::fileOf(std::string_view key) const {
    const QString name = QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
    return folder_ / QUrl::toPercentEncoding(name, {}, ".").toStdString();
}

void SettingsDefaults::writePending() {
    if (pending_.empty()) {
        return;
    }
    std::error_code ignored; // the files will not be written either
    fs::create_directories(folder_, ignored);
    std::erase_if(pending_, [this](const auto& entry) {
        const fs::path file = fileOf(entry.first);
        setDamagedAside(file);
        return isReplaced(file, entry.second);
    });
}

} // namespace vorbel
