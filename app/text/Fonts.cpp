#include "app/text/Fonts.h"

#include <QFont>
#include <QGuiApplication>

namespace vorbel {

QString fontFamily(AppLanguage language) {
    switch (language) {
    case AppLanguage::zh:
        return QStringLiteral("Noto Sans CJK SC");
    case AppLanguage::ja:
        return QStringLiteral("Noto Sans CJK JP");
    case AppLanguage::ko:
        return QStringLiteral("Noto Sans CJK KR");
    case AppLanguage::ar:
        return QStringLiteral("Noto Sans Arabic UI");
    case AppLanguage::hi:
        return QStringLiteral("Noto Sans Devanagari UI");
    case AppLanguage::th:
        return QStringLiteral("Noto Sans Thai UI");
    default:
        return QStringLiteral("Noto Sans");
    }
}

QString nameFontFamily(AppLanguage language) {
    const bool chineseOrKorean = language == AppLanguage::zh || language == AppLanguage::ko;
    return fontFamily(chineseOrKorean ? AppLanguage::ja : language);
}

void prepareFonts() {
    const QString base = fontFamily(defaultLanguage);
    const QString emoji = QStringLiteral("Noto Color Emoji");
    for (const AppLanguage language : allLanguages) {
        if (const QString family = fontFamily(language); family != base) {
            QFont::insertSubstitutions(family, {base, emoji});
        }
    }
    QFont::insertSubstitutions(base, {emoji});
    setDefaultFont(defaultLanguage);
}

void setDefaultFont(AppLanguage language) {
    QGuiApplication::setFont(QFont(fontFamily(language)));
}

} // namespace vorbel
