#pragma once

#include "common/mesh.h"
#include "render/light.h"
#include "render/tree.h"

#include <vertra/solid/line3d.h>

#include <vector>

namespace example {

/// A mesh under lights.
class Scene {
public:
    Scene(Mesh mesh, bool isFlat, Material const& material, std::vector<Light> lights,
          Color const& background);

    /// The colour in which the start of the segment sees whatever the segment meets first.
    Color See(vertra::Line3D<double> const& sight) const;

private:
    Mesh mesh_;
    Tree tree_;
    std::vector<vertra::Vec4D<double>> normals_;  // of the vertices; none where faces are flat
    Material material_;
    std::vector<Light> lights_;
    Color background_;

    vertra::Vec4D<double> NormalAt(Tree::Hit const& hit) const;
};

}  // namespace example
