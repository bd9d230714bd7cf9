#pragma once

#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/bsphere3d.h>
#include <vertra/solid/triangle3d.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace example {

/// No coordinate lies farther out, and no mesh or distance is smaller than its reciprocal: then the squares
/// of lengths and areas stay within the range of float, through which `Len` and `Normalize` pass.
inline constexpr double kFarthest = 1e9;

struct Mesh {
    std::size_t vertices = 0;                           ///< how many the file holds, used or not
    std::vector<vertra::Triangle3D<double>> triangles;  ///< at least one
    std::vector<std::array<std::size_t, 3>> corners;    ///< their vertices' numbers in the file, from 0
    vertra::AABBox3D<double> box;                       ///< around the triangles
    vertra::BSphere3D<double> sphere;                   ///< around the box
};

/// The polygons of a Wavefront OBJ file as triangles, in the order of the file. Throws an Error that names
/// the file and the line, unless all coordinates are numbers up to kFarthest and all faces polygons of
/// vertices above them.
Mesh LoadMesh(std::string const& path);

}  // namespace example
