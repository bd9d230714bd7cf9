#include "common/options.h"

#include "common/mesh.h"
#include "common/run.h"

#include <algorithm>
#include <cmath>

namespace example {
namespace {

using vertra::Vec4D;

Vec4D<double> Point(std::string const& option, std::array<double, 3> const& p) {
    if (!std::ranges::all_of(p, [](double number) { return std::abs(number) <= kFarthest; })) {
        throw Error(option + ": needs numbers between -1e9 and 1e9");
    }
    return Vec4D<double>(p.data());
}

}  // namespace

void Options::AddTo(CLI::App& app) {
    file = EXAMPLE_DATA "/knot.obj";
    app.add_option("file", file, "The mesh, a Wavefront OBJ file")->capture_default_str();
    app.add_option("--size", size, "Width and height of the picture in pixels")
        ->check(CLI::Range(1, 16384))
        ->capture_default_str();
    app.add_option("--eye", eye, "Where the eye is; by default it frames the mesh");
    app.add_option("--target", target, "What it looks at; by default the middle of the mesh");
}

Camera Options::MakeCamera(vertra::AABBox3D<double> const& box, double aspect) const {
    Vec4D<double> const from = eye ? Point("--eye", *eye) : FramingEye(box, aspect);
    Vec4D<double> const to = target ? Point("--target", *target) : box.Center();
    if (!(GetDistanceBetween(from, to) > 1 / kFarthest)) {
        throw Error(std::string(eye ? "--eye" : "--target") + ": eye and target are the same point");
    }
    return Camera(from, to, aspect, box);
}

}  // namespace example
