#include <vertra/foundation/tree.h>
#include <vertra/vertra.h>

using namespace vertra;
using namespace keel;

struct Counted : TreeVector {
    using TreeVector::TreeVector;
    int count = 7;
};

void Stop() {}

/// What a debugger is to show of these, by their names, stands in shown.txt.
int main() {
    Vec4D<float> const v(1, -0.1F, 1e20F, 4);
    Dimension2D<float> const d(3e38F, 1 / 3.0F);
    Line2D<float> const flat;
    Rect2D<float> const rectangle(1, 2, 3, 4);
    Line3D<double> const line;
    Matrix3D<float> const m;
    Quat3D<float> const zero;
    Quat3D<double> const q(0, 0, -1, 1);
    Color3D<float> const orange(1, 0.5F, 0, -0.1F);
    Plane3D<float> const plane;
    AABBox3D<double> const box(0, 0, 0, 1, 2, 3);
    AABBox3D<float> const reset;
    SmartPtr<SmartTreeList> const null;
    SmartPtr<SmartTreeList> const root(new SmartTreeList(nullptr));
    SmartPtr<SmartTreeList> const child(*(new SmartTreeList(root.Get()))->GetParent()->begin());
    Counted top(nullptr);
    Counted const low(&top);
    Stop();
}
