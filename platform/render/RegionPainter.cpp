#include "platform/render/RegionPainter.h"

#include "platform/render/Shaders.h"

namespace vorbel {

RegionBatches chooseBatches(BatchPlan& plan, const DrawList& list, const TrackedFrame& frame,
                            const PixelRect& part) {
    RegionBatches batches;
    batches.solid = plan.choose(list.solid, &ItemBounds::seen, part);
    batches.cutOut = plan.choose(list.cutOut, &ItemBounds::seen, part);
    batches.blended = plan.choose(list.blended, &ItemBounds::seen, part);
    if (list.floor && !frame.hidesFloor(part)) {
        batches.floor = plan.chooseFloor();
        if (list.floor->reflectivity > 0) {
            batches.mirroredSolid = plan.choose(list.solid, &ItemBounds::mirror, part);
            batches.mirroredCutOut = plan.choose(list.cutOut, &ItemBounds::mirror, part);
        }
    }
    return batches;
}

std::unique_ptr<RegionPainter> RegionPainter::create(std::string& error) {
    auto fill = ShaderProgram::create(shaders::screenVertex, shaders::fillFragment, "", error);
    if (!fill) {
        return nullptr;
    }
    return std::unique_ptr<RegionPainter>(new RegionPainter(std::move(*fill), newVertexArray(currentGl())));
}

void RegionPainter::fillMirror(QOpenGLExtraFunctions& gl) {
    gl.glDisable(GL_CULL_FACE);
    fill_.use(gl);
    gl.glBindVertexArray(emptyArray_.id());
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
}

// Where no solid surface hides the floor: first its mirror image of the scene, then the floor's own light
// is added.
void RegionPainter::paintFloor(QOpenGLExtraFunctions& gl, const RegionBatches& batches, const BatchPlan& plan,
                               BatchDrawer& drawer) {
    const auto floor = plan.batches(batches.floor);
    gl.glEnable(GL_STENCIL_TEST);
    gl.glStencilFunc(GL_ALWAYS, 1, 0xFF);
    gl.glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    drawer.draw(gl, Pass::depth, floor);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glStencilFunc(GL_EQUAL, 1, 0xFF);
    gl.glStencilOp(GL_KEEP, GL_KEEP, GL_KEEP);
    gl.glDepthFunc(GL_ALWAYS);
    fillMirror(gl); // also puts the depth there back to the far plane
    gl.glDepthFunc(GL_LEQUAL);
    drawer.setView(gl, Eye::mirror);
    gl.glFrontFace(GL_CW);
    drawer.draw(gl, Pass::mirror, plan.batches(batches.mirroredSolid));
    gl.glEnable(GL_SAMPLE_ALPHA_TO_COVERAGE);
    drawer.draw(gl, Pass::mirror, plan.batches(batches.mirroredCutOut));
    gl.glDisable(GL_SAMPLE_ALPHA_TO_COVERAGE);
    gl.glFrontFace(GL_CCW);
    drawer.setView(gl, Eye::camera);
    gl.glDepthFunc(GL_ALWAYS);
    gl.glEnable(GL_BLEND);
    gl.glBlendFunc(GL_ONE, GL_SRC_ALPHA);
    drawer.draw(gl, Pass::floor, floor);
    gl.glDisable(GL_BLEND);
    gl.glDepthFunc(GL_LEQUAL);
    gl.glDisable(GL_STENCIL_TEST);
}

void RegionPainter::paint(QOpenGLExtraFunctions& gl, const Piece& piece, const Perspective& view,
                          const RegionBatches& batches, const BatchPlan& plan, BatchDrawer& drawer) {
    gl.glViewport(piece.left - piece.part.left, piece.bottom - piece.part.bottom, view.width, view.height);
    gl.glScissor(piece.left, piece.bottom, piece.part.width(), piece.part.height());
    drawer.draw(gl, Pass::scene, plan.batches(batches.solid));
    if (batches.floor.count > 0) {
        paintFloor(gl, batches, plan, drawer);
    }
    if (batches.cutOut.count > 0) {
        gl.glEnable(GL_SAMPLE_ALPHA_TO_COVERAGE);
        drawer.draw(gl, Pass::scene, plan.batches(batches.cutOut));
        gl.glDisable(GL_SAMPLE_ALPHA_TO_COVERAGE);
    }
    if (batches.blended.count > 0) {
        gl.glEnable(GL_BLEND);
        gl.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        gl.glDepthMask(GL_FALSE);
        drawer.draw(gl, Pass::scene, plan.batches(batches.blended));
        gl.glDepthMask(GL_TRUE);
        gl.glDisable(GL_BLEND);
    }
}

} // namespace vorbel
