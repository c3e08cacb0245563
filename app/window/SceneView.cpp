#include "app/window/SceneView.h"

#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr double nanosecondsPerSecond = 1e9;
constexpr double intervalSmoothing = 0.1; // share of the newest measurement

// All of every frame on request, to compare pictures and speed.
Redraw wantedRedraw() {
    return qEnvironmentVariableIsSet("VORBEL_FULL_REDRAW") ? Redraw::all : Redraw::changes;
}

} // namespace

SceneView::SceneView(QQuickItem* parent)
    : QQuickItem(parent), drawing_(std::make_shared<Drawing>()), tickInterval_(GameLogic::tickPeriod) {}

SceneView::~SceneView() = default;

void SceneView::setView(ContentView* view) {
    view_ = view;
    drawing_->pictures = std::make_unique<Pictures>(view_->resources());
    ticks_ = view_->gameLogic().onTick([this] { matchTicked(); });
    connect(&view_->changes(), &MatchChanges::changed, this, &SceneView::requestFrame);
    emit viewChanged();
}

void SceneView::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange && data.window != nullptr) {
        attach(*data.window);
    }
    QQuickItem::itemChange(change, data);
}

void SceneView::attach(QQuickWindow& window) {
    pacer_ = std::make_unique<FramePacer>(window);
    connect(pacer_.get(), &FramePacer::idle, this, [this] {
        view_->changes().release();
        if (moved_) {
            pacer_->request();
        }
    });
    connect(&window, &QQuickWindow::frameSwapped, pacer_.get(), &FramePacer::frameShown,
            Qt::QueuedConnection);
    connect(
        &window, &QQuickWindow::beforeSynchronizing, this, [this, &window] { copyFrame(window); },
        Qt::DirectConnection);
    connect(
        &window, &QQuickWindow::beforeRenderPassRecording, this, [this, &window] { drawFrame(window); },
        Qt::DirectConnection);
    connect(
        &window, &QQuickWindow::sceneGraphInvalidated, &window,
        [drawing = drawing_] { drawing->renderer.reset(); }, Qt::DirectConnection);
    if (QQuickWindow::sceneGraphBackend() == QLatin1String("software")) {
        report(tr("The arena cannot be drawn without OpenGL 3.3 or OpenGL ES 3.0."));
    }
}

void SceneView::matchTicked() {
    if (sinceTick_.isValid()) {
        const double measured = static_cast<double>(sinceTick_.nsecsElapsed()) / nanosecondsPerSecond;
        tickInterval_ =
            std::lerp(tickInterval_, std::min(measured, 2 * GameLogic::tickPeriod), intervalSmoothing);
    }
    sinceTick_.start();
    const bool movedBefore = std::exchange(moved_, view_->gameLogic().isAnythingMoving());
    if (moved_ || movedBefore) {
        requestFrame(); // once more after the last movement: to show where it ended
    }
    if (pacer_) {
        pacer_->giveUpOnLostFrame();
    }
}

void SceneView::requestFrame() {
    if (pacer_) {
        pacer_->request();
    }
}

double SceneView::tickFraction() const {
    const double elapsed = sinceTick_.isValid() ? static_cast<double>(sinceTick_.nsecsElapsed()) : 0.0;
    return std::clamp(elapsed / nanosecondsPerSecond / tickInterval_, 0.0, 1.0);
}

void SceneView::report(const QString& problem) {
    if (std::exchange(problem_, problem) != problem) {
        qCritical("%s", qUtf8Printable(problem));
        emit problemChanged();
    }
}

// From the render thread.
void SceneView::reportLater(const std::string& problem) {
    QMetaObject::invokeMethod(this, [this, problem] { report(QString::fromStdString(problem)); });
}

void SceneView::copyFrame(const QQuickWindow& window) {
    drawing_->size = window.size() * window.effectiveDevicePixelRatio();
    copyScene(view_->gameLogic().scene, tickFraction(), drawing_->frame);
    // The menu, which nearly hides the arena, need not wait for it, and not for the reading of its pictures.
    drawing_->waits = std::exchange(drawing_->isFirst, false) && !view_->openMenu().isHidden();
    if (drawing_->waits) {
        drawing_->pictures->announce(drawing_->frame);
    }
    view_->changes().hold();
    pacer_->frameBegan();
    if (drawing_->waits) {
        pacer_->request();
    }
}

void SceneView::drawFrame(QQuickWindow& window) {
    Drawing& drawing = *drawing_;
    if (drawing.waits || drawing.failed ||
        window.rendererInterface()->graphicsApi() != QSGRendererInterface::OpenGL) {
        return;
    }
    window.beginExternalCommands();
    if (!drawing.renderer) {
        std::string error;
        drawing.renderer = Renderer::create(*drawing.pictures, error, wantedRedraw());
        if (!drawing.renderer) {
            drawing.failed = true;
            reportLater(error);
        }
    }
    if (drawing.renderer) {
        const GLuint target = QOpenGLContext::currentContext()->defaultFramebufferObject();
        drawing.renderer->draw(drawing.frame, target, drawing.size.width(), drawing.size.height());
        if (const std::string& problem = drawing.renderer->problem(); !problem.empty()) {
            reportLater(problem);
        }
    }
    window.endExternalCommands();
}

} // namespace vorbel
