#pragma once

#include "common/mesh.h"

#include <vertra/foundation/tree.h>
#include <vertra/solid/aabbox3d.h>
#include <vertra/transform/matrix3d.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace example {

/// A node of the scene, whose parent and children are Nodes as well.
class Node : public keel::SmartTreeVector {
public:
    std::string name;
    std::string mesh;                   ///< as the scene names its file; empty for none
    vertra::Matrix3D<double> toParent;  ///< from the node's own space to its parent's
    vertra::Matrix3D<double> toWorld;   ///< from the node's own space to that of the whole scene
    vertra::AABBox3D<double> box;       ///< in the world, around the box of the mesh; reset without one
    int level = 0;                      ///< how many nodes are above it

    explicit Node(Node* parent_) : SmartTreeVector(parent_) {}
    Node* GetParent() const { return static_cast<Node*>(SmartTreeVector::GetParent()); }
};

struct Scene {
    std::unique_ptr<Node> root;
    std::vector<Node*> nodes;            ///< the whole tree, each node before its children
    std::map<std::string, Mesh> meshes;  ///< at least one, by the names that the nodes have for them
    vertra::AABBox3D<double> box;        ///< around the boxes of the nodes
};

/// Reads a scene and its meshes, and places them in the world. Throws an Error that names the file, and the
/// line or the node. The format:
///
///     {
///         "root": "table",
///         "nodes": {
///             "table": {"children": ["top", "vase"]},
///             "top":   {"mesh": "slab.obj", "scale": [2, 0.1, 1]},
///             "vase":  {"mesh": "vase.obj", "translate": [0.5, 0.1, 0], "rotate": [0, 45, 0]}
///         }
///     }
///
/// "root" and "nodes" are all that there is, and every node is below the root, in one place. All fields of a
/// node may be left out:
///
///     "mesh"       a Wavefront OBJ file, looked up from the directory of the scene
///     "scale"      by x, y and z; what acts first on a point
///     "rotate"     pitch about x, yaw about y, roll about z, in degrees: the roll acts first, the yaw last
///     "translate"  by x, y and z; what acts last
///     "matrix"     in place of these three, sixteen numbers as `Matrix3D` has them: the translation is 12 to
///                  14, and 3, 7, 11 and 15 are 0, 0, 0 and 1
///     "children"   the names of nodes, whose world this node carries along
///
/// No number is beyond 1e9, neither here nor in the world. A tree has at most 5000 levels.
Scene LoadScene(std::string const& path);

}  // namespace example
