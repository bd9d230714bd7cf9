#include <vertra/foundation/registry_section.h>
#include <vertra/foundation/tree.h>
#include <vertra/vertra.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>

// The size of every type and where its fields lie, under every flag: what a caller that was compiled with one
// version of the library relies on in the next.

namespace {

using namespace vertra;
using Numbers = std::initializer_list<std::size_t>;

/// Whether the bytes are so many units.
constexpr bool Are(Numbers bytes, std::size_t unit, Numbers units) {
    auto const same = [=](std::size_t b, std::size_t u) { return b == u * unit; };
    return std::ranges::equal(bytes, units, same);
}

/// A pointer is half as long there, and a double may lie at half of its size.
constexpr bool is_32_bit = sizeof(void*) == 4;

template <class T>
constexpr bool KeepsItsLayout() {
    constexpr std::size_t s = sizeof(T);
    static_assert(Are({sizeof(Vec4D<T>), offsetof(Vec4D<T>, x), offsetof(Vec4D<T>, y), offsetof(Vec4D<T>, z),
                       offsetof(Vec4D<T>, w)},
                      s, {4, 0, 1, 2, 3}));
    static_assert(Are({sizeof(Vec3D<T>), offsetof(Vec3D<T>, x), offsetof(Vec3D<T>, y), offsetof(Vec3D<T>, z)},
                      s, {3, 0, 1, 2}));
    static_assert(Are({sizeof(Vec2D<T>), offsetof(Vec2D<T>, x), offsetof(Vec2D<T>, y)}, s, {2, 0, 1}));
    static_assert(
        Are({sizeof(Position2D<T>), offsetof(Position2D<T>, x), offsetof(Position2D<T>, y)}, s, {2, 0, 1}));
    static_assert(
        Are({sizeof(Dimension2D<T>), offsetof(Dimension2D<T>, width), offsetof(Dimension2D<T>, height)}, s,
            {2, 0, 1}));
    static_assert(Are({sizeof(Matrix3D<T>), offsetof(Matrix3D<T>, m)}, s, {16, 0}));
    static_assert(Are({sizeof(Quat3D<T>), offsetof(Quat3D<T>, w), offsetof(Quat3D<T>, x),
                       offsetof(Quat3D<T>, y), offsetof(Quat3D<T>, z)},
                      s, {4, 0, 1, 2, 3}));
    static_assert(
        Are({sizeof(Line3D<T>), offsetof(Line3D<T>, start), offsetof(Line3D<T>, end)}, s, {8, 0, 4}));
    static_assert(Are({sizeof(Plane3D<T>), offsetof(Plane3D<T>, normal), offsetof(Plane3D<T>, distance)}, s,
                      {5, 0, 4}));
    static_assert(
        Are({sizeof(AABBox3D<T>), offsetof(AABBox3D<T>, min), offsetof(AABBox3D<T>, max)}, s, {8, 0, 4}));
    static_assert(Are({sizeof(Sphere3D<T>), offsetof(Sphere3D<T>, center), offsetof(Sphere3D<T>, radius)}, s,
                      {5, 0, 4}));
    static_assert(Are({sizeof(BSphere3D<T>), offsetof(BSphere3D<T>, center), offsetof(BSphere3D<T>, radius)},
                      s, {5, 0, 4}));
    static_assert(Are({sizeof(Triangle3D<T>), offsetof(Triangle3D<T>, vertex)}, s, {12, 0}));
    static_assert(Are({sizeof(Quad3D<T>), offsetof(Quad3D<T>, vertex)}, s, {16, 0}));
    static_assert(Are({sizeof(Rect2D<T>), offsetof(Rect2D<T>, topLeft), offsetof(Rect2D<T>, bottomRight)}, s,
                      {4, 0, 2}));
    static_assert(is_32_bit || Are({sizeof(Line2D<T>), offsetof(Line2D<T>, start), offsetof(Line2D<T>, end),
                                    offsetof(Line2D<T>, normal), offsetof(Line2D<T>, normalValid)},
                                   s, {7, 0, 2, 4, 6}));
    static_assert(Are({sizeof(Color3D<T>), offsetof(Color3D<T>, r), offsetof(Color3D<T>, g),
                       offsetof(Color3D<T>, b), offsetof(Color3D<T>, a)},
                      s, {4, 0, 1, 2, 3}));
    static_assert(
        is_32_bit ||
        Are({sizeof(Light3D<T>), offsetof(Light3D<T>, type), offsetof(Light3D<T>, diffuse),
             offsetof(Light3D<T>, specular), offsetof(Light3D<T>, ambient), offsetof(Light3D<T>, direction),
             offsetof(Light3D<T>, position), offsetof(Light3D<T>, range), offsetof(Light3D<T>, falloff),
             offsetof(Light3D<T>, attenuation0), offsetof(Light3D<T>, attenuation1),
             offsetof(Light3D<T>, attenuation2), offsetof(Light3D<T>, theta), offsetof(Light3D<T>, phi)},
            s, {28, 0, 1, 5, 9, 13, 17, 21, 22, 23, 24, 25, 26, 27}));
    static_assert(is_32_bit || Are({sizeof(Material3D<T>), offsetof(Material3D<T>, diffuse),
                                    offsetof(Material3D<T>, ambient), offsetof(Material3D<T>, specular),
                                    offsetof(Material3D<T>, emissive), offsetof(Material3D<T>, power),
                                    offsetof(Material3D<T>, texture1), offsetof(Material3D<T>, texture2),
                                    offsetof(Material3D<T>, type), offsetof(Material3D<T>, typeParam),
                                    offsetof(Material3D<T>, flag1), offsetof(Material3D<T>, flag9)},
                                   1,
                                   s == 4 ? Numbers{136, 0, 16, 32, 48, 64, 72, 80, 88, 92, 96, 128}
                                          : Numbers{208, 0, 32, 64, 96, 128, 136, 144, 152, 160, 168, 200}));
    return true;
}
static_assert(KeepsItsLayout<float>() && KeepsItsLayout<double>());

// Of the foundation, with the containers of libstdc++.
static_assert(is_32_bit ||
              Are({sizeof(keel::Base), sizeof(keel::IBuffer), sizeof(keel::ISoftwareBuffer),
                   sizeof(keel::IService), sizeof(keel::IEncrypterDecrypter),
                   sizeof(keel::SmartPtr<keel::Base>), sizeof(keel::TreeVector), sizeof(keel::TreeList),
                   sizeof(keel::TreeDeque), sizeof(keel::SmartTreeVector), sizeof(keel::SmartTreeList),
                   sizeof(keel::CRegistrySection), sizeof(keel::CBlowFishEncrypterDecrypter)},
                  8, {1, 1, 1, 1, 1, 2, 6, 6, 16, 6, 6, 12, 525}));

}  // namespace
