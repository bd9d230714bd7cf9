// Which parts of a scene does a camera see? The format of a scene stands in graph.h.

#include "common/camera.h"
#include "common/options.h"
#include "common/run.h"
#include "scene/graph.h"

#include <vertra/solid/plane3d.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <optional>
#include <string>

namespace {

using example::Camera;
using example::Node;
using example::Scene;
using vertra::AABBox3D;
using vertra::Matrix3D;
using vertra::Plane3D;
using vertra::Vec4D;

struct Side {
    char const* name;
    Plane3D<double> plane;  ///< what is in view lies on its positive side
};

/// What a camera sees satisfies -w < x < w in clip space, and y and z likewise. Each of the four is the point
/// times a column of the matrix, so their sums are the left sides of plane equations.
std::array<Side, 6> GetSides(Matrix3D<double> const& toClip) {
    auto const side = [&toClip](char const* name, int column, double sign) {
        return Side{name, Plane3D<double>(toClip.Column(3) + toClip.Column(column) * sign,
                                          toClip[15] + toClip[12 + column] * sign)};
    };
    return {side("near", 2, 1),   side("far", 2, -1),   side("left", 0, 1),
            side("right", 0, -1), side("bottom", 1, 1), side("top", 1, -1)};
}

/// A side of the view beyond which the whole box lies; null where there is none.
Side const* FindRejectingSide(std::array<Side, 6> const& sides, AABBox3D<double> const& box) {
    auto const* const side = std::ranges::find_if(
        sides, [&box](Side const& s) { return box.ClassifyPlane(s.plane) == vertra::EIR_IN_FRONT; });
    return side == sides.end() ? nullptr : side;
}

std::ostream& operator<<(std::ostream& out, Vec4D<double> const& v) {
    auto const clean = [](double x) { return std::abs(x) < 1 / example::kFarthest ? 0 : x; };
    return out << '(' << clean(v.x) << ", " << clean(v.y) << ", " << clean(v.z) << ')';
}

std::ostream& operator<<(std::ostream& out, AABBox3D<double> const& box) {
    return out << box.min << " to " << box.max;
}

void PrintScene(Scene const& scene, Camera const& camera) {
    auto const meshes = std::ranges::count_if(scene.nodes, [](Node const* n) { return !n->mesh.empty(); });
    std::cout << "scene   " << scene.nodes.size() << " nodes, " << meshes << " with a mesh\n"
              << "box     " << scene.box << '\n'
              << "eye     " << camera.eye << '\n';
}

/// A line a node, below its parent's.
void PrintTree(Scene const& scene, Camera const& camera, bool cull) {
    auto const sides = GetSides(camera.toClip);
    for (Node const* const node : scene.nodes) {
        std::string const indent(2 * static_cast<std::size_t>(node->level), ' ');
        std::cout << std::left << std::setw(24) << indent + node->name << ' ';
        if (node->mesh.empty()) {
            std::cout << "at " << node->toWorld.GetTranslation() << '\n';
            continue;
        }
        std::cout << node->mesh << ' ' << node->box;
        if (cull) {
            Side const* const side = FindRejectingSide(sides, node->box);
            if (side != nullptr) std::cout << ", out of view: " << side->name;
        }
        std::cout << '\n';
    }
}

/// The box of the node that has this name.
AABBox3D<double> FindBox(Scene const& scene, std::string const& name) {
    auto const node = std::ranges::find(scene.nodes, name, &Node::name);
    if (node == scene.nodes.end() || (*node)->mesh.empty()) {
        throw example::Error("--frame: there is no node \"" + name + "\" with a mesh");
    }
    return (*node)->box;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Prints the tree of a scene, with the boxes of its nodes in the world.", "scene");
    example::Options options;
    std::optional<std::string> frame;
    bool cull = false;
    options.AddTo(app);
    options.file = std::filesystem::path(options.file).replace_filename("scene.json").string();
    app.get_option("file")->description("The scene, a JSON file as told in graph.h")->capture_default_str();
    app.get_option("--eye")->description("Where the eye is; by default it frames the scene");
    app.get_option("--target")->description("What it looks at; by default the middle of the scene");
    app.add_option("--frame", frame,
                   "The node that the view is made for, in place of the scene; beyond is the far plane");
    app.add_flag("--cull", cull, "Mark the nodes that are out of view");

    return example::Run(app, argc, argv, [&] {
        Scene const scene = example::LoadScene(options.file);
        AABBox3D<double> const box = frame ? FindBox(scene, *frame) : scene.box;
        Camera const camera = options.MakeCamera(box, 1.0 * options.size[0] / options.size[1]);
        PrintScene(scene, camera);
        PrintTree(scene, camera, cull);
    });
}
