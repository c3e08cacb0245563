#include "app/menu/MenuCareer.h"

#include "app/text/Texts.h"
#include "app/window/ContentView.h"
#include "career/Progress.h"

namespace vorbel {

MenuCareer::MenuCareer(ContentView& view) : view_(view) {
    diary_.setLanguage(view_.selectedLanguage());
    connect(&view_, &ContentView::careerChanged, this, &MenuCareer::changed);
    connect(&view_, &ContentView::languageChanged, this, [this] {
        diary_.setLanguage(view_.selectedLanguage());
        emit changed();
    });
}

QString MenuCareer::currentRankTitle() const {
    return text(rankKey(view_.gamesPlayed()), view_.selectedLanguage());
}

QString MenuCareer::rank() const {
    return text("menu.rank.format", view_.selectedLanguage(), {currentRankTitle().toStdString()});
}

QString MenuCareer::games() const {
    const int played = view_.gamesPlayed();
    const std::string count = std::to_string(played);
    if (const auto missing = gamesToNextRank(played)) {
        return text("menu.gamesNext.format", view_.selectedLanguage(), {count, std::to_string(*missing)});
    }
    return text("menu.gamesMax.format", view_.selectedLanguage(), {count});
}

bool MenuCareer::isRealAthlete() const {
    return view_.isRealAthlete();
}
void MenuCareer::setRealAthlete(bool is) {
    view_.setRealAthlete(is);
}

QString MenuCareer::totalXP() const {
    return text("diary.totalXP.format", view_.selectedLanguage(), {std::to_string(view_.athleteXP())});
}

void MenuCareer::readDiary() {
    diary_.read(view_.diaryData());
}

} // namespace vorbel
