#include "tests/scenario/menus/Pictures.h"

#include <QDir>

#include <gtest/gtest.h>

#include <cstdlib>

namespace vorbel {

void keep(const QImage& picture, AppLanguage language, const char* screen) {
    const char* folder = std::getenv("VORBEL_MENU_PICTURES");
    if (folder == nullptr) {
        return;
    }
    const QString path = QString::fromLocal8Bit(folder);
    QDir().mkpath(path);
    EXPECT_TRUE(
        picture.save(QStringLiteral("%1/%2-%3.png")
                         .arg(path, QString::fromUtf8(rawValue(language)), QString::fromLatin1(screen))));
}

} // namespace vorbel
