#include "app/shell/VorbelApp.h"

#include "app/settings/PlayerSettings.h"
#include "app/shell/NotificationCenter.h"
#include "app/text/Fonts.h"
#include "app/text/Texts.h"

#include <QKeySequence>
#include <QList>

namespace vorbel {

VorbelApp::VorbelApp(const PlayerSettings& settings, const NotificationCenter& notifications)
    : notifications_(notifications), language_(settings.selectedLanguage()) {
    connect(&settings, &PlayerSettings::languageChanged, this, [this, &settings] {
        language_ = settings.selectedLanguage();
        emit languageChanged();
        emit noticeChanged();
    });
}

QString VorbelApp::gameMenuTitle() const {
    return text("menu.gameMenu", language_);
}
QString VorbelApp::startGameTitle() const {
    return text("menu.startGame", language_);
}
QString VorbelApp::rulesTitle() const {
    return text("menu.rules", language_);
}
QString VorbelApp::aboutTitle() const {
    return text("menu.about", language_);
}
QString VorbelApp::toggleFullScreenTitle() const {
    return text("menu.toggleFullScreen", language_);
}

QString VorbelApp::optionsTitle() const {
    return text("menu.options", language_);
}

QString VorbelApp::closeNoticeTitle() const {
    return text("menu.back", language_);
}

QString VorbelApp::notice() const {
    return logOfBadEnd_.isEmpty() ? QString()
                                  : text("notice.endedBadly.format", language_, {logOfBadEnd_.toStdString()});
}

void VorbelApp::tellOfBadEnd(const QString& log) {
    logOfBadEnd_ = log;
    emit noticeChanged();
}

void VorbelApp::closeNotice() {
    tellOfBadEnd(QString());
}

bool VorbelApp::rightToLeft() const {
    return isRightToLeft(language_);
}

QVariantList VorbelApp::newGameKeys() {
    return {newGameKeysShown()};
}

// Ours on every desktop, what most others use, and the desktop's own.
QVariantList VorbelApp::fullScreenKeys() {
    QList<QKeySequence> keys{QKeySequence(QStringLiteral("Ctrl+Meta+F")), QKeySequence(Qt::Key_F11)};
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::FullScreen)) {
        if (!keys.contains(key)) {
            keys.append(key);
        }
    }
    QVariantList texts;
    for (const QKeySequence& key : keys) {
        texts.append(key.toString());
    }
    return texts;
}

QString VorbelApp::newGameKeysShown() {
    return QStringLiteral("Ctrl+N");
}

// The toolkit would write Meta+Ctrl+F.
QString VorbelApp::fullScreenKeysShown() {
    return QStringLiteral("Ctrl+Meta+F, F11");
}

void VorbelApp::requestNewGame() {
    notifications_.post(newGameRequested);
}
void VorbelApp::requestRules() {
    notifications_.post(showRulesRequested);
}
void VorbelApp::requestAbout() {
    notifications_.post(showAboutRequested);
}

void VorbelApp::requestOptions() {
    notifications_.post(showOptionsRequested);
}

void VorbelApp::toggleFullScreenEmulation(bool exitOnly) {
    const bool before = fullScreen_.isOn();
    fullScreen_.toggle(window_, exitOnly);
    if (fullScreen_.isOn() != before) {
        emit inFullScreenChanged();
    }
}

void VorbelApp::followScreen() {
    if (window_ != nullptr) {
        fullScreen_.followScreen(*window_);
    }
}

} // namespace vorbel
