#include "../support.h"

namespace {

using namespace vertra;
using namespace support;

template <class T>
class AABBox3DTest : public testing::Test {};
TYPED_TEST_SUITE(AABBox3DTest, FloatAndDouble);

TYPED_TEST(AABBox3DTest, EdgesOfEachOperation) {
    using T = TypeParam;
    using V = Vec4D<T>;
    using B = AABBox3D<T>;
    T const m = std::numeric_limits<float>::max(), contact = T(0.0001), more = 1 + std::ldexp(T(1), -20),
            inf = kInfinity<T>;
    B const reset, box(V(2, 4, 8, 9), V(10, 16, 20, 9)), small(3, 5, 9, 9, 15, 19), cube(-1, -1, -1, 1, 1, 1);
    V corners[8], out[] = {V(-1, 0, 0), V(0, 0, -1), V(0, -1, 0), V(1, 0, 0), V(0, 0, 1), V(0, 1, 0)};
    B kept;
    Plane3D<T> planes[6];
    static_assert(sizeof(B) == 8 * sizeof(T) && offsetof(B, max) == sizeof(V) && [] {
        B fit;
        return fit.Add(1, 5, 3), fit.Add(V(4, 0, 3)), fit == B(1, 0, 3, 4, 5, 3);
    }());
    static_assert(AllAre<B const&, decltype(kept = box), decltype(kept.Reset()), decltype(kept.Reset(V())),
                         decltype(kept.Reset(1, 2, 3)), decltype(kept.Add(1, 2, 3)), decltype(kept.Add(V())),
                         decltype(kept.Add(box)), decltype(kept.Repair())>);
    ExpectCopyAssignmentAndEquality<B>();
    ExpectNear(0, "fits", reset, B(m, m, m, -m, -m, -m), B().Add(1, 2, 3), B(1, 2, 3, 1, 2, 3),
               B(box).Add(reset), B(-m, -m, -m, m, m, m), B(small).Add(box), box,
               B(box).Add(kNaN<T>, 0, kNaN<T>), B(2, 0, 8, 10, 16, 20), B(3, 0, 5, 1, 2, 4).Repair(),
               B(1, 0, 4, 3, 2, 5));
    ExpectNear(0, "the first weighs t", GetInterpolatedBoundingBox(box, small, 0.25),
               B(2.75, 4.75, 8.75, 9.25, 15.25, 19.25), GetInterpolatedBoundingBox(box, small, 2),
               B(1, 3, 7, 11, 17, 21));
    ExpectNear(0, "boxes in boxes", box.IsInside(small) & box.IsInside(box) & box.IsTotallyInside(small), 1,
               box.IsInside(B(1, 5, 9, 9, 15, 19)) | box.IsTotallyInside(B(2, 5, 9, 9, 15, 19)), 0,
               box.IsInside(B(3, 5, 9, 9, 15, 21)) | box.IsTotallyInside(B(3, 5, 9, 9, 15, 20)), 0);
    ExpectNear(0, "no extent", B().Add(1, 2, 3).IsEmpty(), 1, reset.IsEmpty(), 0,
               box.Intersects(V(), V(5, 5, 9)), 0, box.Intersects(V(10, 16, 20), V(), 1), 1);
    kept.min.w = kept.max.w = 7;
    kept.Reset(1, 2, 3);
    EXPECT_TRUE(kept.min == V(1, 2, 3, 7) && kept.max == kept.min && kept.Reset().min == V(m, m, m, 7) &&
                kept.max.w == 7);
    for (int i = 0; i < 8; ++i) {
        int const axis = i / 2, high = i % 2;
        V thin, point = box.Center(), inner(point), outer(point);
        T const bound = (high ? box.max : box.min)[axis], away = high ? inf : -inf;
        point[axis] = bound, inner[axis] = std::nextafter(bound, -away),
        outer[axis] = std::nextafter(bound, away), thin[axis] = contact;
        if (axis < 3)
            ExpectNear(0, i, box.IsInside(point), 1, box.IsTotallyInside(point), 0, box.IsInside(outer), 0,
                       box.IsTotallyInside(inner), 1, B(thin, V()).IsEmpty(), int(double(contact) < 0.0001),
                       B(V(), thin * 2).IsEmpty(), 0);
        kept = box;
        kept.min.w = kept.max.w = 0;
        T& nearest = (high ? kept.min : kept.max)[axis];
        nearest = bound;
        EXPECT_TRUE(box.Intersects(kept) & kept.Intersects(box)) << "they touch" << kept;
        nearest = outer[axis];
        EXPECT_FALSE(box.Intersects(kept) | kept.Intersects(box)) << "they do not" << kept;
    }
    for (V& corner : corners) corner.w = 7;
    for (auto& plane : planes) plane.normal.w = 7;
    box.GetEdges(corners).GetFacePlanes(planes);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(corners[i], V(i & 4 ? 10 : 2, i & 1 ? 16 : 4, i & 2 ? 20 : 8, 7)) << i;
    for (int i = 0; i < 6; ++i)
        ExpectNear(kRootRounding, i, planes[i].normal, V(out[i], 7), planes[i].distance,
                   -(out[i] * (i < 3 ? box.min : box.max)));
    for (int i = 0; i < 24; ++i) {
        auto const touches = [&](V const& middle, V const& along, T half) {
            return cube.Intersects(Image(middle, i), Image(along, i), half);
        };
        ExpectNear(0, i, touches(V(1 + more, 1, 0.5), V(1, 0, 0), more), 1,
                   touches(V(1 + more, 1, 0.5), V(1, 0, 0), 1), 0, touches(V(1, 1, 0.5), V(1, -1, 0), 9), 1,
                   touches(V(1, more, 0.5), V(1, -1, 0), 9), 0);
    }
}

TYPED_TEST(AABBox3DTest, PropertiesOfRandomBoxes) {
    using T = TypeParam;
    using V = Vec4D<T>;
    Random<T> random, halves(2), steps(1);
    AABBox3D<T> box;
    AABBox3D<T> const powers(-1, -2, -4, 1, 2, 4);  // the normals of its faces are exact
    Plane3D<T> plane, planes[6];
    Line3D<T> line;
    V p, corners[8];
    for (int i = 0; i < 3000; ++i) {
        random.Fill(box, line);
        box.Repair().GetEdges(corners).GetFacePlanes(planes);
        EXPECT_TRUE(AgreesWithClipping(box.Intersects(line), box, line.start, line.end)) << box << line;
        for (V const& corner : corners)
            EXPECT_TRUE(std::ranges::all_of(planes, [&](auto const& face) {
                return face.Distance(corner) < 1e-4 && face.Distance(box.Center()) <= 0;
            })) << box;

        halves.Fill(box, plane, p);
        V const along = Image(V{std::exp2(steps()), std::exp2(steps()), std::exp2(steps())}, i % 24),
                far = along * 1000;
        EXPECT_TRUE(AgreesWithClipping(powers.Intersects(along, p), powers, p - far, p + far)) << along << p;
        auto const low = Glm(box.Repair().min), high = Glm(box.max), closest = glm::clamp(Glm(p), low, high);
        box.GetEdges(corners);
        auto const positive =
            std::ranges::count_if(corners, [&](V const& corner) { return plane.Distance(corner) > 0; });
        ExpectNear(0, Inputs(box, p, plane), box.GetClosestPoint(p), closest, box.IsInside(p),
                   int(Glm(p) == closest), box.Center(), (low + high) / T(2), box.GetExtent(), high - low,
                   box.ClassifyPlane(plane),
                   positive == 8   ? EIR_BEHIND
                   : positive == 0 ? EIR_IN_FRONT
                                   : EIR_CUT);
    }
}

}  // namespace
