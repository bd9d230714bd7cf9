#pragma once

#include "render/light.h"

#include <vertra/solid/aabbox3d.h>

#include <CLI/CLI.hpp>

#include <array>
#include <optional>
#include <vector>

namespace example {

/// The options of colour and light. Three lights shine: the sun, far away, the lamp, to all sides, and the
/// spot.
struct Look {
    using Numbers = std::array<double, 3>;

    Color background = 0xFF1B2233U;
    Color color = 0xFFE08A3CU;
    Color highlight = 0xFF808080U;
    double shininess = 40;
    Color ambient = 0xFF262A33U;
    Numbers sun = {-0.5, -1, -0.8};
    Color sunColor = 0xFFB8B0A0U;
    std::optional<Numbers> lamp;  ///< by default on the left, in front of the mesh
    Color lampColor = 0xFF4068A0U;
    std::optional<Numbers> spot;        ///< by default above the mesh
    std::optional<Numbers> spotTarget;  ///< by default the middle of the mesh
    Color spotColor = 0xFF604030U;
    std::array<double, 2> spotCone = {30, 50};  ///< in degrees

    void AddTo(CLI::App& app);
    Material MakeMaterial() const;
    /// Throws an Error for an option that makes no light. The box is the mesh's.
    std::vector<Light> MakeLights(vertra::AABBox3D<double> const& box) const;
};

}  // namespace example
