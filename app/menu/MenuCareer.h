// The player's career as the menu shows it: rank, matches, and the athlete's diary.
#pragma once

#include "app/menu/MenuDiary.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class Career;
class PlayerSettings;

class MenuCareer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QString rank READ rank NOTIFY changed FINAL)
    Q_PROPERTY(QString games READ games NOTIFY changed FINAL)
    Q_PROPERTY(bool isRealAthlete READ isRealAthlete WRITE setRealAthlete NOTIFY changed FINAL)
    Q_PROPERTY(QString totalXP READ totalXP NOTIFY changed FINAL)
    Q_PROPERTY(vorbel::MenuDiary* diary READ diary CONSTANT FINAL)

public:
    // Both must outlive it.
    MenuCareer(Career& career, const PlayerSettings& settings);

    [[nodiscard]] QString rank() const;
    [[nodiscard]] QString games() const; // matches played, and how many more the next rank takes
    [[nodiscard]] bool isRealAthlete() const;
    void setRealAthlete(bool is);
    [[nodiscard]] QString totalXP() const;
    [[nodiscard]] MenuDiary* diary() { return &diary_; }

    void readDiary(); // takes over what is stored

signals:
    void changed();

private:
    [[nodiscard]] QString currentRankTitle() const;

    Career& career_;
    const PlayerSettings& settings_;
    MenuDiary diary_;
};

} // namespace vorbel
