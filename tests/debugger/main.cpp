#include <vertra/foundation/tree.h>
#include <vertra/vertra.h>

using namespace vertra;
using namespace keel;
using Node = SmartTreeList;
using Pointer = SmartPtr<Node>;

struct Counted : TreeVector {
    using TreeVector::TreeVector;
    int n = 7;
};

void Stop() {}

/// Beside each object what a debugger is to show of it.
int main() {
    Vec4D<float> const v(1, -0.1F, 1e20F, 4);     // (1, -0.1, 1e+20, 4)
    Dimension2D<float> const d(3e38F, 1 / 3.0F);  // (3e+38, 0.33333334)
    Line2D<float> const flat;  // {start = (0, 0), end = (0, 0), normal = (0, 0), normalValid = 0}
    Rect2D<float> const rectangle(1, 2, 3, 4);  // {topLeft = (1, 2), bottomRight = (3, 4)}
    Line3D<double> const line;                  // {start = (0, 0, 0, 0), end = (1, 1, 1, 0)}
    Matrix3D<float> m;  // rows = {0 = (1, 0, 0, 0), 1 = (0, 1, 0, 0), 2 = (0, 0, 1, 0), 3 = (0, 0, 0, 1)}
    Quat3D<float> const zero;                        // (w: 0, x: 0, y: 0, z: 0), no rotation
    Quat3D<double> const q(0, 0, -1, 1);             // (w: 1, x: 0, y: 0, z: -1), 1.5708 rad about (0, 0, -1)
    Color3D<float> const orange(1, 0.5F, 0, -0.1F);  // #E7FF7F00 (1, 0.5, 0, -0.1)
    Plane3D<float> const plane;                      // normal (0, 1, 0, 0), distance 0
    AABBox3D<double> b(0, 0, 0, 1, 2, 3);  // extent (1, 2, 3) = {min = (0, 0, 0, 0), max = (1, 2, 3, 0)}
    AABBox3D<float> const none(1, 1, 1, 2, 0, 2);  // empty = {min = (1, 1, 1, 0), max = (2, 0, 2, 0)}
    Pointer const null;                            // empty
    Pointer const root(new Node(nullptr));  // 1 shared = {object = root = {0 = 2 shared = {object = child}}}
    Pointer const child(*(new Node(root.Get()))->parent->begin());  // 2 shared = {object = child}
    Counted top(nullptr);  // {<keel::TreeVector> = root = {0 = {<keel::TreeVector> = child, n = 7}}, n = 7}
    Counted const low(&top);  // {<keel::TreeVector> = child, n = 7}
    Stop();
}
