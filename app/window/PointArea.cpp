#include "app/window/PointArea.h"

#include "app/window/PointSize.h"

namespace vorbel {

PointArea::PointArea(QQuickItem* parent) : QQuickItem(parent) {
    setTransformOrigin(TopLeft);
}

void PointArea::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemParentHasChanged) {
        disconnect(width_);
        disconnect(height_);
        if (data.item != nullptr) {
            width_ = connect(data.item, &QQuickItem::widthChanged, this, &PointArea::fillParent);
            height_ = connect(data.item, &QQuickItem::heightChanged, this, &PointArea::fillParent);
            fillParent();
        }
    }
    QQuickItem::itemChange(change, data);
}

void PointArea::fillParent() {
    const QSizeF room = parentItem()->size();
    if (const double point = pointSize(room); point > 0) {
        setScale(point);
        setSize(room / point);
    }
}

} // namespace vorbel
