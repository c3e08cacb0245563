#include "app/text/Fonts.h"

#include <QFont>
#include <QGuiApplication>

namespace vorbel {

namespace {

// The handler of messages before ours. A function to be called back gets no state of its own.
QtMessageHandler& formerHandler() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

// While the language changes, texts and their font follow one after the other, so that a text meets the font of
// the other language for a moment. The toolkit complains of that, and then finds another font by itself.
void tellAllButMissingScripts(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.startsWith(QLatin1String("  OpenType support missing for"))) {
        formerHandler()(type, context, message);
    }
}

} // namespace

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
    formerHandler() = qInstallMessageHandler(tellAllButMissingScripts);
}

void setDefaultFont(AppLanguage language) {
    QGuiApplication::setFont(QFont(fontFamily(language)));
}

} // namespace vorbel
