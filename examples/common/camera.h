#pragma once

#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/line3d.h>
#include <vertra/transform/matrix3d.h>

namespace example {

/// A view from eye to target, y upwards, with the whole box in front of its far plane.
class Camera {
public:
    vertra::Vec4D<double> eye;
    vertra::Matrix3D<double> toClip;   ///< from the world to clip space: `p *= toClip`, then divide by p.w
    vertra::Matrix3D<double> toWorld;  ///< the way back

    /// aspect is width over height. eye and target must differ.
    Camera(vertra::Vec4D<double> const& eye, vertra::Vec4D<double> const& target, double aspect,
           vertra::AABBox3D<double> const& box);

    /// What lies under a point of the picture, from the near plane to the far one. x and y run from 0 to 1,
    /// from the upper left corner.
    vertra::Line3D<double> LineOfSight(double x, double y) const;
};

/// The eye from which the whole box can be seen around its center, from above and a little to the right.
vertra::Vec4D<double> FramingEye(vertra::AABBox3D<double> const& box, double aspect);

}  // namespace example
