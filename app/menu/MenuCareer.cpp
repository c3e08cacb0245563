#include "app/menu/MenuCareer.h"

#include "app/career/Career.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"
#include "career/Progress.h"

namespace vorbel {

MenuCareer::MenuCareer(Career& career, const PlayerSettings& settings)
    : career_(career), settings_(settings) {
    diary_.setLanguage(settings_.selectedLanguage());
    connect(&career_, &Career::changed, this, &MenuCareer::changed);
    connect(&settings_, &PlayerSettings::languageChanged, this, [this] {
        diary_.setLanguage(settings_.selectedLanguage());
        emit changed();
    });
}

QString MenuCareer::currentRankTitle() const {
    return text(rankKey(career_.gamesPlayed()), settings_.selectedLanguage());
}

QString MenuCareer::rank() const {
    return text("menu.rank.format", settings_.selectedLanguage(), {currentRankTitle().toStdString()});
}

QString MenuCareer::games() const {
    const int played = career_.gamesPlayed();
    const std::string count = std::to_string(played);
    if (const auto missing = gamesToNextRank(played)) {
        return text("menu.gamesNext.format", settings_.selectedLanguage(), {count, std::to_string(*missing)});
    }
    return text("menu.gamesMax.format", settings_.selectedLanguage(), {count});
}

bool MenuCareer::isRealAthlete() const {
    return career_.isRealAthlete();
}
void MenuCareer::setRealAthlete(bool is) {
    career_.setRealAthlete(is);
}

QString MenuCareer::totalXP() const {
    return text("diary.totalXP.format", settings_.selectedLanguage(), {std::to_string(career_.athleteXP())});
}

void MenuCareer::readDiary() {
    diary_.read(career_.diaryData());
}

} // namespace vorbel
