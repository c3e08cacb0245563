// What the player has changed of the game as it is meant to be, kept between runs.
#pragma once

#include "app/options/OptionTable.h"
#include "platform/store/UserDefaults.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace vorbel {

// Each option is kept under a key of its own. What is stored but is none of an option's choices reads as the
// standard. Main thread only.
class Options final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(bool fineAim READ fineAim NOTIFY changed FINAL)
    Q_PROPERTY(bool powerByHand READ powerByHand NOTIFY changed FINAL)
    Q_PROPERTY(bool courtButtons READ courtButtons NOTIFY changed FINAL)
    Q_PROPERTY(bool speech READ speech NOTIFY changed FINAL)
    Q_PROPERTY(bool solidPanels READ solidPanels NOTIFY changed FINAL)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed FINAL)

public:
    // The defaults must outlive it.
    explicit Options(UserDefaults& defaults);

    [[nodiscard]] static std::string storageKey(const OptionRow& row);

    [[nodiscard]] int value(Option option) const; // one of its choices
    [[nodiscard]] bool isOn(Option option) const { return value(option) != 0; }
    [[nodiscard]] double powerPace() const; // as GameLogic takes it
    [[nodiscard]] bool fineAim() const { return isOn(Option::fineAim); }
    [[nodiscard]] bool powerByHand() const { return value(Option::powerPace) == 0; }
    [[nodiscard]] bool courtButtons() const { return isOn(Option::courtButtons); }
    [[nodiscard]] bool speech() const { return isOn(Option::speech); }
    [[nodiscard]] bool solidPanels() const { return isOn(Option::solidPanels); }
    [[nodiscard]] double textScale() const; // 1…2 of the usual size

    void set(Option option, int value); // takes effect at once; a value that is no choice is ignored
    Q_INVOKABLE void toggleMute();

    // Back to the game as it is meant to be.
    static void reset(UserDefaults& defaults);

signals:
    void changed(); // after any option has got another value

private:
    UserDefaults& defaults_;
    std::vector<int> values_; // in the order of Option
};

} // namespace vorbel
