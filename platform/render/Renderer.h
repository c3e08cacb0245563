// Draws frames with OpenGL 3.3 (core profile) or OpenGL ES 3.0 in three passes over the scene: shadow map,
// mirror image in the arena floor, the scene itself. The finished picture is kept, and only the parts of it
// that a new frame changes are drawn anew.
#pragma once

#include "platform/render/Frame.h"

#include <memory>
#include <string>

namespace vorbel {

class Pictures;

// How much of the picture each frame draws. Both show the same; drawing all is slow, there to compare with.
enum class Redraw { changes, all };

class Renderer {
public:
    // Needs a current OpenGL context, to which the renderer then belongs: it is drawn with and destroyed
    // while that context, or one that shares with it, is current. Without a usable context the result is null
    // and `error` says why in one line; otherwise `error` is left as it is. Keeps a reference to `pictures`.
    [[nodiscard]] static std::unique_ptr<Renderer> create(Pictures& pictures, std::string& error,
                                                          Redraw redraw = Redraw::changes);

    ~Renderer();
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    // Fills the framebuffer (0: the window's) from its lower left corner, width × height pixels, opaque and
    // encoded as sRGB whatever the framebuffer's format. Does nothing when width or height is not positive.
    // Leaves that framebuffer bound, no program, buffer, texture or vertex array bound, and depth, stencil
    // and scissor test, culling and blending switched off.
    void draw(const Frame& frame, unsigned targetFramebuffer, int width, int height);

    // Why the pictures lack something: the driver refuses a shader that only some of the frame needs. Empty
    // when all is drawn.
    [[nodiscard]] const std::string& problem() const;

    // How many pixels of the picture and texels of the shadow map the last frame drew anew.
    struct Effort {
        long pixels = 0;
        long texels = 0;
    };
    [[nodiscard]] Effort lastEffort() const;

private:
    struct Parts;
    explicit Renderer(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> parts_;
};

} // namespace vorbel
