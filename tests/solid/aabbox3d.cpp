#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, AABBox3DEdgesAndProperties) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using B = AABBox3D<T>;
    T const m = std::numeric_limits<float>::max(), contact = T(0.0001), more = 1 + std::ldexp(T(1), -20);
    B const empty, big(V(2, 4, 8, 9), V(10, 16, 20, 9)), small(3, 5, 9, 9, 15, 19), cube(-1, -1, -1, 1, 1, 1);
    B const twos(-1, -2, -4, 1, 2, 4);  // the normals of its faces are exact
    B box, other;
    V corners[8], p, out[] = {V(-1, 0, 0), V(0, 0, -1), V(0, -1, 0), V(1, 0, 0), V(0, 0, 1), V(0, 1, 0)};
    Plane3D<T> plane, planes[6];
    static_assert(B().Add(1, 5, 3) == B(1, 5, 3, 1, 5, 3));
    ExpectCopyAssignmentAndEquality<B>();
    ExpectNear(0, "fits", empty, B(m, m, m, -m, -m, -m), B().Add(1, 2, 3), B(1, 2, 3, 1, 2, 3),
               B(big).Add(empty), B(-m, -m, -m, m, m, m), B(small).Add(big), big,
               B(big).Add(kNaN<T>, 0, kNaN<T>), B(2, 0, 8, 10, 16, 20), B(3, 0, 5, 1, 2, 4).Repair(),
               B(1, 0, 4, 3, 2, 5));
    ExpectNear(0, "weights", GetInterpolatedBoundingBox(big, small, 0.25),
               B(2.75, 4.75, 8.75, 9.25, 15.25, 19.25), GetInterpolatedBoundingBox(big, small, 2),
               B(1, 3, 7, 11, 17, 21));
    ExpectNear(0, "no extent", B().Add(1, 2, 3).IsEmpty(), 1, empty.IsEmpty(), 0,
               big.Intersects(V(), V(5, 5, 9)), 0, big.Intersects(V(10, 16, 20), V(), 1), 1);
    for (V& corner : corners) corner.w = 7;
    for (auto& face : planes) face.normal.w = 7;
    box.min.w = 8, box.max.w = 7;
    box.Reset(1, 2, 3);
    EXPECT_TRUE(box.Repair().min == V(1, 2, 3, 8) && box.max == V(1, 2, 3, 7) &&
                box.Reset().min == V(m, m, m, 8));
    big.GetEdges(corners).GetFacePlanes(planes);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(corners[i], V(i & 4 ? 10 : 2, i & 1 ? 16 : 4, i & 2 ? 20 : 8, 7)) << i;
    for (int i = 0; i < 6; ++i)
        ExpectNear(kRootRounding, i, planes[i].normal, V(out[i], 7), planes[i].distance,
                   -(out[i] * (i < 3 ? big.min : big.max)));
    for (int i = 0; i < 24; ++i) {
        auto const hit = [&](V c, V d, T h) { return cube.Intersects(Image(c, i), Image(d, i), h); };
        ExpectNear(0, i, hit(V(1 + more, 1, 0.5), V(1, 0, 0), more), 1,
                   hit(V(1 + more, 1, 0.5), V(1, 0, 0), 1), 0, hit(V(1, 1, 0.5), V(1, -1, 0), 9), 1,
                   hit(V(1, more, 0.5), V(1, -1, 0), 9), 0, B(Image(V(contact, 0, 0), i), V()).IsEmpty(),
                   int(double(contact) < 0.0001), B(V(), Image(V(2 * contact, 0, 0), i)).IsEmpty(), 0);
    }

    Random<T> halves{2}, steps{1};
    for (int i = 0; i < 5000; ++i) {
        halves.Fill(box, other, plane, p);
        V const d = Image(V{std::exp2(steps()), std::exp2(steps()), std::exp2(steps())}, i % 24);
        auto const low = Glm(box.Repair().min), high = Glm(box.max), at = Glm(p),
                   closest = glm::clamp(at, low, high);
        int positive = 0;
        box.GetEdges(corners);
        for (V const& corner : corners) positive += plane.Distance(V(corner)) > 0;
        ExpectNear(
            0, Inputs(box, other, p, plane, d), twos.Intersects(d, p), twos.Intersects(p, d, 1000),
            box.GetClosestPoint(p), closest, box.IsInside(p), int(at == closest), box.IsTotallyInside(p),
            int(glm::all(glm::lessThan(low, at)) && glm::all(glm::lessThan(at, high))), box.IsInside(other),
            box.IsInside(other.min) & box.IsInside(other.max), box.IsTotallyInside(other),
            box.IsTotallyInside(other.min) & box.IsTotallyInside(other.max), box.Intersects(other),
            int(other.max >= box.min) & int(box.max >= other.min), box.Center(), (low + high) / T(2),
            box.GetExtent(), high - low, B(box).Add(p), B(Lo(box.min, p), Hi(box.max, p)),
            int(box.ClassifyPlane(plane)), positive == 8 ? 0 : (positive == 0 ? 1 : 4));
    }
}
