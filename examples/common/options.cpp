#include "common/options.h"

#include "common/mesh.h"
#include "common/run.h"

#include <vertra/transform/quat3d.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace example {
namespace {

using vertra::Quat3D;
using vertra::Vec4D;

/// The offset turned about x by the pitch, then about y by the yaw. A quaternion turns a vector by minus its
/// angle, so that its conjugate turns it by the angle itself.
Vec4D<double> Orbited(Vec4D<double> const& offset, std::array<double, 2> const& degrees) {
    auto const [yaw, pitch] = degrees;
    constexpr double kRadians = std::numbers::pi / 180;
    return Conj(Quat3D<double>(-pitch * kRadians, yaw * kRadians, 0)) * offset;
}

}  // namespace

Vec4D<double> Point(std::string const& option, std::array<double, 3> const& p) {
    if (!std::ranges::all_of(p, [](double number) { return std::abs(number) <= kFarthest; })) {
        throw Error(option + ": needs numbers between -1e9 and 1e9");
    }
    return Vec4D<double>(p.data());
}

void Options::AddTo(CLI::App& app) {
    file = EXAMPLE_DATA "/knot.obj";
    app.add_option("file", file, "The mesh, a Wavefront OBJ file")->capture_default_str();
    app.add_option("--size", size, "Width and height of the picture in pixels")
        ->check(CLI::Range(1, 16384))
        ->capture_default_str();
    app.add_option("--eye", eye, "Where the eye is; by default it frames the mesh");
    app.add_option("--target", target, "What it looks at; by default the middle of the mesh");
    app.add_option(
           "--orbit", orbit,
           "Yaw and pitch in degrees, by which the eye is turned about the target: counter-clockwise seen "
           "from above, and up for an eye on the z axis")
        ->check(CLI::Range(-360.0, 360.0));
}

Camera Options::MakeCamera(vertra::AABBox3D<double> const& box, double aspect) const {
    Vec4D<double> const from = eye ? Point("--eye", *eye) : FramingEye(box, aspect);
    Vec4D<double> const to = target ? Point("--target", *target) : box.Center();
    if (!(GetDistanceBetween(from, to) > 1 / kFarthest)) {
        throw Error(std::string(eye ? "--eye" : "--target") + ": eye and target are the same point");
    }
    return Camera(to + Orbited(from - to, orbit), to, aspect, box);
}

}  // namespace example
