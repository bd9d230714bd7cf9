#pragma once

#include <vertra/vertra.h>

#include <string_view>
#include <tuple>
#include <utility>

/// What every header of this folder goes by: each type as a tuple of its fields, in their order in memory.
namespace vertra::detail {

/// A field that is better told by its name than by its place. It refers: a copy of a vector would lose its w.
template <class F>
struct Named {
    std::string_view name;
    F const& value;
    constexpr Named(std::string_view name_, F const& value_) : name(name_), value(value_) {}
};

template <class T>
constexpr auto Fields(Vec4D<T> const& v) {
    return std::tie(v.x, v.y, v.z, v.w);
}
template <class T>
constexpr auto Fields(Vec3D<T> const& v) {
    return std::tie(v.x, v.y, v.z);
}
template <class T>
constexpr auto Fields(Vec2D<T> const& v) {
    return std::tie(v.x, v.y);
}
template <class T>
constexpr auto Fields(Position2D<T> const& p) {
    return std::tie(p.x, p.y);
}
template <class T>
constexpr auto Fields(Dimension2D<T> const& d) {
    return std::tie(d.width, d.height);
}
/// The rows.
template <class T>
constexpr auto Fields(Matrix3D<T> const& a) {
    auto const row = [&m = a.m](int e) { return std::tie(m[e], m[e + 1], m[e + 2], m[e + 3]); };
    return std::tuple(row(0), row(4), row(8), row(12));
}
template <class T>
constexpr auto Fields(Quat3D<T> const& q) {
    return std::tuple(Named("w", q.w), Named("x", q.x), Named("y", q.y), Named("z", q.z));
}
template <class T>
constexpr auto Fields(Line3D<T> const& l) {
    return std::tuple(Named("start", l.start), Named("end", l.end));
}
template <class T>
constexpr auto Fields(Plane3D<T> const& p) {
    return std::tuple(Named("normal", p.normal), Named("distance", p.distance));
}
template <class T>
constexpr auto Fields(AABBox3D<T> const& b) {
    return std::tuple(Named("min", b.min), Named("max", b.max));
}
/// A bounding sphere is one of these too.
template <class T>
constexpr auto Fields(Sphere3D<T> const& s) {
    return std::tuple(Named("center", s.center), Named("radius", s.radius));
}
template <class T>
constexpr auto Fields(Triangle3D<T> const& t) {
    return std::tie(t.vertex[0], t.vertex[1], t.vertex[2]);
}
template <class T>
constexpr auto Fields(Quad3D<T> const& q) {
    return std::tie(q.vertex[0], q.vertex[1], q.vertex[2], q.vertex[3]);
}
template <class T>
constexpr auto Fields(Rect2D<T> const& r) {
    return std::tuple(Named("topLeft", r.topLeft), Named("bottomRight", r.bottomRight));
}
/// The points, and not the normal that is kept beside them.
template <class T>
constexpr auto Fields(Line2D<T> const& l) {
    return std::tuple(Named("start", l.start), Named("end", l.end));
}
template <class T>
constexpr auto Fields(Color3D<T> const& c) {
    return std::tie(c.r, c.g, c.b, c.a);
}
template <class T>
constexpr auto Fields(Light3D<T> const& l) {
    return std::tuple(Named("type", l.type), Named("diffuse", l.diffuse), Named("specular", l.specular),
                      Named("ambient", l.ambient), Named("direction", l.direction),
                      Named("position", l.position), Named("range", l.range), Named("falloff", l.falloff),
                      Named("attenuation0", l.attenuation0), Named("attenuation1", l.attenuation1),
                      Named("attenuation2", l.attenuation2), Named("theta", l.theta), Named("phi", l.phi));
}
template <class T>
constexpr auto Fields(Material3D<T> const& m) {
    return std::tuple(Named("diffuse", m.diffuse), Named("ambient", m.ambient), Named("specular", m.specular),
                      Named("emissive", m.emissive), Named("power", m.power), Named("texture1", m.texture1),
                      Named("texture2", m.texture2), Named("type", m.type), Named("typeParam", m.typeParam),
                      Named("flag1", m.flag1), Named("flag2", m.flag2), Named("flag3", m.flag3),
                      Named("flag4", m.flag4), Named("flag5", m.flag5), Named("flag6", m.flag6),
                      Named("flag7", m.flag7), Named("flag8", m.flag8), Named("flag9", m.flag9));
}

template <template <class> class Shape, class T>
T ScalarIn(Shape<T> const&);

/// Every type of the library that is made of scalars.
template <class X> concept Primitive = requires(X const& x) {
    detail::Fields(x);
    detail::ScalarIn(x);
};

/// The scalar that X is made of.
template <Primitive X>
using ScalarOf = decltype(detail::ScalarIn(std::declval<X const&>()));

/// A row is its own fields; after the concept, since it is no primitive.
template <class... Fs>
constexpr auto const& Fields(std::tuple<Fs...> const& row) {
    return row;
}

}  // namespace vertra::detail
