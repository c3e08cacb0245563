// The lists that the player chooses from.
#include "app/text/Texts.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class MenuChoicesTest : public ViewTest {
protected:
    MenuChoices& choices = *view.menu()->choices();
};

TEST_F(MenuChoicesTest, PlacesOutsideAListAreIgnored) {
    for (const int nowhere : {-1, 37, 1000}) {
        choices.setLanguageIndex(nowhere);
        choices.setCountryIndex(nowhere);
        choices.setClassIndex(nowhere);
    }
    EXPECT_EQ(settings.selectedLanguage(), AppLanguage::ru);
    EXPECT_EQ(settings.selectedCountry(), Country::france);
    EXPECT_EQ(settings.selectedClass(), BocciaClass::bc4);
}

TEST_F(MenuChoicesTest, TheListsHoldAllLanguagesCountriesAndClassesInTheirOrder) {
    speak(AppLanguage::en);
    EXPECT_EQ(choices.languages().size(), 20);
    EXPECT_EQ(choices.languages().first(), QStringLiteral("Русский"));
    EXPECT_EQ(choices.languages().last(), QStringLiteral("Ελληνικά"));
    EXPECT_EQ(choices.countries().size(), 37);
    EXPECT_EQ(choices.countries().first(), QStringLiteral("Belgium"));
    EXPECT_EQ(choices.countries().last(), QStringLiteral("Russia"));
    EXPECT_EQ(choices.flags().first(), QStringLiteral("🇧🇪"));
    EXPECT_EQ(choices.sportClasses(), QStringList({QStringLiteral("BC1"), QStringLiteral("BC2"),
                                                   QStringLiteral("BC3"), QStringLiteral("BC4")}));
}

TEST_F(MenuChoicesTest, TheClassIsDescribedInThePlayersLanguage) {
    choices.setClassIndex(1);
    choices.setLanguageIndex(static_cast<int>(AppLanguage::de));
    EXPECT_EQ(choices.classDescription(), text("bc.desc.bc2", AppLanguage::de));
    choices.setClassIndex(2);
    EXPECT_EQ(choices.classDescription(), text("bc.desc.bc3", AppLanguage::de));
}

} // namespace vorbel
