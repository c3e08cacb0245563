#include "platform/render/DrawList.h"

#include "platform/render/ColorSpace.h"

#include <algorithm>

#include <glm/geometric.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/matrix.hpp>

namespace vorbel {

namespace {

Look lookOf(const DrawItem& item) {
    const Material& material = item.material;
    return {item.shape, material.picture, material.unlit, material.doubleSided};
}

bool hasLook(const DrawItem& item, const Look& look) {
    const Material& material = item.material;
    return material.unlit == look.unlit && material.doubleSided == look.doubleSided &&
           material.picture == look.picture && item.shape == look.shape;
}

void addTo(std::vector<Group>& groups, const DrawItem& item, std::size_t index) {
    auto group = std::ranges::find_if(groups, [&](const Group& other) { return hasLook(item, other.look); });
    if (group == groups.end()) {
        group = groups.insert(groups.end(), {lookOf(item), {}});
    }
    group->items.push_back(index);
}

glm::vec4 rowOf(const glm::mat4& world, int row) {
    return {world[0][row], world[1][row], world[2][row], world[3][row]};
}

// A box that glows has edges, so that it is seen on any ground.
bool hasDarkEdges(const DrawItem& item) {
    const auto* box = std::get_if<Box>(&item.shape);
    return item.material.emission != colors::black && box != nullptr && box->chamferRadius == 0;
}

Instance instanceFor(const DrawItem& item, const glm::mat4& world) {
    const Material& material = item.material;
    const Color diffuse = material.picture.empty() ? material.diffuse : colors::white;
    return {{rowOf(world, 0), rowOf(world, 1), rowOf(world, 2)},
            glm::vec4(linearLight(diffuse), diffuse.alpha * item.opacity),
            glm::vec4(linearLight(material.emission), hasDarkEdges(item) ? 1 : 0)};
}

MirrorFloor placedFloor(const DrawItem& item, const Viewpoint& camera) {
    // Centred below the camera, so that its edge is nowhere nearer than the far plane.
    const glm::vec3 below = glm::inverse(item.world) * camera.world[3];
    const glm::mat4 centred = glm::translate(item.world, {below.x, 0, below.z});
    return {lookOf(item), instanceFor(item, glm::scale(centred, {camera.zFar, 1, camera.zFar})),
            planeOf(item), static_cast<float>(std::get<Floor>(item.shape).reflectivity)};
}

} // namespace

DrawList makeDrawList(const Frame& frame) {
    DrawList list;
    std::vector<std::size_t> blended;
    std::vector<std::size_t> opaque;
    for (std::size_t i = 0; i < frame.items.size(); ++i) {
        const DrawItem& item = frame.items[i];
        list.instances.push_back(instanceFor(item, item.world));
        if (!isFloor(item)) {
            (isSeeThrough(item) ? blended : opaque).push_back(i);
        }
    }
    const auto distance = [&](std::size_t i) {
        return glm::distance(glm::vec3(frame.camera.world[3]), glm::vec3(frame.items[i].world[3]));
    };
    std::ranges::stable_sort(opaque, std::less{}, distance);
    for (const std::size_t i : opaque) {
        addTo(frame.items[i].material.picture.empty() ? list.solid : list.cutOut, frame.items[i], i);
    }
    std::ranges::stable_sort(blended, std::greater{}, distance);
    for (const std::size_t i : blended) {
        list.blended.push_back({lookOf(frame.items[i]), {i}});
    }
    if (const DrawItem* floor = floorOf(frame)) {
        list.floor = placedFloor(*floor, frame.camera);
    }
    return list;
}

void updateInstances(DrawList& list, const Frame& frame, const std::vector<std::size_t>& moved) {
    for (const std::size_t i : moved) {
        list.instances[i] = instanceFor(frame.items[i], frame.items[i].world);
    }
}

} // namespace vorbel
