#include "../support.h"

#include <vertra/foundation/blowfish.h>
#include <vertra/foundation/registry_section.h>
#include <vertra/foundation/tree.h>

// The size of every type and where its fields lie: what a caller that was compiled with one version of the
// library relies on in the next.

namespace {

using namespace support;
using namespace keel;

/// Pointers are half as long there, and a double may lie at half of its size.
constexpr bool is_32_bit = sizeof(void*) == 4;

/// The fields are all there is in S, in this order, each as near to the one before as its type allows.
template <class S, std::size_t size, class Owner, class... Fields>
void ExpectLayout(Fields Owner::*... fields) {
    static_assert(is_32_bit || sizeof(S) == size);
    S const object;
    auto const* const start = reinterpret_cast<char const*>(&object);
    std::ptrdiff_t end = 0;
    auto const follows = [&]<class F>(F const& field) {
        constexpr std::ptrdiff_t alignment = alignof(F);
        std::ptrdiff_t const at = reinterpret_cast<char const*>(&field) - start;
        bool const near = at == (end + alignment - 1) / alignment * alignment;
        end = reinterpret_cast<char const*>(&field + 1) - start;
        return near;
    };
    EXPECT_TRUE((follows(object.*fields) && ...)) << typeid(S).name();
}

TYPED_TEST(FloatAndDouble, FieldsKeepTheirPlaces) {
    using T = TypeParam;
    using V4 = Vec4D<T>;
    using L2 = Line2D<T>;
    using Q = Quat3D<T>;
    using C = Color3D<T>;
    using L = Light3D<T>;
    using M = Material3D<T>;
    constexpr std::size_t s = sizeof(T);
    ExpectLayout<V4, 4 * s>(&V4::x, &V4::y, &V4::z, &V4::w);
    ExpectLayout<Vec3D<T>, 3 * s>(&Vec3D<T>::x, &Vec3D<T>::y, &Vec3D<T>::z);
    ExpectLayout<Vec2D<T>, 2 * s>(&Vec2D<T>::x, &Vec2D<T>::y);
    ExpectLayout<Position2D<T>, 2 * s>(&Position2D<T>::x, &Position2D<T>::y);
    ExpectLayout<Dimension2D<T>, 2 * s>(&Dimension2D<T>::width, &Dimension2D<T>::height);
    ExpectLayout<Matrix3D<T>, 16 * s>(&Matrix3D<T>::m);
    ExpectLayout<Q, 4 * s>(&Q::w, &Q::x, &Q::y, &Q::z);
    ExpectLayout<Line3D<T>, 8 * s>(&Line3D<T>::start, &Line3D<T>::end);
    ExpectLayout<Plane3D<T>, 5 * s>(&Plane3D<T>::normal, &Plane3D<T>::distance);
    ExpectLayout<AABBox3D<T>, 8 * s>(&AABBox3D<T>::min, &AABBox3D<T>::max);
    ExpectLayout<Sphere3D<T>, 5 * s>(&Sphere3D<T>::center, &Sphere3D<T>::radius);
    ExpectLayout<BSphere3D<T>, 5 * s>(&BSphere3D<T>::center, &BSphere3D<T>::radius);
    ExpectLayout<Triangle3D<T>, 12 * s>(&Triangle3D<T>::vertex);
    ExpectLayout<Quad3D<T>, 16 * s>(&Quad3D<T>::vertex);
    ExpectLayout<Rect2D<T>, 4 * s>(&Rect2D<T>::topLeft, &Rect2D<T>::bottomRight);
    ExpectLayout<L2, 7 * s>(&L2::start, &L2::end, &L2::normal, &L2::normalValid);
    ExpectLayout<C, 4 * s>(&C::r, &C::g, &C::b, &C::a);
    ExpectLayout<L, 28 * s>(&L::type, &L::diffuse, &L::specular, &L::ambient, &L::direction, &L::position,
                            &L::range, &L::falloff, &L::attenuation0, &L::attenuation1, &L::attenuation2,
                            &L::theta, &L::phi);
    ExpectLayout<M, s == 4 ? 136 : 208>(&M::diffuse, &M::ambient, &M::specular, &M::emissive, &M::power,
                                        &M::texture1, &M::texture2, &M::type, &M::typeParam, &M::flag1,
                                        &M::flag2, &M::flag3, &M::flag4, &M::flag5, &M::flag6, &M::flag7,
                                        &M::flag8, &M::flag9);
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
