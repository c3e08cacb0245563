#include "app/diagnose/FontFacts.h"

#include "app/text/Fonts.h"

#include <QFontInfo>
#include <QString>

namespace vorbel {

std::string fontFacts() {
    std::string facts;
    for (const AppLanguage language : allLanguages) {
        const QString wanted = fontFamily(language);
        const QString found = QFontInfo(QFont(wanted)).family();
        const std::string instead = found == wanted ? "" : ", missing; shown in " + found.toStdString();
        facts += "  " + std::string(rawValue(language)) + "  " + wanted.toStdString() + instead + "\n";
    }
    return facts;
}

} // namespace vorbel
