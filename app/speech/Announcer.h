// Says things to whoever listens on the accessibility bus.
#pragma once

#include "platform/speech/Voice.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

// What the toolkit offers for that and screen readers speak is a notification that appears: an item of the
// window that nobody sees, whose name is the text, is told of as if it had just been shown. Main thread only.
class Announcer : public QObject, public Voice {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)

public:
    // Whether somebody listens there.
    [[nodiscard]] static bool isHeard();

    [[nodiscard]] const QString& text() const { return text_; } // what was announced last
    Q_INVOKABLE void announceThrough(QQuickItem* item); // until then, and once it is gone, nothing is heard

    // Screen readers choose voice and order by themselves.
    void say(const std::string& text, std::string_view language, bool urgent) override;
    void hush() override {}

signals:
    void textChanged();

private:
    QPointer<QQuickItem> item_;
    QString text_;
};

} // namespace vorbel
