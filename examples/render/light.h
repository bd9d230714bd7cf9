#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/appearance/light3d.h>
#include <vertra/appearance/material3d.h>

#include <vector>

namespace example {

using Color = vertra::Color3D<double>;
using Light = vertra::Light3D<double>;
using Material = vertra::Material3D<double>;

/// A point of a surface, as it is seen.
struct Sighting {
    vertra::Vec4D<double> point;
    vertra::Vec4D<double> normal;  ///< of unit length, as is toEye
    vertra::Vec4D<double> toEye;
};

/// The colour in which the eye sees the point.
///
/// The library leaves the fields of a light and a material to the renderer. This one reads them so:
/// - a light shines along its direction (directional) or away from its position (point, spot), up to range;
/// - at a distance d there arrives 1 / (attenuation0 + attenuation1 * d + attenuation2 * d * d) of it;
/// - a spot shines around its direction in a cone, full within the angle theta from side to side, not at all
///   outside of phi, and in between the more steeply the greater the falloff;
/// - diffuse goes by the cosine to the normal; specular by a power, the material's, of the cosine between the
///   normal and the middle of light and eye (J. Blinn, "Models of Light Reflection for Computer Synthesized
///   Pictures", 1977); ambient arrives on the far side as well.
Color Shade(Sighting const& seen, Material const& material, std::vector<Light> const& lights);

}  // namespace example
