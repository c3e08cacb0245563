#include "platform/render/Renderer.h"

#include "platform/render/BallPainter.h"
#include "platform/render/ContextState.h"
#include "platform/render/Layer.h"
#include "platform/render/RegionPainter.h"
#include "platform/render/ShadowMap.h"
#include "platform/render/Sheet.h"
#include "platform/render/Stage.h"

#include "platform/render/ColorSpace.h"

namespace vorbel {

namespace {

constexpr int sheetHeight = 32; // pixels: the sheet is as wide as the picture, and lower to save memory

// Unites what is nearer than that many pixels are worth.
constexpr long pictureOverhead = 1500;
constexpr long shadowOverhead = 4000;

} // namespace

struct Renderer::Parts {
    explicit Parts(int largestTexture) : tracked(largestTexture) {}

    Redraw redraw = Redraw::changes;
    std::unique_ptr<BatchDrawer> drawer;
    std::unique_ptr<RegionPainter> painter;
    std::unique_ptr<BallPainter> ballPainter;
    std::unique_ptr<Stage> stage;
    std::optional<Layer> layer;
    Sheet sheet;
    ShadowMap shadows;
    TrackedFrame tracked;
    TrackedBalls balls;
    BallPlan ballPlan;
    DrawList list;
    BatchPlan plan;
    std::vector<PixelRect> regions;
    std::vector<Piece> pieces;
    std::vector<RegionBatches> batches; // of the pieces
    std::vector<ShadowRegion> shadowRegions;
    Effort effort;

    void followItems(const Damage& damage);
    void planShadows(QOpenGLExtraFunctions& gl, const Damage& damage);
    void planPicture(const Damage& damage);
    void beginDrawer(QOpenGLExtraFunctions& gl);
    void drawSheet(QOpenGLExtraFunctions& gl, std::size_t first, std::size_t end);
    void redrawStage(QOpenGLExtraFunctions& gl, const Damage& damage);
    void redrawLayer(QOpenGLExtraFunctions& gl);
};

std::unique_ptr<Renderer> Renderer::create(Pictures& pictures, std::string& error, Redraw redraw) {
    if (std::string problem = contextProblem(); !problem.empty()) {
        error = std::move(problem);
        return nullptr;
    }
    QOpenGLExtraFunctions& gl = currentGl();
    auto painter = RegionPainter::create(error);
    auto ballPainter = BallPainter::create(error);
    auto stage = Stage::create(error);
    if (!painter || !ballPainter || !stage) {
        return nullptr;
    }
    Sheet sheet;
    if (!sheet.resize(gl, 16, 16)) {
        error = "The graphics driver cannot draw into a multisampled picture of half floats.";
        return nullptr;
    }
    GLint largestTexture = 1;
    gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largestTexture);
    auto parts = std::make_unique<Parts>(largestTexture);
    parts->redraw = redraw;
    parts->drawer = std::make_unique<BatchDrawer>(pictures);
    parts->painter = std::move(painter);
    parts->ballPainter = std::move(ballPainter);
    parts->stage = std::move(stage);
    parts->layer.emplace(gl);
    parts->sheet = std::move(sheet);
    return std::unique_ptr<Renderer>(new Renderer(std::move(parts)));
}

Renderer::Renderer(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}
Renderer::~Renderer() = default;

const std::string& Renderer::problem() const {
    return parts_->drawer->problem();
}

Renderer::Effort Renderer::lastEffort() const {
    return parts_->effort;
}

void Renderer::Parts::planShadows(QOpenGLExtraFunctions& gl, const Damage& damage) {
    const int size = ShadowMap::sizeFor(tracked.frame().spot);
    shadows.resize(gl, size);
    regions.clear();
    if (damage.shadowMap) {
        regions.push_back({0, 0, size, size});
    } else {
        regions = damage.lit;
        mergeRegions(regions, shadowOverhead);
    }
    shadowRegions.clear();
    for (const PixelRect& part : regions) {
        shadowRegions.push_back({part, plan.choose(list.solid, &ItemBounds::lit, part),
                                 plan.choose(list.cutOut, &ItemBounds::lit, part)});
        effort.texels += part.area();
    }
}

void Renderer::Parts::planPicture(const Damage& damage) {
    const Perspective& view = tracked.view();
    regions.clear();
    if (damage.picture) {
        regions.push_back({0, 0, view.width, view.height});
    } else {
        for (const PixelRect& part : damage.seen) {
            regions.push_back(alignedRegion(part, view.width, view.height));
        }
        mergeRegions(regions, pictureOverhead);
    }
    placePieces(regions, sheet.width(), sheet.height(), pieces);
    batches.clear();
    for (const Piece& piece : pieces) {
        batches.push_back(chooseBatches(plan, list, tracked, piece.part));
    }
}

void Renderer::Parts::beginDrawer(QOpenGLExtraFunctions& gl) {
    const Frame& frame = tracked.frame();
    const float aspectRatio =
        static_cast<float>(tracked.view().width) / static_cast<float>(tracked.view().height);
    Views views;
    views[0] = sceneView(frame, list, aspectRatio);
    views[1] = list.floor ? mirroredView(frame, list, aspectRatio) : views[0];
    views[2].viewProjection = tracked.frustum().viewProjection();
    drawer->begin(gl, plan.instances(), views, lightUniforms(frame, tracked.frustum()));
}

// Draws the pieces from `first` to before `end`, which share a sheet, and puts them onto the stage.
void Renderer::Parts::drawSheet(QOpenGLExtraFunctions& gl, std::size_t first, std::size_t end) {
    PixelRect used;
    for (std::size_t i = first; i < end; ++i) {
        used = united(used, pieces[i].place());
    }
    gl.glEnable(GL_DEPTH_TEST);
    gl.glEnable(GL_SCISSOR_TEST);
    sheet.beginDrawing(gl, used, glm::vec4(linearLight(tracked.frame().background), 1));
    drawer->setView(gl, Eye::camera);
    for (std::size_t i = first; i < end; ++i) {
        painter->paint(gl, pieces[i], tracked.view(), batches[i], plan, *drawer);
    }
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_SCISSOR_TEST);
    sheet.resolve(gl, used);
    stage->put(gl, std::span(pieces).subspan(first, end - first), sheet);
}

// The list must follow every frame, also one in which nothing that is seen has changed.
void Renderer::Parts::followItems(const Damage& damage) {
    if (damage.looks || damage.picture) {
        list = makeDrawList(tracked.frame());
    } else {
        updateInstances(list, tracked.frame(), damage.moved);
    }
}

void Renderer::Parts::redrawStage(QOpenGLExtraFunctions& gl, const Damage& damage) {
    plan.begin(list, tracked.bounds());
    planShadows(gl, damage);
    planPicture(damage);
    beginDrawer(gl);
    shadows.draw(gl, shadowRegions, plan, *drawer);
    shadows.bind(gl);
    for (std::size_t first = 0; first < pieces.size();) {
        std::size_t end = first + 1;
        while (end < pieces.size() && pieces[end].sheet == pieces[first].sheet) {
            ++end;
        }
        drawSheet(gl, first, end);
        first = end;
    }
}

void Renderer::Parts::redrawLayer(QOpenGLExtraFunctions& gl) {
    if (!balls.whole() && balls.regions().empty()) {
        return;
    }
    for (const PixelRect& region : balls.regions()) {
        effort.pixels += region.area();
    }
    if (balls.whole()) {
        effort.pixels = static_cast<long>(tracked.view().width) * tracked.view().height;
    }
    ballPlan.make(balls, tracked);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_SCISSOR_TEST);
    gl.glDisable(GL_CULL_FACE);
    drawer->bindLights(gl);
    drawer->setView(gl, Eye::camera);
    shadows.bind(gl);
    layer->beginDrawing(gl);
    ballPainter->paint(gl, ballPlan, *stage);
}

void Renderer::draw(const Frame& frame, unsigned targetFramebuffer, int width, int height) {
    if (width <= 0 || height <= 0) {
        return;
    }
    QOpenGLExtraFunctions& gl = currentGl();
    Parts& parts = *parts_;
    setDefaults(gl);
    if (parts.layer->resize(gl, width, height) || parts.redraw == Redraw::all) {
        parts.tracked.forget();
    }
    parts.stage->resize(gl, width, height);
    parts.effort = {};
    const Damage& damage = parts.tracked.follow(frame, width, height);
    parts.followItems(damage);
    parts.balls.follow(frame.balls, parts.tracked, damage);
    if (damage.nothing()) {
        parts.tracked.markDrawn();
    } else if (parts.sheet.resize(gl, width, std::min(height, sheetHeight))) {
        parts.redrawStage(gl, damage);
        parts.tracked.markDrawn();
    }
    parts.redrawLayer(gl);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_SCISSOR_TEST);
    parts.layer->show(gl, targetFramebuffer);
    releaseBindings(gl);
}

} // namespace vorbel
