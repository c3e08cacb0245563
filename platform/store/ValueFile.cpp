#include "platform/store/ValueFile.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <system_error>

namespace vorbel {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = 64ULL * 1024 * 1024; // bytes

bool isThere(const fs::path& file) {
    std::error_code error;
    return fs::exists(fs::symlink_status(file, error)); // a link that leads nowhere is there too
}

bool isOfTypeOf(const std::optional<DefaultsValue>& found, const DefaultsValue& value) {
    return found && found->index() == value.index();
}

} // namespace

std::optional<DefaultsValue> valueIn(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > largestFile) {
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray content = file.readAll();
    return decoded({content.constData(), static_cast<std::size_t>(content.size())});
}

// The flush is needed for its result: commit() does not notice when what was still buffered finds no space.
bool isReplaced(const fs::path& path, const DefaultsValue& value) {
    if (isThere(path) && !isOfTypeOf(valueIn(path), value) && !isSetAside(path)) {
        return false;
    }
    const std::string content = encoded(value);
    const auto size = static_cast<qint64>(content.size());
    QSaveFile file(QString::fromStdString(path.string()));
    return file.open(QIODevice::WriteOnly) && file.write(content.data(), size) == size && file.flush() &&
           file.commit();
}

bool isSetAside(const fs::path& file) {
    if (!isThere(file)) {
        return true;
    }
    const std::string first = file.string() + ".damaged";
    fs::path aside = first;
    for (int copy = 2; isThere(aside); ++copy) {
        aside = first + "-" + std::to_string(copy);
    }
    std::error_code error;
    fs::rename(file, aside, error);
    return !error;
}

// QSaveFile writes into KEY.XXXXXX with six letters of chance. No key has a dot in its file's name.
bool isUnfinished(const fs::path& file) {
    constexpr std::size_t letters = 6;
    const std::string ending = file.extension().string();
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    std::error_code error;
    return ending.size() == 1 + letters && std::all_of(ending.begin() + 1, ending.end(), isLetter) &&
           fs::is_regular_file(file, error);
}

} // namespace vorbel
