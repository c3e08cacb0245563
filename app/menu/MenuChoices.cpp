#include "app/menu/MenuChoices.h"

#include "app/settings/PlayerSettings.h"
#include "app/text/Fonts.h"
#include "app/text/Texts.h"

namespace vorbel {

namespace {

QString qString(std::string_view text) {
    return QString::fromUtf8(text);
}

// The text of each value, in the order of the list.
template <typename Values, typename TextOf>
QStringList texts(const Values& values, TextOf textOf) {
    QStringList list;
    for (const auto value : values) {
        list.append(textOf(value));
    }
    return list;
}

// Calls the setter with the value at that place, if there is one.
template <typename Values, typename Setter>
void choose(const Values& values, int index, Setter set) {
    if (index >= 0 && index < static_cast<int>(values.size())) {
        set(values[static_cast<std::size_t>(index)]);
    }
}

} // namespace

MenuChoices::MenuChoices(PlayerSettings& settings) : settings_(settings) {
    connect(&settings_, &PlayerSettings::languageChanged, this, &MenuChoices::languageChanged);
    connect(&settings_, &PlayerSettings::languageChanged, this, &MenuChoices::changed);
    connect(&settings_, &PlayerSettings::choicesChanged, this, &MenuChoices::changed);
}

QStringList MenuChoices::languages() const {
    return texts(allLanguages, [](AppLanguage language) { return qString(displayName(language)); });
}
QStringList MenuChoices::languageFonts() const {
    return texts(allLanguages, nameFontFamily);
}
int MenuChoices::languageIndex() const {
    return static_cast<int>(settings_.selectedLanguage());
}
void MenuChoices::setLanguageIndex(int index) {
    choose(allLanguages, index, [this](AppLanguage language) { settings_.setSelectedLanguage(language); });
}

QStringList MenuChoices::countries() const {
    return texts(allCountries,
                 [this](Country country) { return text(key(country), settings_.selectedLanguage()); });
}
QStringList MenuChoices::flags() const {
    return texts(allCountries, [](Country country) { return qString(flagEmoji(country)); });
}
int MenuChoices::countryIndex() const {
    return static_cast<int>(settings_.selectedCountry());
}
void MenuChoices::setCountryIndex(int index) {
    choose(allCountries, index, [this](Country country) { settings_.setSelectedCountry(country); });
}

QStringList MenuChoices::sportClasses() const {
    return texts(allBocciaClasses, [](BocciaClass sportClass) { return qString(rawValue(sportClass)); });
}
int MenuChoices::classIndex() const {
    return static_cast<int>(settings_.selectedClass());
}
void MenuChoices::setClassIndex(int index) {
    choose(allBocciaClasses, index,
           [this](BocciaClass sportClass) { settings_.setSelectedClass(sportClass); });
}
QStringList MenuChoices::classDescriptions() const {
    return texts(allBocciaClasses, [this](BocciaClass sportClass) {
        return text(descriptionKey(sportClass), settings_.selectedLanguage());
    });
}
QString MenuChoices::classDescription() const {
    return text(descriptionKey(settings_.selectedClass()), settings_.selectedLanguage());
}

} // namespace vorbel
