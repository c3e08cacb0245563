// The menu over the game: which screen is open, and what the player can do there.
#pragma once

#include "app/keys/ControlsModel.h"
#include "app/menu/MenuCareer.h"
#include "app/menu/MenuChoices.h"
#include "app/menu/MenuResult.h"
#include "app/menu/MenuTexts.h"
#include "app/options/OptionsModel.h"
#include "app/screen/MenuScreen.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class Career;
class GameLogic;
class Hints;
class OpenMenu;
class PlayerSettings;
class PressCatcher;
class Resources;

// Has no state of its own: it reads and writes the player's settings and which screen is open, shows the
// career, and drives the match. All texts are in the player's language and follow a change of it at once.
class MenuModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(Screen screen READ screen NOTIFY screenChanged FINAL)
    Q_PROPERTY(bool open READ isOpen NOTIFY screenChanged FINAL)
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY languageChanged FINAL)
    Q_PROPERTY(QUrl logo READ logo CONSTANT FINAL)
    Q_PROPERTY(QString nameAndVersion READ nameAndVersion CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuTexts* texts READ texts CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuChoices* choices READ choices CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuCareer* career READ career CONSTANT FINAL)
    Q_PROPERTY(vorbel::MenuResult* result READ result CONSTANT FINAL)
    Q_PROPERTY(vorbel::OptionsModel* options READ options CONSTANT FINAL)
    Q_PROPERTY(vorbel::ControlsModel* controls READ controls CONSTANT FINAL)

public:
    enum class Screen {
        Main,
        Country,
        BcClass,
        Rules,
        About,
        Diary,
        Options,
        Controls,
        Leave,
        MatchResult,
        Hidden
    };
    Q_ENUM(Screen)

    // All of them must outlive it.
    MenuModel(GameLogic& match, PlayerSettings& settings, OpenMenu& openMenu, Career& career,
              Options& options, GameControls& controls, const Hints& hints, PressCatcher& catcher,
              const Resources& resources);

    [[nodiscard]] Screen screen() const;
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] bool rightToLeft() const;
    [[nodiscard]] QUrl logo() const;               // empty when the picture is missing
    [[nodiscard]] static QString nameAndVersion(); // of the game: the same in every language
    [[nodiscard]] QUrl pages() const; // the game's own, in the player's language; empty when missing
    [[nodiscard]] MenuTexts* texts() { return &texts_; }
    [[nodiscard]] MenuChoices* choices() { return &choices_; }
    [[nodiscard]] MenuCareer* career() { return &career_; }
    [[nodiscard]] MenuResult* result() { return &result_; }
    [[nodiscard]] OptionsModel* options() { return &options_; }
    [[nodiscard]] ControlsModel* controls() { return &controls_; }

    Q_INVOKABLE void startGame();       // a single match: first its country
    Q_INVOKABLE void startTournament(); // the same for a tournament
    Q_INVOKABLE void openDiary();
    Q_INVOKABLE void openRules();
    Q_INVOKABLE void openAbout();
    Q_INVOKABLE void openPages();   // in the system's browser
    Q_INVOKABLE void quit();        // ends the program, without asking
    Q_INVOKABLE void chooseClass(); // the country is chosen
    Q_INVOKABLE void back();        // to the main screen, from every other one
    Q_INVOKABLE void play();        // gives the match all choices and hides the menu
    Q_INVOKABLE void goOn();        // from the result to the next match or round

signals:
    void screenChanged();
    void languageChanged();

private:
    void open(MenuScreen screen);

    GameLogic& match_;
    PlayerSettings& settings_;
    OpenMenu& openMenu_;
    const Resources& resources_;
    MenuTexts texts_;
    MenuChoices choices_;
    MenuCareer career_;
    MenuResult result_;
    OptionsModel options_;
    ControlsModel controls_;
};

} // namespace vorbel
