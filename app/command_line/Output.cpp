#include "app/command_line/Output.h"

#include <QFile>
#include <QImage>
#include <QSaveFile>

#include <system_error>

namespace vorbel {

namespace {

bool isReplaced(const QImage& picture, const QString& name) {
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.flush() && file.commit();
}

bool isFilled(const QImage& picture, const QString& name) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.flush();
}

} // namespace

bool isWritten(std::string_view text, std::FILE* output) {
    if (std::fwrite(text.data(), 1, text.size(), output) == text.size() && std::fflush(output) == 0) {
        return true;
    }
    std::fputs("vorbel: cannot write the output\n", stderr);
    return false;
}

bool isWritten(const QImage& picture, const std::filesystem::path& file) {
    std::error_code error;
    const QString name = QString::fromStdString(file.string());
    const bool special = std::filesystem::is_other(file, error); // replacing a device would need a new one
    if (special ? isFilled(picture, name) : isReplaced(picture, name)) {
        return true;
    }
    std::fprintf(stderr, "vorbel: cannot write the picture %s\n", file.c_str());
    return false;
}

} // namespace vorbel
