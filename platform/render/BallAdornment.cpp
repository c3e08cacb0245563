// Marks on balls, and lines around them: for players who see colours, or the balls themselves, badly.
#include "platform/render/Shaders.h"

namespace vorbel::shaders {

const std::string_view ballAdornment = R"(
flat in vec2 ballLook; // x: 0 no mark, 1 a ring, 2 a cross; y: 1 with lines around it

// In radii of the ball. Nothing of a mark is thinner than a pixel and a half: so it is seen on a ball of 7.
const float ringRadius = 0.6;
const float ringHalfWidth = 0.14;
const float barHalfWidth = 0.16;
const float barReach = 0.82;
const float leastHalfWidth = 0.75; // pixels

const float lightestUnderWhite = 0.2; // luminance: a contrast of 4.2, of 3 where a pixel has only 0.63 of the mark
const float darkestUnderBlack = 0.2; // 5
const float lightColor = 0.3; // luminance of colours from which on a mark is black

const float blackWidth = 2.0; // pixels of a picture of 800 lines
const float whiteWidth = 1.5;

// Of the point where a ray passes the centre of the ball: in metres to the right of it and above it, as it is seen.
vec2 onDisc(vec3 aside, vec3 ray, vec3 rightward) {
    vec3 right = normalize(rightward - dot(rightward, ray) * ray);
    return vec2(dot(aside, right), dot(aside, cross(right, ray)));
}

// Share of a pixel that lies within that distance.
float inside(float distance, float limit, float pixel) {
    return clamp((limit - distance) / pixel + 0.5, 0.0, 1.0);
}

float markShare(vec2 place, float pixel) {
    float least = leastHalfWidth * pixel;
    if (ballLook.x < 1.5) {
        return inside(abs(length(place) - ringRadius), max(ringHalfWidth, least), pixel);
    }
    vec2 aside = abs(place);
    vec2 bars = vec2(inside(aside.x, max(barHalfWidth, least), pixel), inside(aside.y, max(barHalfWidth, least), pixel));
    return max(bars.x * inside(aside.y, barReach, pixel), bars.y * inside(aside.x, barReach, pixel));
}

// The light of the ball with its mark, at a place and with a pixel in radii. The mark is as bright in the shade; the
// ball is kept as dark, or as light, as the contrast needs.
vec3 marked(vec3 light, vec2 place, float pixel, vec3 ballColor) {
    if (ballLook.x < 0.5) {
        return light;
    }
    const vec3 weight = vec3(0.2126, 0.7152, 0.0722); // of a component in the luminance
    float luminance = dot(min(light, 1.0), weight);
    bool isLight = dot(ballColor, weight) > lightColor;
    vec3 own = isLight ? light + max(darkestUnderBlack - luminance, 0.0)
                       : light * min(lightestUnderWhite / max(luminance, 1e-3), 1.0);
    return mix(own, vec3(isLight ? 0.0 : 1.0), markShare(place, pixel));
}

// The ball, of which that share of the pixel shows, with both lines around it. `edge`: pixels to the edge of the ball,
// positive within it; `shown`: share of the lines that nothing hides.
vec4 outlined(vec3 ballColor, float cover, float edge, float fine, float shown) {
    float black = shown * (1.0 - cover) * clamp(edge + 0.5 + blackWidth * fine, 0.0, 1.0);
    float white = shown * (1.0 - cover - black) * clamp(edge + 0.5 + (blackWidth + whiteWidth) * fine, 0.0, 1.0);
    float all = cover + black + white;
    return vec4((ballColor * cover + white) / max(all, 1e-3), all);
}
)";

} // namespace vorbel::shaders
