#include "../support.h"

#include <vertra/foundation/blowfish.h>
#include <vertra/foundation/registry_section.h>
#include <vertra/foundation/tree.h>

// The size of every type and the order of its fields: what a caller that was compiled with one version of the
// library relies on in the next.

namespace {

using namespace support;
using namespace keel;

/// Pointers are half as long there, and a double may lie at half of its size.
constexpr bool is_32_bit = sizeof(void*) == 4;

/// Scalars are all there is in these shapes.
template <std::size_t count, template <class> class... Shapes>
concept AreScalars = ((sizeof(Shapes<float>) == 4 * count && sizeof(Shapes<double>) == 8 * count) && ...);
static_assert(AreScalars<2, Vec2D, Position2D, Dimension2D> && AreScalars<3, Vec3D> &&
              AreScalars<4, Vec4D, Color3D, Quat3D, Rect2D> && AreScalars<5, Plane3D, Sphere3D, BSphere3D> &&
              AreScalars<8, Line3D, AABBox3D> && AreScalars<12, Triangle3D> &&
              AreScalars<16, Matrix3D, Quad3D>);
// And with a flag or a type, which is as long as one, or with pointers.
static_assert(is_32_bit || (AreScalars<7, Line2D> && AreScalars<28, Light3D> &&
                            sizeof(Material3D<float>) == 136 && sizeof(Material3D<double>) == 208));

template <class F>
std::uintptr_t Place(F const& field) {
    if constexpr (requires { field.name; }) return reinterpret_cast<std::uintptr_t>(&field.value);
    return reinterpret_cast<std::uintptr_t>(&field);
}

TYPED_TEST(FloatAndDouble, FieldsKeepTheirOrder) {
    using T = TypeParam;
    auto const ascend = [](auto const& tuple) {
        return std::apply(
            [](auto const&... fields) {
                return std::ranges::is_sorted(std::array{Place(fields)...}, std::less_equal());
            },
            tuple);
    };
    auto const check = [&](auto const&... shapes) { return (ascend(detail::Fields(shapes)) && ...); };
    Line2D<T> const l;
    EXPECT_TRUE(check(Vec4D<T>(), Vec3D<T>(), Vec2D<T>(), Position2D<T>(), Dimension2D<T>(), Color3D<T>(),
                      Quat3D<T>(), Line3D<T>(), Plane3D<T>(), AABBox3D<T>(), Sphere3D<T>(), BSphere3D<T>(),
                      Triangle3D<T>(), Quad3D<T>(), Rect2D<T>(), Light3D<T>(), Material3D<T>()) &&
                ascend(std::tie(l.start, l.end, l.normal, l.normalValid)));
}

// Of the foundation, in pointers, with the containers of libstdc++.
template <std::size_t size, class... Types>
concept AreLong = ((sizeof(Types) == size * sizeof(void*)) && ...);
static_assert(is_32_bit ||
              (AreLong<1, Base, IBuffer, ISoftwareBuffer, IService, IEncrypterDecrypter> &&
               AreLong<6, TreeVector, TreeList, SmartTreeVector, SmartTreeList> && AreLong<16, TreeDeque> &&
               AreLong<2, SmartPtr<Base>> && sizeof(SmartPtr<Base>::Counter) == 4 &&
               AreLong<12, CRegistrySection> && AreLong<525, CBlowFishEncrypterDecrypter>));

}  // namespace
