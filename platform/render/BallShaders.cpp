// What balls look like, and what they do to the light around them. All in closed form: a sphere needs no mesh,
// and neither its shadow nor its outline a map or more than one sample a pixel.
#include "platform/render/Shaders.h"

namespace vorbel::shaders {

const std::string_view ballVertex = R"(
layout(location = 0) in vec4 part;   // left, lower, right, upper edge in the layer: fractions of it
layout(location = 1) in vec2 listed; // the first of the balls that matter there, and how many
layout(location = 2) in vec4 placed; // centre; w: radius
layout(location = 3) in vec3 axisX;  // of the ball, in the arena's frame
layout(location = 4) in vec3 axisY;
layout(location = 5) in vec3 axisZ;
layout(location = 6) in vec3 diffuse;
layout(location = 7) in vec3 emission;
#ifdef ADORNED
layout(location = 8) in vec2 look;
flat out vec2 ballLook;
#endif
uniform highp sampler2DShadow shadowMap;
flat out ivec2 list;
flat out vec4 ball;
flat out mat3 toPanels;
flat out vec3 ballDiffuse;
flat out vec3 ballEmission;
flat out float lightShare;

// Turns the seams away from where the light ends on a ball that is not turned itself.
const mat3 tilt = mat3(0.9004, 0.4350, 0.0, -0.3590, 0.7431, 0.5646, 0.2456, -0.5084, 0.8253);

// Share of the spot light that things which are no balls leave for the whole ball.
float visibility() {
    vec3 centre = (lightView * vec4(placed.xyz, 1.0)).xyz;
    float depth = max(-centre.z, 0.1);
    float widest = max(length(shadowOffset[15].zw), 1e-6);
    float spread = placed.w / depth / widest; // so that the samples cover the ball
    vec3 start = vec3(centre.xy / depth * shadowPlace.xy + shadowPlace.zw,
                      (shadowDepth.x - 1.0 / (depth - placed.w)) * shadowDepth.y);
    if (any(greaterThan(abs(start.xy - 0.5), vec2(0.5)))) {
        return 1.0;
    }
    float sum = 0.0;
    for (int i = 0; i < 16; ++i) {
        sum += textureLod(shadowMap, start + vec3(spread * shadowOffset[i].xy, 0.0), 0.0);
    }
    return sum / 16.0;
}

void main() {
    vec2 corner = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    list = ivec2(listed);
    ball = placed;
    toPanels = tilt * transpose(mat3(axisX, axisY, axisZ));
    ballDiffuse = diffuse;
    ballEmission = emission;
#ifdef ADORNED
    ballLook = look;
#endif
    lightShare = visibility();
    gl_Position = vec4(mix(part.xy, part.zw, corner) * 2.0 - 1.0, 0.0, 1.0);
}
)";

const std::string_view regionVertex = R"(
layout(location = 0) in vec4 part;
layout(location = 1) in vec2 listed;
flat out ivec2 list;
void main() {
    vec2 corner = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    list = ivec2(listed);
    gl_Position = vec4(mix(part.xy, part.zw, corner) * 2.0 - 1.0, 0.0, 1.0);
}
)";

const std::string_view stageReading = R"(
layout(std140) uniform Balls {
    vec4 rayCorner; // of the lower left corner of the layer: from the eye to what is 1 m away in depth
    vec4 rayX;      // what a pixel more to the right adds
    vec4 rayY;
    vec4 floorPlane; // xyz: upward normal; w: -normal.point; all 0 without a mirroring floor
    vec4 places[512]; // lists of balls: centre; w: radius
};
uniform sampler2D picture;
uniform sampler2D shaded;
flat in ivec2 list;
layout(location = 0) out vec4 color;

vec3 pixelRay() {
    return rayCorner.xyz + gl_FragCoord.x * rayX.xyz + gl_FragCoord.y * rayY.xyz;
}

// What is to be seen without balls.
struct Ground {
    vec3 lit; // encoded
    vec3 shaded;
    vec3 point;
    float depth; // metres
};

Ground groundHere(vec3 ray) {
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    vec4 lit = texelFetch(picture, pixel, 0);
    vec4 dark = texelFetch(shaded, pixel, 0);
    float depth = 0.5 / max(lit.a + dark.a / 255.0, 1e-5);
    return Ground(lit.rgb, dark.rgb, eye.xyz + depth * ray, depth);
}

// Share of the spot light that the listed balls leave for a point; the edge of a shadow is blurred as that of
// the shadow map is.
float sunlight(vec3 point) {
    vec3 path = point - lightPosition.xyz;
    float squared = dot(path, path);
    float share = 1.0;
    for (int i = list.x; i < list.x + list.y; ++i) {
        vec3 centre = places[i].xyz - lightPosition.xyz;
        float along = dot(centre, path) / squared;
        vec3 aside = centre - along * path;
        float blur = max(shadowDepth.w * dot(centre, lightDirection.xyz), 1e-5);
        float passed = smoothstep(places[i].w - blur, places[i].w + blur, sqrt(dot(aside, aside)));
        share *= along < 1.0 && shadowDepth.w > 0.0 ? passed : 1.0;
    }
    return share;
}

const float contactDepth = 0.5; // how much of the light a ball takes from the ground that it touches

// Share of all light that a ball just above leaves for a level surface.
float underBall(vec3 point) {
    float share = 1.0;
    for (int i = list.x; i < list.x + list.y; ++i) {
        vec3 rise = (places[i].xyz - point) / places[i].w;
        float distance = max(dot(rise, rise), 1.0);
        float hidden = max(rise.y, 0.0) * inversesqrt(distance) / distance;
        share *= 1.0 - contactDepth * clamp((hidden - 0.09) / 0.91, 0.0, 1.0);
    }
    return share;
}

// Encoded. The mixture takes the square root for the encoding: it is exact where nothing is mixed.
vec3 groundColor(Ground ground) {
    vec3 light = mix(ground.shaded * ground.shaded, ground.lit * ground.lit, sunlight(ground.point));
    return sqrt(light * underBall(ground.point));
}
)";

const std::string_view regionFragment = R"(
void main() {
    color = vec4(groundColor(groundHere(pixelRay())), 1.0);
}
)";

const std::string_view ballFragment = R"(
flat in vec4 ball;
flat in mat3 toPanels;
flat in vec3 ballDiffuse;
flat in vec3 ballEmission;
flat in float lightShare;

const float outlineWidth = 1.4; // pixels of a picture of 800 lines, as below
const float outlineFocus = 692.8; // pixels to a tangent of 1 in such a picture, 60 degrees high
const float outlineDepth = 0.75;

// Leather panels, eight on a ball, every other one a little darker, with sewn seams between them: so that the
// turning of a ball is seen. All together they have the colour of the ball. Small balls are plain.
float leather(vec3 normal, float pixelsAcross) {
    const float seamHalfWidth = 0.05; // of the radius; the seams are 0.15 of the ball
    float share = smoothstep(12.0, 20.0, pixelsAcross);
    vec3 point = toPanels * normal;
    vec3 pixel = max(fwidth(point), vec3(0.01));
    vec3 side = clamp(point / pixel * 2.0, -1.0, 1.0);
    vec3 seam = (min(abs(point) + pixel * 0.5, seamHalfWidth) - min(abs(point) - pixel * 0.5, seamHalfWidth)) / pixel;
    float pattern = (1.0 + 0.09 * side.x * side.y * side.z) * (1.0 - 0.3 * max(max(seam.x, seam.y), seam.z));
    return mix(1.0, pattern / (1.0 - 0.3 * 0.15), share);
}

vec3 surfaceLight(vec3 point, vec3 normal) {
    vec3 toLight = normalize(lightPosition.xyz - point);
    float spot = smoothstep(cone.y, cone.x, dot(-toLight, lightDirection.xyz)) * max(dot(normal, toLight), 0.0);
    vec3 light = ambient.rgb + lightStrength.rgb * (spot * lightShare * sunlight(point));
    return min(ballDiffuse * light + ballEmission, 1.0);
}

void main() {
    vec3 fullRay = pixelRay();
    Ground ground = groundHere(fullRay);
    vec3 from = eye.xyz;
#ifdef MIRROR
    from -= 2.0 * (dot(floorPlane.xyz, from) + floorPlane.w) * floorPlane.xyz;
    vec3 mirroredRay = fullRay - 2.0 * dot(floorPlane.xyz, fullRay) * floorPlane.xyz;
#else
    vec3 mirroredRay = fullRay;
#endif
    float rayLength = length(fullRay);
    vec3 ray = mirroredRay / rayLength;
    vec3 toBall = ball.xyz - from;
    float nearest = dot(toBall, ray);
    float off = length(toBall - nearest * ray); // of the ray from the centre
    float pixel = max(length(vec2(dFdx(off), dFdy(off))), 1e-7);
    float cover = clamp((ball.w - off) / pixel + 0.5, 0.0, 1.0);
    vec3 point = from + (nearest - sqrt(max(ball.w * ball.w - off * off, 0.0))) * ray;
    vec3 normal = normalize(point - ball.xyz);
    float depth = dot(point - from, ray) / rayLength;
    vec3 light = surfaceLight(point, normal);
#ifdef MIRROR
    const float onFloor = 0.02; // metres
    float height = dot(floorPlane.xyz, ground.point) + floorPlane.w;
    vec3 under = groundColor(ground);
    cover *= background.w * (abs(height) < onFloor && depth > ground.depth ? 1.0 : 0.0);
    color = vec4(sqrt(min(under * under + cover * light, 1.0)), 1.0);
#else
    float pixelsAcross = 2.0 * ball.w / (depth * length(rayX.xyz));
    const float softness = 0.006; // metres: where ball and ground meet
    light *= leather(normal, pixelsAcross);
    float inFront = clamp((ground.depth - depth) / softness + 0.5, 0.0, 1.0);
    cover *= inFront;
    // A small ball gets a thin dark outline: it stands out from a ground that is as light as itself.
    float fine = max(1.0 / (outlineFocus * length(rayX.xyz)), 1.0); // of more lines
#ifdef ADORNED
    vec2 place = onDisc(nearest * ray - toBall, ray, rayX.xyz) / ball.w;
    light = marked(light, place, 2.0 / pixelsAcross, ballDiffuse + ballEmission);
    if (ballLook.y > 0.0) {
        const float sunk = 0.6; // radii: lower than that below the centre is the court, into which a ball is pressed
        float shown = ground.point.y < ball.y - sunk * ball.w ? 1.0 : inFront;
        color = outlined(encoded(light), cover, (ball.w - off) / pixel, fine, shown);
        return;
    }
#endif
    float outline = clamp((ball.w - off) / pixel + 0.5 + outlineWidth * fine, 0.0, 1.0) * inFront;
    outline *= outlineDepth * (1.0 - smoothstep(16.0, 40.0, pixelsAcross / fine));
    float all = cover + (1.0 - cover) * outline;
    color = vec4(encoded(light) * cover / max(all, 1e-3), all);
#endif
}
)";

} // namespace vorbel::shaders
