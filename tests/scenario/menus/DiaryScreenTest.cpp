// The athlete's diary on its screen.
#include "tests/scenario/menus/MenuWindow.h"

#include <gtest/gtest.h>

namespace vorbel {

TEST(DiaryScreenTest, OfALongDiaryOnlyTheRowsThatAreSeenAreMadeAndItScrollsToItsEnd) {
    MenuWindow game;
    ContentView& view = game.view();
    game.setLanguage(AppLanguage::en);
    std::string json = "[";
    for (int i = 0; i < 100'000; ++i) {
        json += (i == 0 ? "" : ",") + std::string(R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":)") +
                std::to_string(700'000'000 - i * 3600) + R"(.25,"resultKey":"diary.win","xpGained":1})";
    }
    game.defaults().setBytes("boccia_diaryData", json + "]");
    view.menu()->openDiary();
    game.layOut();
    std::vector<QQuickItem*> rows;
    collect(
        game.menu(), [](QQuickItem& item) { return isOfType(item, "DiaryRow"); }, rows);
    EXPECT_GT(rows.size(), 5U);
    EXPECT_LT(rows.size(), 100U);
    EXPECT_EQ(view.menu()->career()->diary()->rowCount(), 100'000);
    game.press(Qt::Key_Tab); // from the button to the list
    game.press(Qt::Key_End);
    EXPECT_TRUE(isOfType(*game.focus(), "QQuickListView"))
        << game.focus()->metaObject()->className() << qUtf8Printable(game.focusedText());
    EXPECT_TRUE(game.focus()->property("atYEnd").toBool());
    game.press(Qt::Key_Home);
    EXPECT_TRUE(game.focus()->property("atYBeginning").toBool());
}

} // namespace vorbel
