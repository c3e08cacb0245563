// The result of a match: its ends, its points, and how it goes on.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class GameLogic;
class OpenMenu;
class PlayerSettings;

// Looks at the match only while the result is shown.
class MenuResult : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QString tournament READ tournament NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString winner READ winner NOTIFY changed FINAL)
    Q_PROPERTY(QStringList ends READ ends NOTIFY changed FINAL)
    Q_PROPERTY(QList<int> redPoints READ redPoints NOTIFY changed FINAL)
    Q_PROPERTY(QList<int> bluePoints READ bluePoints NOTIFY changed FINAL)
    Q_PROPERTY(QString scoreLabel READ scoreLabel NOTIFY changed FINAL)
    Q_PROPERTY(int redScore READ redScore NOTIFY changed FINAL)
    Q_PROPERTY(int blueScore READ blueScore NOTIFY changed FINAL)
    Q_PROPERTY(QString buttonLabel READ matchResultButtonLabel NOTIFY changed FINAL)
    Q_PROPERTY(QString redName READ redName NOTIFY changed FINAL)
    Q_PROPERTY(QString blueName READ blueName NOTIFY changed FINAL)

public:
    // All three must outlive it.
    MenuResult(const GameLogic& match, const PlayerSettings& settings, const OpenMenu& menu);

    void refresh(); // takes over the state of the match

    [[nodiscard]] const QString& tournament() const { return contents_.tournament; } // empty: none is running
    [[nodiscard]] const QString& title() const { return contents_.title; }
    [[nodiscard]] const QString& winner() const { return contents_.winner; }
    [[nodiscard]] const QStringList& ends() const { return contents_.ends; }          // "End 1", …
    [[nodiscard]] const QList<int>& redPoints() const { return contents_.redPoints; } // in each of these ends
    [[nodiscard]] const QList<int>& bluePoints() const { return contents_.bluePoints; } // the same
    [[nodiscard]] const QString& scoreLabel() const { return contents_.scoreLabel; }
    [[nodiscard]] int redScore() const { return contents_.redScore; }
    [[nodiscard]] int blueScore() const { return contents_.blueScore; }
    [[nodiscard]] const QString& matchResultButtonLabel() const { return contents_.buttonLabel; }
    [[nodiscard]] const QString& redName() const { return contents_.redName; }
    [[nodiscard]] const QString& blueName() const { return contents_.blueName; }

signals:
    void changed();

private:
    struct Contents {
        QString tournament, title, winner, scoreLabel, buttonLabel, redName, blueName;
        QStringList ends;
        QList<int> redPoints, bluePoints;
        int redScore = 0, blueScore = 0;
        bool operator==(const Contents&) const = default;
    };

    [[nodiscard]] Contents currentContents() const;

    const GameLogic& match_;
    const PlayerSettings& settings_;
    const OpenMenu& menu_;
    Contents contents_;
};

} // namespace vorbel
