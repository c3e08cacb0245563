// The texts of the menu that depend on the language alone.
#pragma once

#include "app/text/Fonts.h"
#include "app/text/Texts.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class MenuTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QString language READ language NOTIFY changed FINAL)
    Q_PROPERTY(QString isRealAthlete READ isRealAthlete NOTIFY changed FINAL)
    Q_PROPERTY(QString startGame READ startGame NOTIFY changed FINAL)
    Q_PROPERTY(QString tournament READ tournament NOTIFY changed FINAL)
    Q_PROPERTY(QString diary READ diary NOTIFY changed FINAL)
    Q_PROPERTY(QString rules READ rules NOTIFY changed FINAL)
    Q_PROPERTY(QString about READ about NOTIFY changed FINAL)
    Q_PROPERTY(QString exit READ exit NOTIFY changed FINAL)
    Q_PROPERTY(QString chooseCountry READ chooseCountry NOTIFY changed FINAL)
    Q_PROPERTY(QString sportClass READ sportClass NOTIFY changed FINAL)
    Q_PROPERTY(QString play READ play NOTIFY changed FINAL)
    Q_PROPERTY(QString back READ back NOTIFY changed FINAL)
    Q_PROPERTY(QString rulesText READ rulesText NOTIFY changed FINAL)
    Q_PROPERTY(QString aboutText READ aboutText NOTIFY changed FINAL)
    Q_PROPERTY(QString pages READ pages NOTIFY changed FINAL)
    Q_PROPERTY(QString aimLeft READ aimLeft NOTIFY changed FINAL)
    Q_PROPERTY(QString aimRight READ aimRight NOTIFY changed FINAL)
    Q_PROPERTY(QString aimUp READ aimUp NOTIFY changed FINAL)
    Q_PROPERTY(QString aimDown READ aimDown NOTIFY changed FINAL)
    Q_PROPERTY(QString aimOk READ aimOk NOTIFY changed FINAL)
    Q_PROPERTY(QString takeBack READ takeBack NOTIFY changed FINAL)
    Q_PROPERTY(QString everything READ everything NOTIFY changed FINAL)
    Q_PROPERTY(QString diaryEmpty READ diaryEmpty NOTIFY changed FINAL)

public:
    void setLanguage(AppLanguage language) {
        language_ = language;
        emit changed();
    }

    [[nodiscard]] QString language() const { return t("menu.language"); }
    [[nodiscard]] QString isRealAthlete() const { return t("menu.isRealAthlete"); }
    [[nodiscard]] QString startGame() const { return t("menu.startGame"); }
    [[nodiscard]] QString tournament() const { return t("menu.tournament"); }
    [[nodiscard]] QString diary() const { return t("menu.diary"); }
    [[nodiscard]] QString rules() const { return t("menu.rules"); }
    [[nodiscard]] QString about() const { return t("menu.about"); }
    [[nodiscard]] QString exit() const { return t("menu.exit"); }
    [[nodiscard]] QString chooseCountry() const { return t("menu.chooseCountry"); }
    [[nodiscard]] QString sportClass() const { return t("menu.sportClass"); }
    [[nodiscard]] QString play() const { return t("menu.play"); }
    [[nodiscard]] QString back() const { return t("menu.back"); }
    [[nodiscard]] QString rulesText() const { return t("rules.text"); }
    [[nodiscard]] QString aboutText() const { return t("about.text"); }
    [[nodiscard]] QString pages() const { return t("about.pages"); }
    [[nodiscard]] QString aimLeft() const { return t("aim.left"); }
    [[nodiscard]] QString aimRight() const { return t("aim.right"); }
    [[nodiscard]] QString aimUp() const { return t("aim.up"); }
    [[nodiscard]] QString aimDown() const { return t("aim.down"); }
    [[nodiscard]] QString aimOk() const { return t("aim.ok"); }
    [[nodiscard]] QString takeBack() const { return t("aim.takeBack"); }
    [[nodiscard]] QString everything() const { return t("aim.everything"); }
    [[nodiscard]] QString diaryEmpty() const { return t("diary.empty"); }

signals:
    void changed();

private:
    // Qt lays a text out in the direction of its first letter: an Arabic one may begin with a Latin name.
    [[nodiscard]] QString t(TextKey key) const {
        const QString words = text(key, language_);
        const bool needsMark = isRightToLeft(language_) && !words.isRightToLeft();
        return needsMark ? QChar(0x200F) + words : words;
    }

    AppLanguage language_ = defaultLanguage;
};

} // namespace vorbel
