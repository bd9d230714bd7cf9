#pragma once

#include "common/camera.h"

#include <CLI/CLI.hpp>

#include <array>
#include <optional>
#include <string>

namespace example {

/// What the option holds. Throws an Error that names it unless all are numbers up to kFarthest.
vertra::Vec4D<double> Point(std::string const& option, std::array<double, 3> const& p);

/// What the examples take in common: a mesh, the size of its picture, and where it is seen from.
struct Options {
    std::string file;  ///< by default the mesh that comes with the examples
    std::array<int, 2> size = {800, 600};
    std::optional<std::array<double, 3>> eye;     ///< by default one that frames the mesh
    std::optional<std::array<double, 3>> target;  ///< by default the middle of the mesh
    std::array<double, 2> orbit = {0, 0};         ///< yaw and pitch in degrees, by which the eye is turned

    void AddTo(CLI::App& app);
    /// Throws an Error for an eye and a target that do not make a view. aspect is width over height.
    Camera MakeCamera(vertra::AABBox3D<double> const& box, double aspect) const;
};

}  // namespace example
