#include "tests/scenario/menus/Contrast.h"

#include "tests/scenario/menus/MenuWindow.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

QColor over(const QColor& color, double opacity, const QColor& ground) {
    const double share = double{color.alphaF()} * opacity;
    const auto mix = [share](double above, double below) { return std::lerp(below, above, share); };
    return QColor::fromRgbF(static_cast<float>(mix(color.redF(), ground.redF())),
                            static_cast<float>(mix(color.greenF(), ground.greenF())),
                            static_cast<float>(mix(color.blueF(), ground.blueF())));
}

double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// Paints as the toolkit does, from back to front, until it comes to the text: what is then seen at its place.
class Painter {
public:
    Painter(const QQuickItem& text, const QColor& behind, Sight sight)
        : text_(text), sight_(sight), place_(inScene(text)), seen_(behind) {}

    [[nodiscard]] double contrastWithText(QQuickItem& root) {
        paint(root, 1);
        const QColor ink = over(text_.property("color").value<QColor>(), opacity_, seen_);
        return contrast(seenBy(sight_, ink), seenBy(sight_, seen_));
    }

private:
    void paint(QQuickItem& item, double opacityAround) {
        if (done_ || !item.isVisible()) {
            return;
        }
        const double opacity = opacityAround * item.opacity();
        QList<QQuickItem*> children = item.childItems();
        std::ranges::stable_sort(children, {}, &QQuickItem::z);
        const auto above = std::ranges::find_if(children, [](QQuickItem* child) { return child->z() >= 0; });
        std::for_each(children.begin(), above, [&](QQuickItem* child) { paint(*child, opacity); });
        paintItself(item, opacity);
        std::for_each(above, children.end(), [&](QQuickItem* child) { paint(*child, opacity); });
    }
    void paintItself(const QQuickItem& item, double opacity) {
        if (&item == &text_) {
            opacity_ = opacity;
            done_ = true;
        } else if (!done_ && isOfType(item, "QQuickRectangle") && inScene(item).contains(place_)) {
            seen_ = over(item.property("color").value<QColor>(), opacity, seen_);
        }
    }

    const QQuickItem& text_;
    Sight sight_;
    QRectF place_;
    QColor seen_;
    double opacity_ = 1; // of the text
    bool done_ = false;
};

} // namespace

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

double contrastOver(QQuickItem& text, const QColor& behind, Sight sight) {
    return Painter(text, behind, sight).contrastWithText(*text.window()->contentItem());
}

} // namespace vorbel
