#include "app/keys/ControlsModel.h"

#include "app/keys/ButtonName.h"
#include "app/keys/PressCatcher.h"
#include "app/keys/PressedKey.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"

#include <utility>

namespace vorbel {

namespace {

const ActionRow& rowAt(int row) {
    return actionRows()[static_cast<std::size_t>(row)];
}

QString titleOf(const ActionRow& row, AppLanguage language) {
    return text(row.title, language) + QString::fromUtf8(row.suffix.data(), qsizetype(row.suffix.size()));
}

} // namespace

ControlsModel::ControlsModel(GameControls& controls, const PlayerSettings& settings, OpenMenu& openMenu,
                             PressCatcher& catcher)
    : controls_(controls), settings_(settings), openMenu_(openMenu), catcher_(catcher) {
    connect(&controls_, &GameControls::changed, this, &ControlsModel::tellAll);
    connect(&catcher_, &PressCatcher::waitingChanged, this, [this] {
        if (!catcher_.isWaiting()) {
            awaited_.reset();
        }
        tellAll();
    });
    connect(&settings_, &PlayerSettings::languageChanged, this, [this] {
        tellAll();
        emit languageChanged();
        tell({});
    });
}

void ControlsModel::tellAll() {
    emit dataChanged(index(0), index(rowCount() - 1));
}

void ControlsModel::tell(const QString& news) {
    if (std::exchange(news_, news) != news) {
        emit newsChanged();
    }
}

void ControlsModel::setFamily(ControllerFamily family) {
    if (std::exchange(family_, family) != family) {
        tellAll();
    }
}

int ControlsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(actionRows().size());
}

QVariant ControlsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ActionRow& row = rowAt(index.row());
    switch (role) {
    case TitleRole:
        return titleOf(row, settings_.selectedLanguage());
    case KeysRole:
        return names(Device::keyboard, row.action);
    case ButtonsRole:
        return names(Device::controller, row.action);
    case MoreKeysRole:
        return mayHaveMore(Device::keyboard, index.row());
    case MoreButtonsRole:
        return mayHaveMore(Device::controller, index.row());
    case AwaitsKeyRole:
        return awaited_ == Awaited{index.row(), Device::keyboard};
    case AwaitsButtonRole:
        return awaited_ == Awaited{index.row(), Device::controller};
    default:
        return {};
    }
}

QHash<int, QByteArray> ControlsModel::roleNames() const {
    return {{TitleRole, "title"},
            {KeysRole, "keyNames"},
            {ButtonsRole, "buttonNames"},
            {MoreKeysRole, "moreKeys"},
            {MoreButtonsRole, "moreButtons"},
            {AwaitsKeyRole, "awaitsKey"},
            {AwaitsButtonRole, "awaitsButton"}};
}

QString ControlsModel::name(Device device, int press) const {
    const AppLanguage language = settings_.selectedLanguage();
    return device == Device::keyboard ? keyName(press, language)
                                      : buttonName(static_cast<ControllerButton>(press), family_, language);
}

QStringList ControlsModel::names(Device device, GameAction action) const {
    QStringList names;
    for (const int press : controls_.of(device).of(action)) {
        names.append(name(device, press));
    }
    return names;
}

void ControlsModel::addKey(int row) {
    if (mayHaveMore(Device::keyboard, row)) {
        catcher_.awaitKey([this, row](int key) { give({row, Device::keyboard}, key); });
        waitFor({row, Device::keyboard});
    }
}

void ControlsModel::addButton(int row) {
    if (mayHaveMore(Device::controller, row)) {
        catcher_.awaitButton([this, row](int button) { give({row, Device::controller}, button); });
        waitFor({row, Device::controller});
    }
}

bool ControlsModel::mayHaveMore(Device device, int row) const {
    return row >= 0 && row < rowCount() &&
           controls_.of(device).of(rowAt(row).action).size() < Assignments::most;
}

void ControlsModel::waitFor(Awaited press) {
    awaited_ = press;
    tellAll();
}

void ControlsModel::give(Awaited where, int press) {
    const AppLanguage language = settings_.selectedLanguage();
    const std::string pressed = name(where.device, press).toStdString();
    if (where.device == Device::keyboard && !isFreeKey(press)) {
        return tell(text("controls.reserved.format", language, {pressed}));
    }
    const ActionRow& row = rowAt(where.row);
    const auto before = controls_.of(where.device).actionOf(press);
    const bool isGiven = controls_.give(where.device, row.action, press);
    if (!before || *before == row.action) {
        return tell({});
    }
    const std::string owner = titleOf(rowOf(*before), language).toStdString();
    tell(isGiven
             ? text("controls.moved.format", language, {pressed, titleOf(row, language).toStdString(), owner})
             : text("controls.needed.format", language, {pressed, owner}));
}

void ControlsModel::remove(Awaited from, int place) {
    if (from.row < 0 || from.row >= rowCount()) {
        return;
    }
    const ActionRow& row = rowAt(from.row);
    const std::vector<int>& presses = controls_.of(from.device).of(row.action);
    if (place < 0 || place >= static_cast<int>(presses.size())) {
        return;
    }
    const AppLanguage language = settings_.selectedLanguage();
    const int press = presses[static_cast<std::size_t>(place)];
    tell(controls_.takeAway(from.device, press)
             ? QString()
             : text("controls.needed.format", language,
                    {name(from.device, press).toStdString(), titleOf(row, language).toStdString()}));
}

void ControlsModel::removeKey(int row, int place) {
    remove({row, Device::keyboard}, place);
}

void ControlsModel::removeButton(int row, int place) {
    remove({row, Device::controller}, place);
}

void ControlsModel::reset() {
    catcher_.giveUp();
    controls_.reset();
    tell({});
}

void ControlsModel::open() {
    openMenu_.setMenuScreen(MenuScreen::controls);
}

void ControlsModel::close() {
    catcher_.giveUp();
    tell({});
    openMenu_.setMenuScreen(MenuScreen::options);
}

QString ControlsModel::title() const {
    return text("controls.title", settings_.selectedLanguage());
}
QString ControlsModel::help() const {
    return text("controls.help", settings_.selectedLanguage());
}
QString ControlsModel::keyboardTitle() const {
    return text("controls.keyboard", settings_.selectedLanguage());
}
QString ControlsModel::controllerTitle() const {
    return text("options.controller", settings_.selectedLanguage());
}
QString ControlsModel::addKeyTitle() const {
    return text("controls.addKey", settings_.selectedLanguage());
}
QString ControlsModel::addButtonTitle() const {
    return text("controls.addButton", settings_.selectedLanguage());
}
QString ControlsModel::pressKeyTitle() const {
    return text("options.pressKey", settings_.selectedLanguage());
}
QString ControlsModel::pressButtonTitle() const {
    return text("controls.pressButton", settings_.selectedLanguage());
}
QString ControlsModel::resetTitle() const {
    return text("controls.reset", settings_.selectedLanguage());
}

} // namespace vorbel
