#pragma once

#include "render/light.h"

#include <vertra/solid/aabbox3d.h>

#include <CLI/CLI.hpp>

#include <array>
#include <optional>
#include <vector>

namespace example {

/// The options of colour and light, colours as 0xRRGGBB. Three lights shine: the sun, far away, the lamp, to
/// all sides, and the spot.
struct Look {
    using Numbers = std::array<double, 3>;

    unsigned int background = 0x1B2233;
    unsigned int color = 0xE08A3C;
    unsigned int highlight = 0x808080;
    double shininess = 40;
    unsigned int ambient = 0x262A33;
    Numbers sun = {-0.5, -1, -0.8};
    unsigned int sunColor = 0xB8B0A0;
    std::optional<Numbers> lamp;  ///< by default on the left, in front of the mesh
    unsigned int lampColor = 0x4068A0;
    std::optional<Numbers> spot;        ///< by default above the mesh
    std::optional<Numbers> spotTarget;  ///< by default the middle of the mesh
    unsigned int spotColor = 0x604030;
    std::array<double, 2> spotCone = {30, 50};  ///< in degrees

    void AddTo(CLI::App& app);
    Material MakeMaterial() const;
    /// Throws an Error for an option that makes no light. The box is the mesh's.
    std::vector<Light> MakeLights(vertra::AABBox3D<double> const& box) const;
};

}  // namespace example
