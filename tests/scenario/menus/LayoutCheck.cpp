#include "tests/scenario/menus/LayoutCheck.h"

#include "l10n/L10n.h"
#include "tests/scenario/menus/MenuWindow.h"

#include <QQuickWindow>

#include <algorithm>
#include <vector>

namespace vorbel {

namespace {

constexpr qreal rounding = 1; // logical pixels

bool contains(const QRectF& outer, const QRectF& inner) {
    return outer.adjusted(-rounding, -rounding, rounding, rounding).contains(inner);
}

// The part of it that no scrolling area hides.
QRectF withinScrollingAreas(const QQuickItem& text) {
    QRectF seen = inScene(text);
    for (const QQuickItem* parent = text.parentItem(); parent != nullptr; parent = parent->parentItem()) {
        if (isOfType(*parent, "QQuickFlickable")) {
            seen = seen.intersected(inScene(*parent));
        }
    }
    return seen;
}

// A text with the place that it takes in the window.
struct ShownText {
    explicit ShownText(const QQuickItem& text)
        : item(text),
          words(text.property("text").toString()),
          content(text.property("contentWidth").toReal(), text.property("contentHeight").toReal()),
          area(inScene(text)),
          seen(withinScrollingAreas(text)) {}

    const QQuickItem& item;
    QString words;
    QSizeF content;
    QRectF area;
    QRectF seen; // of the area
};

// Empty: nothing is wrong with the text in itself.
QString cutOff(const ShownText& text) {
    if (text.item.property("truncated").toBool()) {
        return QStringLiteral("is truncated");
    }
    if (text.content.width() > text.item.width() + rounding ||
        text.content.height() > text.item.height() + rounding) {
        return QStringLiteral("needs %1 × %2 and has %3 × %4")
            .arg(text.content.width())
            .arg(text.content.height())
            .arg(text.item.width())
            .arg(text.item.height());
    }
    return {};
}

// A scrolling area may hide some of it above or below, but nothing at the sides.
QString outside(const ShownText& text, QQuickItem& root) {
    QRectF visible = text.area;
    for (const QQuickItem* parent = text.item.parentItem(); parent != nullptr;
         parent = parent->parentItem()) {
        QRectF area = inScene(*parent);
        if (area.isEmpty()) {
            continue; // holds its children without a size of its own
        }
        if (isOfType(*parent, "QQuickFlickable")) {
            if (visible.left() < area.left() - rounding || visible.right() > area.right() + rounding) {
                return QStringLiteral("leaves its scrolling area");
            }
            visible = visible.intersected(area);
        } else if (!contains(area, visible)) {
            return QStringLiteral("leaves %1").arg(QString::fromLatin1(parent->metaObject()->className()));
        }
    }
    return contains(inScene(*root.window()->contentItem()), visible) ? QString()
                                                                     : QStringLiteral("leaves the window");
}

bool isScrolledAway(const QQuickItem& text) {
    for (const QQuickItem* parent = text.parentItem(); parent != nullptr; parent = parent->parentItem()) {
        if (isOfType(*parent, "QQuickFlickable") && !inScene(*parent).intersects(inScene(text))) {
            return true;
        }
    }
    return false;
}

} // namespace

QStringList unreadableTexts(QQuickItem& root) {
    std::vector<QQuickItem*> found;
    collect(
        root,
        [](QQuickItem& item) {
            return isOfType(item, "QQuickText") && !item.property("text").toString().isEmpty() &&
                   !isScrolledAway(item);
        },
        found);
    const std::vector<ShownText> texts = [&found] {
        std::vector<ShownText> all;
        for (const QQuickItem* item : found) {
            all.emplace_back(*item);
        }
        return all;
    }();
    QStringList complaints;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        for (const QString& complaint : {cutOff(texts[i]), outside(texts[i], root)}) {
            if (!complaint.isEmpty()) {
                complaints.append(QStringLiteral("“%1” %2").arg(texts[i].words.left(40), complaint));
            }
        }
        for (std::size_t j = i + 1; j < texts.size(); ++j) {
            const QRectF shared = texts[i].seen.intersected(texts[j].seen);
            if (shared.width() > rounding && shared.height() > rounding) {
                complaints.append(QStringLiteral("“%1” overlaps “%2”")
                                      .arg(texts[i].words.left(40), texts[j].words.left(40)));
            }
        }
    }
    return complaints;
}

Country longestNamed(AppLanguage language) {
    return *std::ranges::max_element(allCountries, {},
                                     [&](Country country) { return L10n::t(key(country), language).size(); });
}

} // namespace vorbel
