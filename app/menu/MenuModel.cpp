#include "app/menu/MenuModel.h"

#include "app/text/Fonts.h"
#include "app/window/ContentView.h"

#include <QCoreApplication>
#include <QDesktopServices>

namespace vorbel {

static_assert(static_cast<int>(MenuModel::Screen::MatchResult) == static_cast<int>(MenuScreen::matchResult));
static_assert(static_cast<int>(MenuModel::Screen::Hidden) == static_cast<int>(MenuScreen::hidden));

MenuModel::MenuModel(ContentView& view) : view_(view), choices_(view), career_(view), result_(view) {
    texts_.setLanguage(view.selectedLanguage());
    connect(&view_, &ContentView::menuScreenChanged, this, &MenuModel::screenChanged);
    connect(&view_, &ContentView::languageChanged, this, [this] {
        texts_.setLanguage(view_.selectedLanguage());
        emit languageChanged();
    });
}

MenuModel::Screen MenuModel::screen() const {
    return static_cast<Screen>(view_.menuScreen());
}
bool MenuModel::isOpen() const {
    return view_.menuScreen() != MenuScreen::hidden;
}
bool MenuModel::rightToLeft() const {
    return isRightToLeft(view_.selectedLanguage());
}
QUrl MenuModel::logo() const {
    const auto file = view_.resources().find("Logo", "png");
    return file ? QUrl::fromLocalFile(QString::fromStdString(file->string())) : QUrl();
}
QString MenuModel::webSite() const {
    return QStringLiteral("https://vorbel.example/");
}

void MenuModel::startGame() {
    view_.setStartingTournament(false);
    open(MenuScreen::country);
}
void MenuModel::startTournament() {
    view_.setStartingTournament(true);
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
void MenuModel::openWebSite() {
    QDesktopServices::openUrl(QUrl(webSite()));
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
    handOverChoices();
    if (view_.startingTournament()) {
        view_.setRedAIOn(false);
        view_.setBlueAIOn(true);
        view_.gameLogic().startTournament(view_.selectedCountry());
    } else if (view_.selectedLanguage() != AppLanguage::ru) {
        // In Russian the match's own message stands; it may already be beyond its first throw.
        view_.gameLogic().message = std::string(L10n::t("msg.initial", view_.selectedLanguage()));
    }
    open(MenuScreen::hidden);
}

void MenuModel::handOverChoices() {
    GameLogic& match = view_.gameLogic();
    match.playerClass = view_.selectedClass();
    match.playerCountry = view_.selectedCountry();
    match.language = view_.selectedLanguage();
}

void MenuModel::goOn() {
    view_.gameLogic().processInput();
    open(view_.gameLogic().tournamentActive ? MenuScreen::hidden : MenuScreen::main);
}

void MenuModel::open(MenuScreen screen) {
    view_.setMenuScreen(screen);
}

} // namespace vorbel
