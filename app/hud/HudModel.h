// What the heads-up display shows, ready to be laid out.
#pragma once

#include "app/text/Fonts.h"
#include "engine/GameLogic.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <string>
#include <utility>

namespace vorbel {

// All texts in the match's language at the moment of the refresh.
class HudModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(QString redTitle READ redTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString blueTitle READ blueTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString scoreLabel READ scoreLabel NOTIFY changed FINAL)
    Q_PROPERTY(QString ballsLeftLabel READ ballsLeftLabel NOTIFY changed FINAL)
    Q_PROPERTY(QString aiToggleLabel READ aiToggleLabel NOTIFY changed FINAL)
    Q_PROPERTY(int redScore READ redScore NOTIFY changed FINAL)
    Q_PROPERTY(int blueScore READ blueScore NOTIFY changed FINAL)
    Q_PROPERTY(int redBallsLeft READ redBallsLeft NOTIFY changed FINAL)
    Q_PROPERTY(int blueBallsLeft READ blueBallsLeft NOTIFY changed FINAL)
    Q_PROPERTY(bool redOnTurn READ redOnTurn NOTIFY changed FINAL)
    Q_PROPERTY(bool blueOnTurn READ blueOnTurn NOTIFY changed FINAL)
    Q_PROPERTY(QString end READ end NOTIFY changed FINAL)
    Q_PROPERTY(QString tournament READ tournament NOTIFY changed FINAL)
    Q_PROPERTY(QString playingAs READ playingAs NOTIFY changed FINAL)
    Q_PROPERTY(QString rampHint READ rampHint NOTIFY changed FINAL)
    Q_PROPERTY(QString difficultyCaption READ difficultyCaption NOTIFY changed FINAL)
    Q_PROPERTY(QStringList difficultyTitles READ difficultyTitles NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString message READ message NOTIFY changed FINAL)
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY languageChanged FINAL)

    Q_PROPERTY(bool powerShown READ powerShown NOTIFY powerChanged FINAL)
    Q_PROPERTY(double power READ power NOTIFY powerChanged FINAL)
    Q_PROPERTY(QString powerCaption READ powerCaption NOTIFY changed FINAL)

public:
    // How messages are worded for this player; until then as the match has them.
    void setWording(std::function<std::string(const std::string&)> wording) { wording_ = std::move(wording); }

    // Takes over the state of the match and what the player chose to play as.
    void refresh(const GameLogic& match, Country country, BocciaClass sportClass);

    [[nodiscard]] const QString& redTitle() const { return contents_.redTitle; }
    [[nodiscard]] const QString& blueTitle() const { return contents_.blueTitle; }
    [[nodiscard]] const QString& scoreLabel() const { return contents_.scoreLabel; }
    [[nodiscard]] const QString& ballsLeftLabel() const { return contents_.ballsLeftLabel; }
    [[nodiscard]] const QString& aiToggleLabel() const { return contents_.aiToggleLabel; }
    [[nodiscard]] int redScore() const { return contents_.redScore; }
    [[nodiscard]] int blueScore() const { return contents_.blueScore; }
    [[nodiscard]] int redBallsLeft() const { return contents_.redBallsLeft; }
    [[nodiscard]] int blueBallsLeft() const { return contents_.blueBallsLeft; }
    [[nodiscard]] bool redOnTurn() const { return contents_.redOnTurn; } // neither side's after an end
    [[nodiscard]] bool blueOnTurn() const { return contents_.blueOnTurn; }
    [[nodiscard]] const QString& end() const { return contents_.end; }
    [[nodiscard]] const QString& tournament() const { return contents_.tournament; } // empty: none is running
    [[nodiscard]] const QString& playingAs() const { return contents_.playingAs; }
    [[nodiscard]] const QString& rampHint() const { return contents_.rampHint; } // empty but for class BC3
    [[nodiscard]] const QString& difficultyCaption() const { return contents_.difficultyCaption; }
    [[nodiscard]] const QStringList& difficultyTitles() const { return difficultyTitles_; } // easiest first
    [[nodiscard]] const QString& message() const { return contents_.message; }
    [[nodiscard]] bool rightToLeft() const { return isRightToLeft(language_); }
    [[nodiscard]] const QString& powerCaption() const { return contents_.powerCaption; }
    [[nodiscard]] bool powerShown() const { return gauge_.shown; } // while the power swings
    [[nodiscard]] double power() const { return gauge_.power; }    // percent, about 10 … 100

signals:
    void changed();
    void languageChanged();
    void powerChanged();

private:
    struct Contents {
        QString redTitle, blueTitle, scoreLabel, ballsLeftLabel, aiToggleLabel;
        QString end, tournament, playingAs, rampHint, difficultyCaption, message, powerCaption;
        int redScore = 0, blueScore = 0, redBallsLeft = 0, blueBallsLeft = 0;
        bool redOnTurn = false, blueOnTurn = false;
        bool operator==(const Contents&) const = default;
    };
    struct Gauge {
        bool shown = false;
        double power = 0;
        bool operator==(const Gauge&) const = default;
    };

    [[nodiscard]] Contents contentsOf(const GameLogic& match, Country country, BocciaClass sportClass) const;

    std::function<std::string(const std::string&)> wording_ = [](const std::string& message) {
        return message;
    };
    Contents contents_;
    Gauge gauge_;
    AppLanguage language_ = AppLanguage::ru;
    QStringList difficultyTitles_;
};

} // namespace vorbel
