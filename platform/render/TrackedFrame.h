// The frame that was drawn last, and what a new one changes in its picture.
#pragma once

#include "platform/render/ShadowFrustum.h"

#include <cstdint>
#include <vector>

namespace vorbel {

// Where an item leaves traces; empty rectangles where it leaves none.
struct ItemBounds {
    PixelRect seen;    // in the picture
    PixelRect shadow;  // in the picture: the item and its shadow
    PixelRect mirror;  // in the picture: its image in the floor
    PixelRect lit;     // in the shadow map, texels
    LightBounds light; // empty without a light that casts shadows
};

struct Damage {
    bool picture = false;           // the whole picture is to be drawn anew
    bool shadowMap = false;         // so is the whole shadow map
    bool looks = false;             // items came, went or look different: more than movement
    std::vector<PixelRect> seen;    // else these parts of the picture; may overlap
    std::vector<PixelRect> lit;     // and these of the shadow map
    std::vector<std::size_t> moved; // items that differ, as indices; of no use after a change of looks

    [[nodiscard]] bool nothing() const { return !picture && !shadowMap && seen.empty() && lit.empty(); }
};

// The mirroring floor of a frame: the first one.
[[nodiscard]] const DrawItem* floorOf(const Frame& frame);
[[nodiscard]] glm::vec4 planeOf(const DrawItem& floor); // xyz: upward normal; w: −normal·point, metres

class TrackedFrame {
public:
    // Shadow maps that the scene wants larger are kept at that many texels along an edge, at least 1.
    explicit TrackedFrame(int largestShadowMap) : largestShadowMap_(largestShadowMap) {}

    // Takes the place of the last frame, to be drawn in width × height pixels; tells what that changes, which
    // is everything unless the last frame was drawn. No memory is allocated while the same items move.
    const Damage& follow(const Frame& next, int width, int height);

    [[nodiscard]] const Frame& frame() const { return frame_; }
    [[nodiscard]] const std::vector<ItemBounds>& bounds() const { return bounds_; } // of the frame's items
    [[nodiscard]] const ShadowFrustum& frustum() const { return frustum_; }
    [[nodiscard]] const Perspective& view() const { return view_; }

    // Whether an opaque box lies between the camera and the floor all over that part of the picture.
    [[nodiscard]] bool hidesFloor(const PixelRect& part) const;

    void markDrawn() { drawn_ = true; }
    void forget() { drawn_ = false; } // makes the next frame all new

private:
    bool followItems(const std::vector<DrawItem>& next);
    void restructure(const std::vector<DrawItem>& next);
    bool followSpot(const Frame& next);
    bool followShadows();
    bool followView(const Frame& next, int width, int height);
    void replace(std::size_t index, const DrawItem& next);
    void measureAll();
    [[nodiscard]] ItemBounds measure(const DrawItem& item) const;
    void mark(const ItemBounds& bounds);

    int largestShadowMap_;
    bool drawn_ = false; // the picture shows the frame
    Frame frame_;
    std::vector<ItemBounds> bounds_;
    ShadowFrustum frustum_;
    Perspective view_;
    glm::mat4 toLight_{1};
    Perspective light_;
    std::optional<glm::vec4> floor_;
    Damage damage_;
};

} // namespace vorbel
