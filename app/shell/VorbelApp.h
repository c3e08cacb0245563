// The shell around the game view: the game menu and full screen.
#pragma once

#include "app/shell/FullScreen.h"
#include "l10n/AppLanguage.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class NotificationCenter;
class PlayerSettings;

// Tells the game view what the player asks for through notifications only; follows the player's language.
// Main thread only.
class VorbelApp final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program before its window")

    Q_PROPERTY(QString gameMenuTitle READ gameMenuTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString startGameTitle READ startGameTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString rulesTitle READ rulesTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString aboutTitle READ aboutTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString toggleFullScreenTitle READ toggleFullScreenTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString optionsTitle READ optionsTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY languageChanged FINAL)
    Q_PROPERTY(QVariantList newGameKeys READ newGameKeys CONSTANT FINAL)
    Q_PROPERTY(QVariantList fullScreenKeys READ fullScreenKeys CONSTANT FINAL)
    Q_PROPERTY(QString newGameKeysShown READ newGameKeysShown CONSTANT FINAL)
    Q_PROPERTY(QString fullScreenKeysShown READ fullScreenKeysShown CONSTANT FINAL)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged FINAL)
    Q_PROPERTY(QString closeNoticeTitle READ closeNoticeTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(bool inFullScreen READ inFullScreen NOTIFY inFullScreenChanged FINAL)

public:
    // Both must outlive it.
    VorbelApp(const PlayerSettings& settings, const NotificationCenter& notifications);

    // The one window, which must be there whenever full screen is asked for. Until it is set nothing happens then.
    void setWindow(WindowFrame& window) { window_ = &window; }

    [[nodiscard]] AppLanguage language() const { return language_; }
    [[nodiscard]] QString gameMenuTitle() const;
    [[nodiscard]] QString startGameTitle() const;
    [[nodiscard]] QString rulesTitle() const;
    [[nodiscard]] QString aboutTitle() const;
    [[nodiscard]] QString toggleFullScreenTitle() const;
    [[nodiscard]] QString optionsTitle() const;
    [[nodiscard]] bool rightToLeft() const;
    // None is given twice. Needs the application object.
    [[nodiscard]] static QVariantList newGameKeys();
    [[nodiscard]] static QVariantList fullScreenKeys();
    // The keys that are the same on every desktop, as people read them: "Ctrl+N".
    [[nodiscard]] static QString newGameKeysShown();
    [[nodiscard]] static QString fullScreenKeysShown();
    [[nodiscard]] bool inFullScreen() const { return fullScreen_.isOn(); }

    // What the player is told over everything else, once; empty: nothing.
    [[nodiscard]] QString notice() const;
    [[nodiscard]] QString closeNoticeTitle() const;
    // The last game did not come to its end; the log has what is known of that.
    void tellOfBadEnd(const QString& log);
    Q_INVOKABLE void closeNotice();

    Q_INVOKABLE void requestNewGame();
    Q_INVOKABLE void requestRules();
    Q_INVOKABLE void requestAbout();
    Q_INVOKABLE void requestOptions();
    Q_INVOKABLE void toggleFullScreenEmulation(bool exitOnly);
    void followScreen(); // call it when the window's screen became another one or changed its size

signals:
    void languageChanged();
    void inFullScreenChanged();
    void noticeChanged();

private:
    const NotificationCenter& notifications_;
    AppLanguage language_;
    QString logOfBadEnd_; // empty: there is nothing to tell
    FullScreen fullScreen_;
    WindowFrame* window_ = nullptr;
};

} // namespace vorbel
