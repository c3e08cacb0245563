// What keys and buttons do, as the player wants it, kept between runs.
#pragma once

#include "app/keys/Assignments.h"
#include "platform/store/UserDefaults.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

// Until the player changes something it is as in the given game; so it is with what is stored and damaged. Main
// thread only.
class GameControls final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    // The keys of each action, as shortcuts want them.
    Q_PROPERTY(QVariantList left READ left NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList right READ right NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList up READ up NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList down READ down NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList fineLeft READ fineLeft NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList fineRight READ fineRight NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList fineUp READ fineUp NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList fineDown READ fineDown NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList accept READ accept NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList takeBack READ takeBack NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList morePower READ morePower NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList lessPower READ lessPower NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList everything READ everything NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList mute READ mute NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList menu READ menu NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList given READ given CONSTANT FINAL)
    Q_PROPERTY(QVariantList idle READ idle NOTIFY changed FINAL)

public:
    enum class Device { keyboard, controller };

    // The defaults must outlive it.
    explicit GameControls(UserDefaults& defaults);

    [[nodiscard]] const Assignments& of(Device device) const;
    bool give(Device device, GameAction action, int press); // false: see Assignments
    bool takeAway(Device device, int press);
    void reset(); // both devices, as in the given game
    static void reset(UserDefaults& defaults);

    [[nodiscard]] bool repeats(int key) const; // in a match, while it is held

    [[nodiscard]] QVariantList left() const { return sequences(GameAction::left); }
    [[nodiscard]] QVariantList right() const { return sequences(GameAction::right); }
    [[nodiscard]] QVariantList up() const { return sequences(GameAction::up); }
    [[nodiscard]] QVariantList down() const { return sequences(GameAction::down); }
    [[nodiscard]] QVariantList fineLeft() const { return fine(GameAction::left); }
    [[nodiscard]] QVariantList fineRight() const { return fine(GameAction::right); }
    [[nodiscard]] QVariantList fineUp() const { return fine(GameAction::up); }
    [[nodiscard]] QVariantList fineDown() const { return fine(GameAction::down); }
    [[nodiscard]] QVariantList accept() const { return sequences(GameAction::accept); }
    [[nodiscard]] QVariantList takeBack() const { return sequences(GameAction::takeBack); }
    [[nodiscard]] QVariantList morePower() const { return sequences(GameAction::morePower); }
    [[nodiscard]] QVariantList lessPower() const { return sequences(GameAction::lessPower); }
    [[nodiscard]] QVariantList everything() const { return sequences(GameAction::everything); }
    [[nodiscard]] QVariantList mute() const { return sequences(GameAction::mute); }
    [[nodiscard]] QVariantList menu() const { return sequences(GameAction::menu); }
    // Those of the given game which no menu may have, and which of them do nothing at all now.
    [[nodiscard]] static QVariantList given();
    [[nodiscard]] QVariantList idle() const;

signals:
    void changed();

private:
    [[nodiscard]] QVariantList sequences(GameAction action) const;
    [[nodiscard]] QVariantList fine(GameAction action) const; // with Shift
    void keep(Device device, const Assignments& next);

    UserDefaults& defaults_;
    Assignments keys_{&ActionRow::key};
    Assignments buttons_{&ActionRow::button};
};

} // namespace vorbel
