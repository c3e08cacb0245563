#include "app/speech/FocusReader.h"

#include "app/options/Options.h"
#include "app/settings/PlayerSettings.h"
#include "app/speech/Announcer.h"

#include <QAccessible>
#include <QGuiApplication>

namespace vorbel {

FocusReader::FocusReader(const Options& options, const PlayerSettings& settings, Voice& voice)
    : options_(options), settings_(settings), voice_(voice) {
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &FocusReader::read);
}

void FocusReader::read(QObject* control) {
    if (!options_.isOn(Option::speech) || Announcer::isHeard() || control == nullptr) {
        return;
    }
    if (const QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(control)) {
        const QString name = shown->text(QAccessible::Name);
        const bool isControl = shown->role() != QAccessible::Window && shown->role() != QAccessible::Pane;
        if (isControl && !name.isEmpty()) {
            voice_.say(name.toStdString(), rawValue(settings_.selectedLanguage()), true);
        }
    }
}

} // namespace vorbel
