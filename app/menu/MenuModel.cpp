#include "app/menu/MenuModel.h"

#include "app/command_line/Version.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Fonts.h"
#include "engine/GameLogic.h"

#include <QCoreApplication>
#include <QDesktopServices>

namespace vorbel {

static_assert(static_cast<int>(MenuModel::Screen::MatchResult) == static_cast<int>(MenuScreen::matchResult));
static_assert(static_cast<int>(MenuModel::Screen::Hidden) == static_cast<int>(MenuScreen::hidden));

MenuModel::MenuModel(GameLogic& match, PlayerSettings& settings, OpenMenu& openMenu, Career& career,
                     Options& options, GameControls& controls, const Hints& hints, PressCatcher& catcher,
                     const Resources& resources)
    : match_(match),
      settings_(settings),
      openMenu_(openMenu),
      resources_(resources),
      choices_(settings),
      career_(career, settings),
      result_(match, settings, openMenu),
      options_(options, settings, openMenu, catcher, hints),
      controls_(controls, settings, openMenu, catcher) {
    texts_.setLanguage(settings_.selectedLanguage());
    connect(&openMenu_, &OpenMenu::menuScreenChanged, this, &MenuModel::screenChanged);
    connect(&settings_, &PlayerSettings::languageChanged, this, [this] {
        texts_.setLanguage(settings_.selectedLanguage());
        emit languageChanged();
    });
}

MenuModel::Screen MenuModel::screen() const {
    return static_cast<Screen>(openMenu_.menuScreen());
}
bool MenuModel::isOpen() const {
    return !openMenu_.isHidden();
}
bool MenuModel::rightToLeft() const {
    return isRightToLeft(settings_.selectedLanguage());
}
QUrl MenuModel::logo() const {
    const auto file = resources_.find("Logo", "png");
    return file ? QUrl::fromLocalFile(QString::fromStdString(file->string())) : QUrl();
}
QString MenuModel::nameAndVersion() {
    const std::string_view number = version();
    return QStringLiteral("VORBEL ") + QString::fromUtf8(number.data(), qsizetype(number.size()));
}
QUrl MenuModel::pages() const {
    const std::string name = "pages/" + std::string(rawValue(settings_.selectedLanguage()));
    const auto file = resources_.find(name, "html");
    return file ? QUrl::fromLocalFile(QString::fromStdString(file->string())) : QUrl();
}

void MenuModel::startGame() {
    settings_.setStartingTournament(false);
    open(MenuScreen::country);
}
void MenuModel::startTournament() {
    settings_.setStartingTournament(true);
    open(MenuScreen::country);
}
void MenuModel::openDiary() {
    career_.readDiary();
    open(MenuScreen::diary);
}
void MenuModel::openRules() {
    open(MenuScreen::rules);
}
void MenuModel::openAbout() {
    open(MenuScreen::about);
}
void MenuModel::openPages() {
    QDesktopServices::openUrl(pages());
}
void MenuModel::quit() {
    QCoreApplication::quit();
}
void MenuModel::chooseClass() {
    open(MenuScreen::bcClass);
}
void MenuModel::back() {
    open(MenuScreen::main);
}

void MenuModel::play() {
    settings_.handOverChoices();
    if (settings_.startingTournament()) {
        settings_.setRedAIOn(false);
        settings_.setBlueAIOn(true);
        match_.startTournament(settings_.selectedCountry());
    } else if (settings_.selectedLanguage() != AppLanguage::ru) {
        // In Russian the match's own message stands; it may already be beyond its first throw.
        match_.message = std::string(L10n::t("msg.initial", settings_.selectedLanguage()));
    }
    open(MenuScreen::hidden);
}

void MenuModel::goOn() {
    match_.processInput();
    open(match_.tournamentActive ? MenuScreen::hidden : MenuScreen::main);
}

void MenuModel::open(MenuScreen screen) {
    openMenu_.setMenuScreen(screen);
}

} // namespace vorbel
