#include "l10n/BocciaClass.h"

#include "l10n/L10n.h"

#include <gtest/gtest.h>

namespace vorbel {
namespace {

TEST(BocciaClassTest, CasesAreInTheirOrder) {
    ASSERT_EQ(allBocciaClasses.size(), 4u);
    EXPECT_EQ(allBocciaClasses.front(), BocciaClass::bc1);
    EXPECT_EQ(allBocciaClasses.back(), BocciaClass::bc4);
}

TEST(BocciaClassTest, IsConstructedFromItsRawValue) {
    EXPECT_EQ(bocciaClassFromRawValue("BC3"), BocciaClass::bc3);
    for (const BocciaClass sportClass : allBocciaClasses) {
        EXPECT_EQ(bocciaClassFromRawValue(rawValue(sportClass)), sportClass);
    }
}

TEST(BocciaClassTest, RawValuesAreUpperCase) {
    for (const char* name : {"bc1", "Bc1", "BC0", "BC5", "BC", "", "BC1 "}) {
        EXPECT_FALSE(bocciaClassFromRawValue(name)) << name;
    }
}

TEST(BocciaClassTest, DescriptionKeyNamesTheCase) {
    EXPECT_EQ(descriptionKey(BocciaClass::bc1).name(), "bc.desc.bc1");
    EXPECT_EQ(descriptionKey(BocciaClass::bc4).name(), "bc.desc.bc4");
    EXPECT_EQ(L10n::t(descriptionKey(BocciaClass::bc2), AppLanguage::en),
              "Cerebral palsy, higher functional level than BC1. No assistant allowed.");
}

} // namespace
} // namespace vorbel
