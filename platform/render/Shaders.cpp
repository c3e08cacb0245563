#include "platform/render/Shaders.h"

namespace vorbel::shaders {

const std::string_view viewBlock = R"(
layout(std140) uniform View {
    mat4 viewProjection;
    vec4 background; // linear light; w: reflectivity of the floor
    vec4 eye;        // position; w: far plane, metres
};
)";

const std::string_view lightBlock = R"(
layout(std140) uniform Lights {
    mat4 lightView;       // from the arena to the light, which looks along -z
    vec4 ambient;
    vec4 lightPosition;
    vec4 lightDirection;
    vec4 lightStrength;
    vec4 cone;            // cosines of the inner and the outer half angle; zw: texel of the shadow map, as tangents
    vec4 shadowPlace;     // from tangents of angles at the light to texture coordinates: times xy, plus zw
    vec4 shadowDepth;     // 1 / near, 1 / (1 / near - 1 / far), bias in metres, radius of the blur as a tangent
    vec4 shadowOffset[16]; // xy: texture coordinates, zw: the same as tangents of angles at the light
};
)";

const std::string_view surfaceVertex = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec2 uv;
layout(location = 3) in vec4 worldX;
layout(location = 4) in vec4 worldY;
layout(location = 5) in vec4 worldZ;
layout(location = 6) in vec4 diffuse;
layout(location = 7) in vec4 emission;

invariant gl_Position; // the depth-only pass and the coloured one must agree
out vec3 worldPosition;
out vec3 worldNormal;
out vec2 pictureUv;
flat out vec4 surfaceDiffuse;
flat out vec4 surfaceEmission;
out vec3 shapePoint;
flat out vec3 halfSize;

void main() {
    vec4 point = vec4(position, 1.0);
    worldPosition = vec3(dot(worldX, point), dot(worldY, point), dot(worldZ, point));
    // Normals go with the cofactors of the world matrix, so that they stay upright on stretched shapes.
    worldNormal = vec3(dot(cross(worldY.xyz, worldZ.xyz), normal), dot(cross(worldZ.xyz, worldX.xyz), normal),
                       dot(cross(worldX.xyz, worldY.xyz), normal));
    pictureUv = uv;
    surfaceDiffuse = diffuse;
    surfaceEmission = emission;
    vec3 size = vec3(length(vec3(worldX.x, worldY.x, worldZ.x)), length(vec3(worldX.y, worldY.y, worldZ.y)),
                     length(vec3(worldX.z, worldY.z, worldZ.z)));
    halfSize = 0.5 * size;
    shapePoint = position * size;
    gl_Position = viewProjection * vec4(worldPosition, 1.0);
}
)";

const std::string_view surfaceFragment = R"(
uniform sampler2D picture;
uniform highp sampler2DShadow shadowMap;

in vec3 worldPosition;
in vec3 worldNormal;
in vec2 pictureUv;
flat in vec4 surfaceDiffuse;
flat in vec4 surfaceEmission; // w: 1 when the surface has dark edges
in vec3 shapePoint;           // in the frame of the shape, metres
flat in vec3 halfSize;        // of a box, metres
#ifndef DEPTH
layout(location = 0) out vec4 color;
layout(location = 1) out vec4 shadedColor; // as if the spot light did not reach the surface
layout(location = 2) out vec4 nearness;    // see Sheet; two numbers, whose sum it is
#endif

// Share of the light that reaches the surface. The depth that each sample is compared with follows the plane of
// the surface, so that steep surfaces do not shadow themselves.
float visibility(vec3 normal) {
    vec3 point = (lightView * vec4(worldPosition, 1.0)).xyz;
    vec3 facing = mat3(lightView) * normal;
    float distance = -point.z;
    float plane = max(-dot(facing, point), 0.05 * distance);
    vec2 slope = facing.xy / plane * shadowDepth.y;
    vec3 start = vec3(point.xy / distance * shadowPlace.xy + shadowPlace.zw,
                      (shadowDepth.x - 1.0 / (distance - shadowDepth.z)) * shadowDepth.y);
    if (any(greaterThan(abs(start.xy - 0.5), vec2(0.5)))) {
        return 1.0; // nothing that is seen is shaded there
    }
    start.z -= dot(abs(slope), cone.zw); // each sample mixes texels up to one away
    float sum = 0.0;
    for (int i = 0; i < 16; ++i) { // a constant, so that compilers unroll it
        vec4 offset = shadowOffset[i];
        sum += textureLod(shadowMap, start + vec3(offset.xy, dot(slope, offset.zw)), 0.0);
    }
    return sum / 16.0;
}

// Of the spot light, what reaches the surface.
vec3 spotLight() {
    vec3 normal = normalize(gl_FrontFacing ? worldNormal : -worldNormal);
    vec3 toLight = normalize(lightPosition.xyz - worldPosition);
    float spot = smoothstep(cone.y, cone.x, dot(-toLight, lightDirection.xyz)) * max(dot(normal, toLight), 0.0);
#ifndef MIRROR // in the faint image in the floor nobody sees shadows
    if (spot > 0.0) {
        spot *= visibility(normal);
    }
#endif
    return lightStrength.rgb * spot;
}

// A glowing bar is darker along its edges: it stands out from a ground that is as light as itself.
float edging() {
    const float width = 0.005; // metres
    vec3 inside = halfSize - abs(shapePoint); // one of the three is 0: that of the face
    float toEdge = inside.x + inside.y + inside.z - max(max(inside.x, inside.y), inside.z);
    float pixel = max(fwidth(toEdge), 1e-5);
    return mix(0.12, 1.0, clamp((toEdge - width) / pixel + 0.5, 0.0, 1.0));
}

void main() {
    vec4 surface = surfaceDiffuse;
#ifdef PICTURE
    vec4 texel = texture(picture, pictureUv); // its colours are multiplied by alpha: no halo of hidden ones
    float cover = clamp((texel.a - 0.5) / max(fwidth(texel.a), 0.001) + 0.5, 0.0, 1.0);
    surface = vec4(surface.rgb * texel.rgb / max(texel.a, 0.001), surface.a * cover);
#endif
#ifdef DEPTH
    if (surface.a < 0.5) {
        discard;
    }
#else
    vec3 lit = surface.rgb;
    vec3 shaded = surface.rgb;
#ifndef UNLIT
    shaded *= ambient.rgb;
    lit = shaded + surface.rgb * spotLight();
#endif
    lit = min(lit + surfaceEmission.rgb, 1.0);
    shaded = min(shaded + surfaceEmission.rgb, 1.0);
#ifdef MIRROR
    float share = background.w;
#else
    float share = surfaceEmission.w > 0.5 ? edging() : 1.0;
#endif
    color = vec4(lit * share, surface.a);
    shadedColor = vec4(shaded * share, surface.a);
    float near = min(0.5 * gl_FragCoord.w, 1.0);
    float coarse = floor(near * 256.0) / 256.0;
    nearness = vec4(coarse, near - coarse, 0.0, surface.a);
#ifdef FLOOR
    // What is there already is the mirror image. Both fade into the background before the floor ends.
    float seen = 1.0 - smoothstep(0.2, 0.6, length(worldPosition - eye.xyz) / eye.w);
    color = vec4(mix(background.rgb, color.rgb, seen), seen);
    shadedColor = vec4(mix(background.rgb, shadedColor.rgb, seen), seen);
    nearness.a = 0.0;
#endif
#endif
}
)";

const std::string_view screenVertex = R"(
void main() {
    vec2 corner = vec2(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0);
    gl_Position = vec4(corner, 1.0, 1.0);
}
)";

const std::string_view fillFragment = R"(
layout(location = 0) out vec4 color;
layout(location = 1) out vec4 shadedColor;
layout(location = 2) out vec4 nearness;
void main() {
    color = shadedColor = vec4(background.rgb * background.w, 1.0);
    nearness = vec4(0.0);
}
)";

const std::string_view pieceVertex = R"(
layout(location = 0) in vec4 part;   // left, lower, right, upper edge in the layer: fractions of it
layout(location = 1) in vec2 offset; // pixels: x in the sheet less x in the layer, the sum of both y
flat out ivec2 shift;
void main() {
    vec2 corner = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    shift = ivec2(offset);
    gl_Position = vec4(mix(part.xy, part.zw, corner) * 2.0 - 1.0, 0.0, 1.0);
}
)";

const std::string_view encoding = R"(
vec3 encoded(vec3 light) {
    return mix(light * 12.92, 1.055 * pow(light, vec3(1.0 / 2.4)) - 0.055, step(0.0031308, light));
}
)";

const std::string_view encodeFragment = R"(
uniform sampler2D picture;
uniform sampler2D shaded;
uniform sampler2D nearness;
flat in ivec2 shift;
layout(location = 0) out vec4 color;
layout(location = 1) out vec4 shadedColor;
void main() {
    ivec2 pixel = ivec2(gl_FragCoord.xy); // the stage is upside down
    ivec2 place = ivec2(shift.x + pixel.x, shift.y - pixel.y);
    // Half a step of noise, the same in every frame, hides the steps of slow gradients.
    float noise = fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715)))) - 0.5;
    vec2 parts = texelFetch(nearness, place, 0).rg;
    float near = clamp(parts.r + parts.g, 0.0, 1.0) * 255.0;
    color = vec4(encoded(texelFetch(picture, place, 0).rgb) + noise / 255.0, floor(near) / 255.0);
    shadedColor = vec4(encoded(texelFetch(shaded, place, 0).rgb) + noise / 255.0, fract(near));
}
)";

const std::string_view copyFragment = R"(
uniform sampler2D picture;
layout(location = 0) out vec4 color;
void main() {
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    color = texelFetch(picture, ivec2(pixel.x, textureSize(picture, 0).y - 1 - pixel.y), 0);
}
)";

} // namespace vorbel::shaders
