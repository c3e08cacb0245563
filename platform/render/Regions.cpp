#include "platform/render/Regions.h"

#include <cstddef>

namespace vorbel {

namespace {

constexpr int block = 4; // pixels

constexpr int upToBlock(int value) {
    return (value + block - 1) / block * block;
}

// The first pair that is worth uniting is united, with the later one dropped.
bool mergeOnePair(std::vector<PixelRect>& regions, long overhead) {
    for (std::size_t i = 0; i < regions.size(); ++i) {
        for (std::size_t k = i + 1; k < regions.size(); ++k) {
            const PixelRect both = united(regions[i], regions[k]);
            if (both.area() <= regions[i].area() + regions[k].area() + overhead) {
                regions[i] = both;
                regions[k] = regions.back();
                regions.pop_back();
                return true;
            }
        }
    }
    return false;
}

} // namespace

void mergeRegions(std::vector<PixelRect>& regions, long overhead) {
    std::erase_if(regions, [](const PixelRect& region) { return region.empty(); });
    while (mergeOnePair(regions, overhead)) {
    }
}

PixelRect alignedRegion(const PixelRect& region, int width, int height) {
    return common({region.left / block * block, region.bottom / block * block, upToBlock(region.right),
                   upToBlock(region.top)},
                  {0, 0, width, height});
}

void placePieces(const std::vector<PixelRect>& regions, int sheetWidth, int sheetHeight,
                 std::vector<Piece>& pieces) {
    pieces.clear();
    for (const PixelRect& region : regions) {
        for (int bottom = region.bottom; bottom < region.top; bottom += sheetHeight) {
            const int top = std::min(bottom + sheetHeight, region.top);
            pieces.push_back({{region.left, bottom, region.right, top}});
        }
    }
    std::ranges::sort(pieces,
                      [](const Piece& a, const Piece& b) { return a.part.height() > b.part.height(); });
    int left = 0;
    int bottom = 0;
    int rowHeight = 0;
    std::size_t sheet = 0;
    for (Piece& piece : pieces) {
        if (left + piece.part.width() > sheetWidth) { // the next row; the tallest piece of a row is its first
            left = 0;
            bottom += rowHeight;
            rowHeight = 0;
        }
        if (bottom + piece.part.height() > sheetHeight) {
            left = bottom = rowHeight = 0;
            ++sheet;
        }
        piece.left = left;
        piece.bottom = bottom;
        piece.sheet = sheet;
        left += upToBlock(piece.part.width()) + block;
        rowHeight = std::max(rowHeight, upToBlock(piece.part.height()) + block);
    }
}

} // namespace vorbel
