// The options as their screen lists them.
#pragma once

#include "app/options/OptionTable.h"
#include "app/screen/MenuScreen.h"
#include "l10n/AppLanguage.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class Hints;
class OpenMenu;
class Options;
class PlayerSettings;
class PressCatcher;

// A row an option, in the player's language.
class OptionsModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QString title READ title NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool inMainMenu READ isInMainMenu NOTIFY inMainMenuChanged FINAL)

public:
    enum Role {
        HeadingRole = Qt::UserRole, // the group's name at its first row, empty at the others
        TitleRole,
        HelpRole,
        IsSwitchRole,
        ChoicesRole, // what can be chosen, as a list of texts
        ChosenRole,  // the place in it; of a switch 0 or 1
    };

    // All must outlive it.
    OptionsModel(Options& options, const PlayerSettings& settings, OpenMenu& openMenu, PressCatcher& catcher,
                 const Hints& hints);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString title() const;
    // Whether the main menu leads here too: one switch does not reach the menu bar.
    [[nodiscard]] bool isInMainMenu() const;

    Q_INVOKABLE void choose(int row, int place); // takes effect at once; a key is awaited
    Q_INVOKABLE void open();                     // shows the screen
    Q_INVOKABLE void close();                    // goes back to where it was opened

signals:
    void languageChanged();
    void inMainMenuChanged();

private:
    void tellAll();
    void chooseKey(Option option, int place);
    [[nodiscard]] QString helpOf(const OptionRow& row) const;
    [[nodiscard]] QStringList choicesOf(const OptionRow& row) const;
    [[nodiscard]] QStringList keyChoices(int key) const;

    Options& options_;
    const PlayerSettings& settings_;
    OpenMenu& openMenu_;
    PressCatcher& catcher_;
    const Hints& hints_;
    MenuScreen openedFrom_ = MenuScreen::main;
};

} // namespace vorbel
