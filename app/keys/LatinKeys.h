// Shortcuts with letters on a keyboard that has none of the Latin alphabet.
#pragma once

#include <QKeySequence>
#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;

namespace vorbel {

// The key that a Latin keyboard has where this one was pressed: 0 where the layout's own letter is Latin, and the
// toolkit finds the shortcut itself, or where there is no letter. By the codes that X11 and Wayland give to the
// places of the keys.
[[nodiscard]] Qt::Key latinKeyAt(const QKeyEvent& event);

// Hears its keys wherever the focus is, after the toolkit found no shortcut for them.
class LatinKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QVariantList sequences READ sequences WRITE setSequences NOTIFY sequencesChanged FINAL)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged FINAL)

public:
    explicit LatinKeys(QObject* parent = nullptr); // needs the application object

    [[nodiscard]] QVariantList sequences() const { return sequences_; } // such as "Ctrl+N"
    [[nodiscard]] bool isEnabled() const { return enabled_; }

    void setSequences(const QVariantList& sequences);
    void setEnabled(bool enabled);

    bool eventFilter(QObject* receiver, QEvent* event) override;

signals:
    void activated();
    void sequencesChanged();
    void enabledChanged();

private:
    [[nodiscard]] bool matches(const QKeyEvent& event) const;

    QVariantList sequences_;
    bool enabled_ = true;
};

} // namespace vorbel
