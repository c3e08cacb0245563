// Parts of a picture that are drawn anew, and where they are drawn before they are put in place.
#pragma once

#include "platform/render/PixelRect.h"

#include <vector>

namespace vorbel {

// Unites rectangles where that draws at most `overhead` pixels more than both alone: starting a region costs
// about as much as that many pixels.
void mergeRegions(std::vector<PixelRect>& regions, long overhead);

// Moves the edges outward to whole blocks of 4 pixels, as far as the picture reaches. Neighbouring pixels
// are then shaded together in the same way whatever the region.
[[nodiscard]] PixelRect alignedRegion(const PixelRect& region, int width, int height);

// A part of the picture, and its place in a sheet.
struct Piece {
    PixelRect part;
    int left = 0; // of its lower left corner in the sheet, pixels
    int bottom = 0;
    std::size_t sheet = 0; // 0 is drawn first
    [[nodiscard]] PixelRect place() const {
        return {left, bottom, left + part.width(), bottom + part.height()};
    }
};

// Cuts the regions, none of them wider than a sheet, into pieces that fit into sheets, and places these in as
// few sheets as a simple packing in rows needs, a block apart: some software rasterisers draw single samples
// one pixel beyond the scissor rectangle. Pieces of one sheet follow one another.
void placePieces(const std::vector<PixelRect>& regions, int sheetWidth, int sheetHeight,
                 std::vector<Piece>& pieces);

} // namespace vorbel
