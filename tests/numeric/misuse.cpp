#include "../support.h"

#include <iostream>

// What must not compile. A type with an array view converts to a pointer, a colour to an integer as well, and
// neither stands in for an operator or a constructor that the type does not have.
namespace {

using namespace support;
using N = std::nullptr_t;

template <class V, class... Us>
constexpr bool kAlone = (Refuse<V&, Us, std::plus<>, std::minus<>, std::bit_or<>, std::equal_to<>,
                                std::not_equal_to<>, std::less<>, std::greater_equal<>> &&
                         ...) &&
                        Refuse<V&, int, std::plus<>, std::minus<>, std::modulus<>, std::bit_and<>,
                               std::logical_or<>>&& Refuse<V&, double, std::plus<>, std::minus<>>;
template <class V, class... Us>
constexpr bool kNoSource = ((!std::constructible_from<V, Us> && !std::is_assignable_v<V&, Us>)&&...);
// Assignment hands on a constant, except in a few types.
template <class... Vs>
concept YieldConstant = (std::same_as<decltype(std::declval<Vs&>() = std::declval<Vs const&>()), Vs const&> &&
                         ...);

template <class T, class O, class V3 = Vec3D<T>, class V4 = Vec4D<T>, class M = Matrix3D<T>,
          class C = Color3D<T>, class Q = Quat3D<T>, class V = Vec2D<T>, class P = Position2D<T>>
struct Refusals {
    static_assert(YieldConstant<V, V3, V4, M, C, Q, Line3D<T>, Plane3D<T>, AABBox3D<T>, Sphere3D<T>,
                                BSphere3D<T>, Triangle3D<T>, Rect2D<T>, Light3D<T>> &&
                  !YieldConstant<P> && !YieldConstant<Dimension2D<T>> && !YieldConstant<Line2D<T>> &&
                  !YieldConstant<Quad3D<T>> && !YieldConstant<Material3D<T>>);
    static C c;
    static M m;
    static V4 v4;
    static_assert(kAlone<V3, N, T*, V4, M, C, Vec3D<O>> && kAlone<V4, N, T*, V3, M, C, Vec4D<O>> &&
                  kAlone<M, N, T*, V3, V4, C, Matrix3D<O>> && kAlone<C, N, T*, V3, V4, M, Color3D<O>>);
    static_assert(kNoSource<V3, N, M, C, Vec3D<O>, Vec4D<O>> && kNoSource<V4, N, M, C, Vec3D<O>, Vec4D<O>> &&
                  kNoSource<M, N, V3, V4, C, Matrix3D<O>> && kNoSource<C, N, T, O, V3, V4, M, Color3D<O>> &&
                  kNoSource<V, N, V4, C, P> && kNoSource<Q, N, T, V3, V4, C, Quat3D<O>> &&
                  kNoSource<P, N, T, T const&, V4, C, V> && kNoSource<Dimension2D<T>, T*, V, P> &&
                  kNoSource<int, C&, C const&> && !std::constructible_from<bool, V3&> &&
                  !std::constructible_from<bool, V4&> && !std::constructible_from<bool, M&> &&
                  !std::convertible_to<V4 const&, T*>);
    static_assert(Refuse<M, M, std::equal_to<>, std::less<>> && Refuse<M, T, std::equal_to<>, std::less<>> &&
                  Refuse<C, C const, std::less<>, std::bit_and<>> &&
                  Refuse<C, T, std::equal_to<>, std::less<>> &&
                  Refuse<C, unsigned, std::equal_to<>, std::less<>> && Refuse<V3, V3, std::divides<>>);
    static_assert(
        !requires { -c; } && !requires { +c; } && !requires { ~c; } && !requires { !c; } &&
        !requires { c << 1; } && !requires { std::wcout << c; } && !requires { c *= 0.5; } &&
        !requires { !m; } && !requires { +m; } && !requires { m = 0; } && !requires { m[0] = T(0); } &&
        !requires { v4 = 0; } && !requires { V3(0); } && !requires { Q(0); } && !requires { P(0); });
};
template struct Refusals<float, double>;
template struct Refusals<double, float>;

}  // namespace
