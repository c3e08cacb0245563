// Draws one part of the picture into a sheet.
#pragma once

#include "platform/render/BatchDrawer.h"
#include "platform/render/Regions.h"

#include <memory>

namespace vorbel {

// What is drawn for one piece.
struct RegionBatches {
    BatchPlan::Range solid;
    BatchPlan::Range cutOut;
    BatchPlan::Range blended;
    BatchPlan::Range floor; // empty when no floor is seen, and so are the next two
    BatchPlan::Range mirroredSolid;
    BatchPlan::Range mirroredCutOut;
};

[[nodiscard]] RegionBatches chooseBatches(BatchPlan& plan, const DrawList& list, const TrackedFrame& frame,
                                          const PixelRect& part);

class RegionPainter {
public:
    // None when a shader fails; `error` then says why.
    [[nodiscard]] static std::unique_ptr<RegionPainter> create(std::string& error);

    // The sheet is the framebuffer, cleared to the background; the drawer has begun with the plan. The
    // scissor test is on, and its rectangle and the viewport are changed.
    void paint(QOpenGLExtraFunctions& gl, const Piece& piece, const Perspective& view,
               const RegionBatches& batches, const BatchPlan& plan, BatchDrawer& drawer);

private:
    RegionPainter(ShaderProgram fill, GlObject emptyArray)
        : fill_(std::move(fill)), emptyArray_(std::move(emptyArray)) {}
    void paintFloor(QOpenGLExtraFunctions& gl, const RegionBatches& batches, const BatchPlan& plan,
                    BatchDrawer& drawer);
    void fillMirror(QOpenGLExtraFunctions& gl);

    ShaderProgram fill_;
    GlObject emptyArray_; // the triangle over the whole viewport makes its corners in the shader
};

} // namespace vorbel
