// What the player chooses before a match: language, country and sport class.
// Each is a list with one selected place.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class PlayerSettings;

class MenuChoices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the menu")

    Q_PROPERTY(QStringList languages READ languages CONSTANT FINAL)
    Q_PROPERTY(QStringList languageFonts READ languageFonts CONSTANT FINAL)
    Q_PROPERTY(int languageIndex READ languageIndex WRITE setLanguageIndex NOTIFY languageChanged FINAL)

    Q_PROPERTY(QStringList countries READ countries NOTIFY languageChanged FINAL)
    Q_PROPERTY(QStringList flags READ flags CONSTANT FINAL)
    Q_PROPERTY(int countryIndex READ countryIndex WRITE setCountryIndex NOTIFY changed FINAL)

    Q_PROPERTY(QStringList sportClasses READ sportClasses CONSTANT FINAL)
    Q_PROPERTY(int classIndex READ classIndex WRITE setClassIndex NOTIFY changed FINAL)
    Q_PROPERTY(QStringList classDescriptions READ classDescriptions NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString classDescription READ classDescription NOTIFY changed FINAL)

public:
    // The settings must outlive it.
    explicit MenuChoices(PlayerSettings& settings);

    [[nodiscard]] QStringList languages() const;     // each by its own name for itself
    [[nodiscard]] QStringList languageFonts() const; // the family that shows each of these names
    [[nodiscard]] int languageIndex() const;

    [[nodiscard]] QStringList countries() const; // names in the player's language
    [[nodiscard]] QStringList flags() const;     // of the same countries, emoji
    [[nodiscard]] int countryIndex() const;

    [[nodiscard]] QStringList sportClasses() const; // "BC1" … "BC4"
    [[nodiscard]] int classIndex() const;
    [[nodiscard]] QStringList classDescriptions() const; // of the same classes
    [[nodiscard]] QString classDescription() const;      // of the selected one

    // Places outside the list are ignored.
    void setLanguageIndex(int index);
    void setCountryIndex(int index);
    void setClassIndex(int index);

signals:
    void languageChanged();
    void changed(); // country or class, or the language of the description

private:
    PlayerSettings& settings_;
};

} // namespace vorbel
