#include "render/light.h"

#include <algorithm>
#include <cmath>

namespace example {
namespace {

using vertra::Vec4D;

/// How much of a spot's light goes in a direction.
double ConeShare(Light const& light, Vec4D<double> const& direction) {
    double const cosine = direction * Normalize(light.direction);
    double const inner = std::cos(light.theta / 2);
    double const outer = std::cos(light.phi / 2);
    if (cosine >= inner) return 1;
    if (cosine <= outer) return 0;
    return std::pow((cosine - outer) / (inner - outer), light.falloff);
}

/// How much of a light arrives at the end of the way from its position.
double Share(Light const& light, Vec4D<double> const& way) {
    if (light.type == Light::LIGHT_DIRECTIONAL) return 1;
    double const d = Len(way);
    if (d > light.range) return 0;
    double const share = 1 / (light.attenuation0 + light.attenuation1 * d + light.attenuation2 * d * d);
    return light.type == Light::LIGHT_SPOT ? share * ConeShare(light, Normalize(way)) : share;
}

}  // namespace

Color Shade(Sighting const& seen, Material const& material, std::vector<Light> const& lights) {
    Color color = material.emissive;
    for (Light const& light : lights) {
        Vec4D<double> const way =
            light.type == Light::LIGHT_DIRECTIONAL ? light.direction : seen.point - light.position;
        double const share = Share(light, way);
        Vec4D<double> const toLight = -Normalize(way);
        double const cosine = seen.normal * toLight;
        color = PixelShaderSimpleAdaptive(color, material.ambient, light.ambient * share);
        if (cosine <= 0) continue;
        double const glint = std::max(0.0, seen.normal * Normalize(toLight + seen.toEye));
        color = PixelShaderSimpleAdaptive(color, material.diffuse, light.diffuse * (share * cosine));
        color = PixelShaderSimpleAdaptive(color, material.specular,
                                          light.specular * (share * std::pow(glint, material.power)));
    }
    return color;
}

}  // namespace example
