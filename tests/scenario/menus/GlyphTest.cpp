// Every character of the program is in one of the fonts that the program asks for.
#include "app/text/Fonts.h"
#include "l10n/Country.h"
#include "l10n/Keys.h"
#include "l10n/L10n.h"

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

QList<QGlyphRun> shaped(const QString& text, const QString& family) {
    QFont font(family);
    font.setPixelSize(15);
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return layout.glyphRuns();
}

// Glyph 0 is the box that stands for a character that no font has.
bool isShown(const QString& text, const QString& family) {
    const QList<QGlyphRun> runs = shaped(text, family);
    return !runs.isEmpty() &&
           std::ranges::none_of(runs, [](const QGlyphRun& run) { return run.glyphIndexes().contains(0); });
}

QString qString(std::string_view text) {
    return QString::fromUtf8(text);
}

} // namespace

class GlyphTest : public testing::TestWithParam<AppLanguage> {
protected:
    const QString family = fontFamily(GetParam());

    void expectShown(const QString& text) {
        for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            EXPECT_TRUE(isShown(line, family)) << qUtf8Printable(line);
        }
    }
};

TEST_P(GlyphTest, EveryTextOfTheTableIsShown) {
    for (const std::string_view key : L10n::keys) {
        expectShown(qString(L10n::tNamed(key, GetParam())));
    }
    for (const std::string_view key : L10n::extraKeys) {
        expectShown(qString(L10n::tNamed(key, GetParam())));
    }
}

TEST_P(GlyphTest, ItsOwnNameArrowsAndDigitsAreShown) {
    expectShown(qString(displayName(GetParam())));
    expectShown(QStringLiteral("← → ↑ ↓ · — 0123456789"));
}

TEST_P(GlyphTest, AllFlagsAreShownInColourEachAsOneGlyph) {
    for (const Country country : allCountries) {
        const QList<QGlyphRun> runs = shaped(qString(flagEmoji(country)), family);
        ASSERT_EQ(runs.size(), 1) << key(country).name();
        EXPECT_EQ(runs[0].rawFont().familyName(), QStringLiteral("Noto Color Emoji")) << key(country).name();
        EXPECT_EQ(runs[0].glyphIndexes().size(), 1) << key(country).name();
        EXPECT_FALSE(runs[0].glyphIndexes().contains(0)) << key(country).name();
    }
}

TEST_P(GlyphTest, ItsLettersComeFromItsOwnFont) {
    const QList<QGlyphRun> runs = shaped(qString(displayName(GetParam())).left(1), family);
    ASSERT_FALSE(runs.isEmpty());
    EXPECT_EQ(runs[0].rawFont().familyName(), family);
}

TEST(MissingGlyphTest, ACharacterThatNoFontHasIsNoticed) {
    EXPECT_FALSE(isShown(QString(QChar(0xE123)), fontFamily(AppLanguage::en)));
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, GlyphTest, testing::ValuesIn(allLanguages),
                         [](const auto& test) { return std::string(rawValue(test.param)); });

} // namespace vorbel
