// Keys and buttons as their screen lists them.
#pragma once

#include "app/keys/GameControls.h"
#include "platform/controllers/Controllers.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace vorbel {

class OpenMenu;
class PlayerSettings;
class PressCatcher;

// A row an action, in the player's language.
class ControlsModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QString title READ title NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString help READ help NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString keyboardTitle READ keyboardTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString controllerTitle READ controllerTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString addKeyTitle READ addKeyTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString addButtonTitle READ addButtonTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString pressKeyTitle READ pressKeyTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString pressButtonTitle READ pressButtonTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString resetTitle READ resetTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString news READ news NOTIFY newsChanged FINAL)

public:
    enum Role {
        TitleRole = Qt::UserRole,
        KeysRole, // what they are called, as a list of texts
        ButtonsRole,
        MoreKeysRole, // whether another one can be added
        MoreButtonsRole,
        AwaitsKeyRole,
        AwaitsButtonRole,
    };

    // All four must outlive it.
    ControlsModel(GameControls& controls, const PlayerSettings& settings, OpenMenu& openMenu,
                  PressCatcher& catcher);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString help() const;
    [[nodiscard]] QString keyboardTitle() const;
    [[nodiscard]] QString controllerTitle() const;
    [[nodiscard]] QString addKeyTitle() const;
    [[nodiscard]] QString addButtonTitle() const;
    [[nodiscard]] QString pressKeyTitle() const;
    [[nodiscard]] QString pressButtonTitle() const;
    [[nodiscard]] QString resetTitle() const;
    [[nodiscard]] const QString& news() const { return news_; } // of the last change, if that needs a word

    // Names the buttons as on such a controller.
    void setFamily(ControllerFamily family);

    Q_INVOKABLE void addKey(int row); // the next one that is pressed
    Q_INVOKABLE void addButton(int row);
    Q_INVOKABLE void removeKey(int row, int place);
    Q_INVOKABLE void removeButton(int row, int place);
    Q_INVOKABLE void reset();
    Q_INVOKABLE void open();  // shows the screen
    Q_INVOKABLE void close(); // goes back to the options

signals:
    void languageChanged();
    void newsChanged();

private:
    using Device = GameControls::Device;

    // Which row waits for which device's press.
    struct Awaited {
        int row;
        Device device;
        bool operator==(const Awaited&) const = default;
    };

    [[nodiscard]] bool mayHaveMore(Device device, int row) const;
    void waitFor(Awaited press);
    void tellAll();
    void tell(const QString& news);
    void give(Awaited where, int press);
    void remove(Awaited from, int place);
    [[nodiscard]] QString name(Device device, int press) const;
    [[nodiscard]] QStringList names(Device device, GameAction action) const;

    GameControls& controls_;
    const PlayerSettings& settings_;
    OpenMenu& openMenu_;
    PressCatcher& catcher_;
    ControllerFamily family_ = ControllerFamily::letters;
    std::optional<Awaited> awaited_;
    QString news_;
};

} // namespace vorbel
