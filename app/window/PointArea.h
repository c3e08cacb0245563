// Everything over the arena: laid out in points, of which a window of any size has enough.
#pragma once

#include <QQuickItem>

namespace vorbel {

// Fills its parent, its own scale being the size of a point. The scale changes with the parent's size alone.
class PointArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PointArea(QQuickItem* parent = nullptr);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void fillParent();

    QMetaObject::Connection width_;
    QMetaObject::Connection height_;
};

} // namespace vorbel
