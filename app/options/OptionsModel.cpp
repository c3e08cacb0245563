#include "app/options/OptionsModel.h"

#include "app/keys/Hints.h"
#include "app/keys/PressCatcher.h"
#include "app/keys/PressedKey.h"
#include "app/options/Options.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"

#include <algorithm>

namespace vorbel {

namespace {

const OptionRow& rowAt(int row) {
    return optionRows()[static_cast<std::size_t>(row)];
}

QString headingOf(int row, AppLanguage language) {
    const bool first = row == 0 || rowAt(row - 1).group != rowAt(row).group;
    return first ? text(rowAt(row).group, language) : QString();
}

// 1500 is "1.5": a choice's value, in thousands.
std::string inThousands(int value, AppLanguage language) {
    std::string digits = std::to_string(value % 1000 + 1000).substr(1);
    digits.erase(digits.find_last_not_of('0') + 1);
    const std::string whole = std::to_string(value / 1000);
    return digits.empty() ? whole : whole + std::string(L10n::t("number.decimalPoint", language)) + digits;
}

QString labelOf(const OptionChoice& choice, AppLanguage language) {
    const std::string_view label = L10n::tNamed(choice.label, language);
    return QString::fromStdString(choice.label.ends_with(".format")
                                      ? L10n::fill(label, {inThousands(choice.value, language)})
                                      : std::string(label));
}

int placeOf(const OptionRow& row, int value) {
    if (row.isKey()) {
        return value == 0 ? 0 : 1;
    }
    return static_cast<int>(std::ranges::find(row.choices, value, &OptionChoice::value) -
                            row.choices.begin());
}

} // namespace

OptionsModel::OptionsModel(Options& options, const PlayerSettings& settings, OpenMenu& openMenu,
                           PressCatcher& catcher, const Hints& hints)
    : options_(options), settings_(settings), openMenu_(openMenu), catcher_(catcher), hints_(hints) {
    connect(&options_, &Options::changed, this, &OptionsModel::tellAll);
    connect(&options_, &Options::changed, this, &OptionsModel::inMainMenuChanged);
    connect(&catcher_, &PressCatcher::waitingChanged, this, &OptionsModel::tellAll);
    connect(&hints_, &Hints::changed, this, &OptionsModel::tellAll);
    connect(&settings_, &PlayerSettings::languageChanged, this, [this] {
        tellAll();
        emit languageChanged();
    });
}

void OptionsModel::tellAll() {
    emit dataChanged(index(0), index(rowCount() - 1));
}

int OptionsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(optionRows().size());
}

QVariant OptionsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const OptionRow& row = rowAt(index.row());
    const AppLanguage language = settings_.selectedLanguage();
    switch (role) {
    case HeadingRole:
        return headingOf(index.row(), language);
    case TitleRole:
        return text(row.title, language);
    case HelpRole:
        return helpOf(row);
    case IsSwitchRole:
        return row.isSwitch();
    case ChoicesRole:
        return choicesOf(row);
    case ChosenRole:
        return placeOf(row, options_.value(row.option));
    default:
        return {};
    }
}

QString OptionsModel::helpOf(const OptionRow& row) const {
    const AppLanguage language = settings_.selectedLanguage();
    const QString help = text(row.help, language);
    return row.named ? QString::fromStdString(hints_.inForce(help.toStdString(), *row.named, language))
                     : help;
}

QStringList OptionsModel::choicesOf(const OptionRow& row) const {
    if (row.isKey()) {
        return keyChoices(options_.value(row.option));
    }
    QStringList labels;
    for (const OptionChoice& choice : row.choices) {
        labels.append(labelOf(choice, settings_.selectedLanguage()));
    }
    return labels;
}

// None, and the one that was pressed or is still to be.
QStringList OptionsModel::keyChoices(int key) const {
    const AppLanguage language = settings_.selectedLanguage();
    return {text("options.none", language), catcher_.isWaiting() ? text("options.pressKey", language)
                                            : key == 0           ? QStringLiteral("+")
                                                                 : keyName(key, language)};
}

QHash<int, QByteArray> OptionsModel::roleNames() const {
    return {{HeadingRole, "heading"},   {TitleRole, "title"},     {HelpRole, "help"},
            {IsSwitchRole, "isSwitch"}, {ChoicesRole, "choices"}, {ChosenRole, "chosen"}};
}

QString OptionsModel::title() const {
    return text("menu.options", settings_.selectedLanguage());
}

bool OptionsModel::isInMainMenu() const {
    return options_.isOn(Option::switchOn);
}

void OptionsModel::choose(int row, int place) {
    if (row < 0 || row >= rowCount()) {
        return;
    }
    const OptionRow& option = rowAt(row);
    if (option.isKey()) {
        chooseKey(option.option, place);
    } else if (place >= 0 && place < static_cast<int>(option.choices.size())) {
        options_.set(option.option, option.choices[static_cast<std::size_t>(place)].value);
    }
}

void OptionsModel::chooseKey(Option option, int place) {
    if (place == 0) {
        catcher_.giveUp();
        options_.set(option, 0);
    } else if (place == 1) {
        catcher_.awaitKey([this, option](int key) { options_.set(option, key); });
    }
}

void OptionsModel::open() {
    if (openMenu_.menuScreen() != MenuScreen::options) {
        openedFrom_ = openMenu_.menuScreen();
        openMenu_.setMenuScreen(MenuScreen::options);
    }
}

void OptionsModel::close() {
    catcher_.giveUp();
    openMenu_.setMenuScreen(openedFrom_);
}

} // namespace vorbel
