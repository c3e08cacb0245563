// The arena, drawn under everything else in the window.
#pragma once

#include "app/window/ContentView.h"
#include "app/window/FramePacer.h"
#include "platform/render/Pictures.h"
#include "platform/render/Renderer.h"

#include <QElapsedTimer>
#include <QQuickItem>

#include <memory>

namespace vorbel {

// Fills its window, whatever its own size. The scene is copied while the main thread waits for the render
// thread; drawing reads only that copy.
class SceneView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(vorbel::ContentView* view READ view WRITE setView NOTIFY viewChanged REQUIRED FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged FINAL)

public:
    explicit SceneView(QQuickItem* parent = nullptr);
    ~SceneView() override;

    [[nodiscard]] ContentView* view() const { return view_; }
    void setView(ContentView* view);

    [[nodiscard]] const QString& problem() const { return problem_; } // why nothing is drawn; empty: it is

signals:
    void viewChanged();
    void problemChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    // The render thread fills it while the main thread waits, and then draws from it alone. The main thread
    // touches it only before the window is made.
    struct Drawing {
        Frame frame;
        QSize size; // of the window, in pixels
        std::unique_ptr<Pictures> pictures;
        std::unique_ptr<Renderer> renderer;
        bool failed = false;
        bool isFirst = true; // no picture has been shown yet
        bool waits = false;  // the arena is left out of this one
    };

    void attach(QQuickWindow& window);
    void matchTicked();
    void requestFrame();
    [[nodiscard]] double tickFraction() const;
    void report(const QString& problem);
    void reportLater(const std::string& problem);

    void copyFrame(const QQuickWindow& window);
    void drawFrame(QQuickWindow& window); // on the render thread

    ContentView* view_ = nullptr;
    Subscription ticks_;
    QString problem_;
    std::unique_ptr<FramePacer> pacer_;
    std::shared_ptr<Drawing> drawing_;
    QElapsedTimer sinceTick_;
    double tickInterval_; // s, as measured, smoothed
    bool moved_ = false;  // something moved in the last tick
};

} // namespace vorbel
