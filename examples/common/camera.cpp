#include "common/camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace example {
namespace {

using vertra::AABBox3D;
using vertra::Line3D;
using vertra::Matrix3D;
using vertra::Vec4D;

constexpr double kFieldOfView = std::numbers::pi / 4;  // vertical

double Radius(AABBox3D<double> const& box) { return Len(box.GetExtent()) / 2; }

}  // namespace

Camera::Camera(Vec4D<double> const& eye_, Vec4D<double> const& target, double aspect,
               AABBox3D<double> const& box)
    : eye(eye_) {
    double const zFar = 1.01 * (GetDistanceBetween(eye, box.Center()) + Radius(box));
    double const zNear = zFar / 10000;

    // Straight up or down there is no telling where y is in the picture: then z takes its place.
    Vec4D<double> up(0, 1, 0);
    if (Len(Normalize(target - eye) ^ up) < 0.001) up.Set(0, 0, -1);

    // Points are row vectors: view first, then projection. They are two matrices since Look multiplies from
    // the right and every other builder from the left, so that calls on one matrix yield this product in no
    // order.
    Matrix3D<double> view;
    view.Eye();
    view.Look(eye, target, up);
    Matrix3D<double> projection;
    projection.Eye();
    projection.PerspectiveFOV(kFieldOfView, aspect, zNear, zFar);

    toClip = view * projection;
    toWorld = Invert(toClip);
}

Line3D<double> Camera::LineOfSight(double x, double y) const {
    auto const unproject = [&](double depth) {
        Vec4D<double> p(2 * x - 1, 1 - 2 * y, depth);
        p *= toWorld;  // unlike p * toWorld, this yields the fourth component
        return p / p.w;
    };
    return Line3D<double>(unproject(-1), unproject(1));
}

Vec4D<double> FramingEye(AABBox3D<double> const& box, double aspect) {
    double const halfAngle = std::atan(std::tan(kFieldOfView / 2) * std::min(1.0, aspect));
    Vec4D<double> offset(0.6, 0.5, 1);
    offset.SetLength(Radius(box) / std::sin(halfAngle));
    return box.Center() + offset;
}

}  // namespace example
