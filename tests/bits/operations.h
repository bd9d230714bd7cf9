#pragma once

#include <vertra/foundation/blowfish.h>
#include <vertra/vertra.h>

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

/// Every operation of the library, once: whoever wants to run them all (a hash, a fuzzer) visits this list.
///
/// An operation is a lambda. The types of its parameters tell how its arguments are made, from a source of
/// scalars; its results, which go to a sink of scalars, are what it returns and then every argument that it
/// takes by a reference to non-const.
namespace bits {

using namespace vertra;

/// A number from 0 to n - 1.
template <int n>
struct Index {
    int value;
};

/// The scalars of a shape, one after the other as they lie in memory.
template <template <class> class Shape, std::floating_point T>
std::span<T> Scalars(Shape<T>& shape) {
    return {reinterpret_cast<T*>(&shape), sizeof(shape) / sizeof(T)};
}

/// Makes an argument. A source has Scalars(T*, count) and Word().
template <std::floating_point T>
void Fill(auto& source, T& scalar) {
    source.Scalars(&scalar, 1);
}
void Fill(auto& source, unsigned int& word) { word = source.Word(); }
void Fill(auto& source, int& number) { number = static_cast<int>(source.Word() % 7) - 3; }
template <int n>
void Fill(auto& source, Index<n>& index) {
    index.value = static_cast<int>(source.Word() % n);
}
template <template <class> class Shape, std::floating_point T>
void Fill(auto& source, Shape<T>& shape) {
    source.Scalars(Scalars(shape).data(), Scalars(shape).size());
}
template <class T>
void Fill(auto& source, Line2D<T>& line) {
    Fill(source, line.start);
    Fill(source, line.end);
}
template <class T>
void Fill(auto& source, Light3D<T>& light) {
    for (auto* colour : {&light.diffuse, &light.specular, &light.ambient}) Fill(source, *colour);
    for (auto* vector : {&light.direction, &light.position}) Fill(source, *vector);
    source.Scalars(&light.range, 7);
}
template <class T>
void Fill(auto& source, Material3D<T>& material) {
    for (auto* colour : {&material.diffuse, &material.ambient, &material.specular, &material.emissive})
        Fill(source, *colour);
    Fill(source, material.power);
    Fill(source, material.typeParam);
    Fill(source, material.flag9);
}
template <class A, std::size_t n>
void Fill(auto& source, std::array<A, n>& elements) {
    for (A& element : elements) Fill(source, element);
}

/// Takes a result. A sink has Scalars(T const*, count) and Number(std::int64_t).
template <class A>
requires(std::integral<A> || std::is_enum_v<A>) void Append(auto& sink, A const& number) {
    sink.Number(static_cast<std::int64_t>(number));
}
template <std::floating_point T>
void Append(auto& sink, T const& scalar) {
    sink.Scalars(&scalar, 1);
}
template <template <class> class Shape, std::floating_point T>
void Append(auto& sink, Shape<T> const& shape) {
    auto const scalars = Scalars(const_cast<Shape<T>&>(shape));
    sink.Scalars(scalars.data(), scalars.size());
}
template <class T>
void Append(auto& sink, Line2D<T> const& line) {
    Append(sink, line.start);
    Append(sink, line.end);
    Append(sink, line.normal);
    sink.Number(line.normalValid);
}
template <class T>
void Append(auto& sink, Light3D<T> const& light) {
    sink.Number(light.type);
    for (auto const* colour : {&light.diffuse, &light.specular, &light.ambient}) Append(sink, *colour);
    for (auto const* vector : {&light.direction, &light.position}) Append(sink, *vector);
    sink.Scalars(&light.range, 7);
}
template <class T>
void Append(auto& sink, Material3D<T> const& material) {
    for (auto const* colour : {&material.diffuse, &material.ambient, &material.specular, &material.emissive})
        Append(sink, *colour);
    Append(sink, material.power);
    Append(sink, material.typeParam);
    sink.Number(material.type);
    for (int const* flag = &material.flag1; flag <= &material.flag9; ++flag) sink.Number(*flag);
}
template <class A, std::size_t n>
void Append(auto& sink, std::array<A, n> const& elements) {
    for (A const& element : elements) Append(sink, element);
}
template <class... A>
void Append(auto& sink, std::tuple<A...> const& results) {
    std::apply([&](auto const&... result) { (Append(sink, result), ...); }, results);
}

namespace detail {

template <class F>
struct Signature : Signature<decltype(&F::operator())> {};
template <class F, class R, class... A>
struct Signature<R (F::*)(A...) const> {
    using Arguments = std::tuple<std::remove_cvref_t<A>...>;

    static void Make(Arguments& arguments, auto& source) {
        std::apply([&](auto&... argument) { (Fill(source, argument), ...); }, arguments);
    }
    /// Takes from own what the operation may change, the rest from shared. They stay there: a vector that is
    /// copied loses its w.
    static void Run(F const& operation, Arguments const& shared, Arguments& own, auto& sink) {
        Run(operation, shared, own, sink, std::index_sequence_for<A...>());
    }

private:
    template <std::size_t... i>
    static void Run(F const& operation, Arguments const& shared, Arguments& own, auto& sink,
                    std::index_sequence<i...>) {
        auto const run = [&] { return operation(Pick<A>(std::get<i>(shared), std::get<i>(own))...); };
        if constexpr (std::is_void_v<R>) {
            run();
        } else {
            Append(sink, run());
        }
        (AppendChanged<A>(sink, std::get<i>(own)), ...);
    }
    template <class Parameter>
    static constexpr bool kChanged =
        std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;
    template <class Parameter, class Argument>
    static auto& Pick(Argument const& shared, Argument& own) {
        if constexpr (kChanged<Parameter>) {
            return own;
        } else {
            return shared;
        }
    }
    template <class Parameter>
    static void AppendChanged(auto& sink, auto const& argument) {
        if constexpr (kChanged<Parameter>) Append(sink, argument);
    }
};

}  // namespace detail

/// Runs the operation once.
template <class F>
void Run(F const& operation, auto& source, auto& sink) {
    typename detail::Signature<F>::Arguments arguments;
    detail::Signature<F>::Make(arguments, source);
    detail::Signature<F>::Run(operation, arguments, arguments, sink);
}

/// What the platform's own trigonometry in the scalar goes into, where that is double; see
/// docs/determinism.md.
enum class Kind { arithmetic, trigonometric };
inline constexpr Kind kTrigonometric = Kind::trigonometric;

/// A visitor is called as visit(name, operation) or visit(name, operation, kTrigonometric).
template <class A, class B>
void VisitEquality(auto& visit) {
    visit("==", [](A& a, B const& b) { return a == b; });
    visit("!=", [](A& a, B const& b) { return a != b; });
}
template <class A, class B>
void VisitOrder(auto& visit) {
    VisitEquality<A, B>(visit);
    visit("<", [](A const& a, B const& b) { return a < b; });
    visit("<=", [](A const& a, B const& b) { return a <= b; });
    visit(">", [](A const& a, B const& b) { return a > b; });
    visit(">=", [](A const& a, B const& b) { return a >= b; });
}
/// The three subscripts, to read and, where the object is not const, to write.
template <class A, int n>
void VisitSubscripts(auto& visit) {
    using I = Index<n>;
    visit("[int]", [](A& a, I i) { return a[i.value]; });
    visit("[unsigned]", [](A& a, I i) { return a[static_cast<unsigned int>(i.value)]; });
    visit("[size_t]", [](A& a, I i) { return a[static_cast<std::size_t>(i.value)]; });
    if constexpr (requires(A const& a) { a[1]; }) {
        visit("const [int]", [](A const& a, I i) { return a[i.value]; });
        visit("const [unsigned]", [](A const& a, I i) { return a[static_cast<unsigned int>(i.value)]; });
        visit("const [size_t]", [](A const& a, I i) { return a[static_cast<std::size_t>(i.value)]; });
    }
}
/// The array view, both ways; n scalars.
template <class A, class T, int n>
void VisitView(auto& visit) {
    visit("T*", [](A& a, Index<n> i, T s) {
        T* const p = a;
        p[i.value] = s;
    });
    visit("T const*", [](A const& a, Index<n> i) {
        T const* const p = a;
        return p[i.value];
    });
}
/// What copies and assigns.
template <class A>
void VisitCopies(auto& visit) {
    visit("default", [] { return A(); });
    visit("copy", [](A const& a) { return A(a); });
    visit("=", [](A& a, A const& b) { a = b; });
}

/// What the two vectors in space have in common.
template <template <class> class Vector, class T>
void VisitVector(auto& visit) {
    using V = Vector<T>;
    VisitCopies<V>(visit);
    VisitOrder<V, V>(visit);
    VisitOrder<V, T>(visit);
    VisitOrder<T, V>(visit);
    VisitView<V, T, 3>(visit);
    visit("(s)", [](T s) { return V(s); });
    visit("(x, y, z, w)", [](T x, T y, T z, T w) { return V(x, y, z, w); });
    visit("(p, w)", [](std::array<T, 3> const& p, T w) { return V(p.data(), w); });
    visit("(v, w)", [](V const& v, T w) { return V(v, w); });
    visit("= p", [](V& v, std::array<T, 3> const& p) { v = p.data(); });
    visit("Set", [](V& v, T x, T y, T z) { v.Set(x, y, z); });
    visit("+=", [](V& a, V const& b) { a += b; });
    visit("-=", [](V& a, V const& b) { a -= b; });
    visit("*= s", [](V& a, T s) { a *= s; });
    visit("/=", [](V& a, V const& b) { a /= b; });
    visit("a + b", [](V const& a, V const& b) { return a + b; });
    visit("a - b", [](V const& a, V const& b) { return a - b; });
    visit("+a", [](V const& a) { return +a; });
    visit("-a", [](V const& a) { return -a; });
    visit("!a", [](V const& a) { return !a; });
    visit("a * s", [](V const& a, T s) { return a * s; });
    visit("s * a", [](V const& a, T s) { return s * a; });
    visit("a / s", [](V const& a, T s) { return a / s; });
    visit("s / a", [](V const& a, T s) { return s / a; });
    visit("a ^ b", [](V const& a, V const& b) { return a ^ b; });
    visit("a * b", [](V const& a, V const& b) { return a * b; });
    visit("Len2", [](V const& v) { return Len2(v); });
    visit("Len", [](V const& v) { return Len(v); });
    visit("GetDistanceBetween2", [](V const& a, V const& b) { return GetDistanceBetween2(a, b); });
    visit("GetDistanceBetween", [](V const& a, V const& b) { return GetDistanceBetween(a, b); });
    visit("Normalize", [](V const& v) { return Normalize(v); });
    visit("Lo", [](V const& a, V const& b) { return Lo(a, b); });
    visit("Hi", [](V const& a, V const& b) { return Hi(a, b); });
    visit("Normal of 3", [](V const& a, V const& b, V const& c) { return Normal(a, b, c); });
    visit("Normal of 4", [](V const& a, V const& b, V const& c, V const& d) { return Normal(a, b, c, d); });
    visit("Distance", [](V const& p, V const& q) { return Distance(p, q); });
    visit("Crosses", [](V const& p, V const& a, V const& b) { return Crosses(p, a, b); });
}

template <class T>
void VisitVec4D(auto& visit) {
    using V = Vec4D<T>;
    VisitVector<Vec4D, T>(visit);
    VisitSubscripts<V, 4>(visit);
    visit("(Vec3D)", [](Vec3D<T> const& v) { return V(v); });
    visit("= Vec3D", [](V& v, Vec3D<T> const& w) { v = w; });
    visit("*= m", [](V& v, Matrix3D<T> const& m) { v *= m; });
    visit("SetLength", [](V& v, T s) { v.SetLength(s); });
    visit("a / b", [](V const& a, V const& b) { return a / b; });
    visit("CrossProduct", [](V const& a, V const& b, V& out) { CrossProduct(a, b, out); });
    visit("Plane(v)", [](V const& v) { return Plane(v); });
    visit("Plane(n, d)", [](V const& n, T d) { return Plane(n, d); });
    visit("Plane(n, p)", [](V const& n, V const& p) { return Plane(n, p); });
    visit("Plane(a, b, c)", [](V const& a, V const& b, V const& c) { return Plane(a, b, c); });
}

template <class T>
void VisitVec3D(auto& visit) {
    using V = Vec3D<T>;
    VisitVector<Vec3D, T>(visit);
    VisitSubscripts<V, 3>(visit);
    visit("(Vec4D)", [](Vec4D<T> const& v) { return V(v); });
    visit("= Vec4D", [](V& v, Vec4D<T> const& w) { v = w; });
}

template <class T>
void VisitVec2D(auto& visit) {
    using V = Vec2D<T>;
    using I = Index<2>;
    VisitCopies<V>(visit);
    VisitEquality<V, V>(visit);
    visit("(s)", [](T s) { return V(s); });
    visit("(x, y)", [](T x, T y) { return V(x, y); });
    visit("(p)", [](std::array<T, 2> const& p) { return V(p.data()); });
    visit("[unsigned]", [](V& v, I i, T s) { v[static_cast<unsigned int>(i.value)] = s; });
    visit("const [unsigned]", [](V const& v, I i) { return T(v[static_cast<unsigned int>(i.value)]); });
    visit("+=", [](V& a, V const& b) { a += b; });
    visit("-=", [](V& a, V const& b) { a -= b; });
    visit("*=", [](V& a, T s) { a *= s; });
    visit("/=", [](V& a, T s) { a /= s; });
    visit("a + b", [](V const& a, V const& b) { return a + b; });
    visit("a - b", [](V const& a, V const& b) { return a - b; });
    visit("-a", [](V const& a) { return -a; });
    visit("a * s", [](V const& a, T s) { return a * s; });
    visit("s * a", [](V const& a, T s) { return s * a; });
    visit("a / s", [](V const& a, T s) { return a / s; });
    visit("a * b", [](V const& a, V const& b) { return a * b; });
    visit("IsZero", [](V const& v) { return v.IsZero(); });
    visit("Len2", [](V const& v) { return Len2(v); });
    visit("Len", [](V const& v) { return Len(v); });
    visit("Normalize", [](V const& v) { return Normalize(v); });
}

template <class T>
void VisitPosition2D(auto& visit) {
    using P = Position2D<T>;
    VisitCopies<P>(visit);
    VisitEquality<P, P>(visit);
    visit("(x, y)", [](T x, T y) { return P(x, y); });
    visit("(s)", [](T& s) { return P(s); });
    visit("(p)", [](std::array<T, 2> const& p) { return P(p.data()); });
    visit("+=", [](P& a, P const& b) { a += b; });
    visit("-=", [](P& a, P const& b) { a -= b; });
    visit("*= s", [](P& a, T s) { a *= s; });
    visit("*=", [](P& a, P const& b) { a *= b; });
    visit("/=", [](P& a, T s) { a /= s; });
    visit("a + b", [](P const& a, P const& b) { return a + b; });
    visit("a - b", [](P const& a, P const& b) { return a - b; });
    visit("a * b", [](P const& a, P const& b) { return a * b; });
    visit("a * s", [](P const& a, T s) { return a * s; });
    visit("s * a", [](P const& a, T s) { return s * a; });
    visit("a / s", [](P const& a, T s) { return a / s; });
}

template <class T>
void VisitDimension2D(auto& visit) {
    using D = Dimension2D<T>;
    VisitCopies<D>(visit);
    VisitEquality<D, D>(visit);
    visit("(s)", [](T s) { return D(s); });
    visit("(w, h)", [](T w, T h) { return D(w, h); });
    visit("GetSize", [](D const& d) { return d.GetSize(); });
}

template <class T>
void VisitMatrix3D(auto& visit) {
    using M = Matrix3D<T>;
    using V = Vec4D<T>;
    VisitCopies<M>(visit);
    VisitView<M, T, 16>(visit);
    VisitSubscripts<M, 16>(visit);
    visit("(s)", [](T s) { return M(s); });
    visit("(p)", [](std::array<T, 16> const& p) { return M(p.data()); });
    visit("(16 scalars)",
          [](std::array<T, 16> const& p) { return std::apply([](auto... s) { return M(s...); }, p); });
    visit("(4 rows)", [](std::array<T, 16> const& p) {
        return M(V(p.data(), p[3]), V(&p[4], p[7]), V(&p[8], p[11]), V(&p[12], p[15]));
    });
    visit("(q)", [](Quat3D<T> const& q) { return M(q); });
    visit("= s", [](M& m, T s) { m = s; });
    visit("= p", [](M& m, std::array<T, 16> const& p) { m = p.data(); });
    visit("Eye", [](M& m) { m.Eye(); });
    visit("LoadIdentity", [](M& m) { m.LoadIdentity(); });
    visit("Row", [](M& m, Index<4> i) { return m.Row(i.value); });
    visit("Column", [](M& m, Index<4> i) { return m.Column(i.value); });
    visit("const Row", [](M const& m, Index<4> i) { return m.Row(i.value); });
    visit("const Column", [](M const& m, Index<4> i) { return m.Column(i.value); });
    visit("+=", [](M& a, M const& b) { a += b; });
    visit("-=", [](M& a, M const& b) { a -= b; });
    visit("*=", [](M& a, M const& b) { a *= b; });
    visit("*= s", [](M& a, T s) { a *= s; });
    visit("/= s", [](M& a, T s) { a /= s; });
    visit("Ortho", [](M& m, T l, T r, T b, T t, T n, T f) { m.Ortho(l, r, b, t, n, f); });
    visit("Frustum", [](M& m, T l, T r, T b, T t, T n, T f) { m.Frustum(l, r, b, t, n, f); });
    visit(
        "PerspectiveFOV", [](M& m, T fov, T aspect, T n, T f) { m.PerspectiveFOV(fov, aspect, n, f); },
        kTrigonometric);
    visit("Left", [](M& m) { m.Left(); });
    visit(
        "XRot", [](M& m, T a) { m.XRot(a); }, kTrigonometric);
    visit(
        "YRot", [](M& m, T a) { m.YRot(a); }, kTrigonometric);
    visit(
        "ZRot", [](M& m, T a) { m.ZRot(a); }, kTrigonometric);
    visit("XRot(c, s)", [](M& m, T c, T s) { m.XRot(c, s); });
    visit("YRot(c, s)", [](M& m, T c, T s) { m.YRot(c, s); });
    visit("ZRot(c, s)", [](M& m, T c, T s) { m.ZRot(c, s); });
    visit(
        "Rot(angles)", [](M& m, V const& v) { m.Rot(v); }, kTrigonometric);
    visit(
        "Rot(axis, angle)", [](M& m, V const& v, T a) { m.Rot(v, a); }, kTrigonometric);
    visit("Rot(axis, c, s)", [](M& m, V const& v, T c, T s) { m.Rot(v, c, s); });
    visit("Rot(q)", [](M& m, Quat3D<T> const& q) { m.Rot(q); });
    visit("Trans(v)", [](M& m, V const& v) { m.Trans(v); });
    visit("Trans", [](M& m, T x, T y, T z) { m.Trans(x, y, z); });
    visit("Scale(v)", [](M& m, V const& v) { m.Scale(v); });
    visit("Scale", [](M& m, T x, T y, T z) { m.Scale(x, y, z); });
    visit("Scale(s)", [](M& m, T s) { m.Scale(s); });
    visit("Look", [](M& m, V const& e, V const& c, V const& up) { m.Look(e, c, up); });
    visit(
        "GetRotation", [](M const& m) { return m.GetRotation(); }, kTrigonometric);
    visit("GetScale", [](M const& m) { return m.GetScale(); });
    visit("GetTranslation", [](M const& m) { return m.GetTranslation(); });
    visit("a + b", [](M const& a, M const& b) { return a + b; });
    visit("a - b", [](M const& a, M const& b) { return a - b; });
    visit("-a", [](M const& a) { return -a; });
    visit("a * b", [](M const& a, M const& b) { return a * b; });
    visit("a * s", [](M const& a, T s) { return a * s; });
    visit("s * a", [](M const& a, T s) { return s * a; });
    visit("a / s", [](M const& a, T s) { return a / s; });
    visit("s / a", [](M const& a, T s) { return s / a; });
    visit("Transpose", [](M const& a) { return Transpose(a); });
    visit("v * m", [](V const& v, M const& m) { return v * m; });
    visit("m * v", [](M const& m, V const& v) { return m * v; });
    visit("Det", [](M const& m) { return Det(m); });
    visit("Invert", [](M const& m) { return Invert(m); });
}

template <class T>
void VisitQuat3D(auto& visit) {
    using Q = Quat3D<T>;
    using V = Vec4D<T>;
    VisitCopies<Q>(visit);
    visit("(x, y, z, w)", [](T x, T y, T z, T w) { return Q(x, y, z, w); });
    visit(
        "(pitch, yaw, roll)", [](T p, T y, T r) { return Q(p, y, r); }, kTrigonometric);
    visit("(p)", [](std::array<T, 4> const& p) { return Q(p.data()); });
    visit(
        "(axis, angle)", [](V const& v, T a) { return Q(v, a); }, kTrigonometric);
    visit("(axes)", [](V const& x, V const& y, V const& z) { return Q(x, y, z); });
    visit("(m)", [](Matrix3D<T> const& m) { return Q(m); });
    visit("= m", [](Q& q, Matrix3D<T> const& m) { q = m; });
    visit("Adjust", [](Q& q) { q.Adjust(); });
    visit(
        "SetAxisAngle", [](Q& q, V const& v, T a) { q.SetAxisAngle(v, a); }, kTrigonometric);
    visit(
        "GetAxisAngle", [](Q const& q, V& v, T& a) { q.GetAxisAngle(v, a); }, kTrigonometric);
    visit(
        "SetPitchYawRoll", [](Q& q, T p, T y, T r) { q.SetPitchYawRoll(p, y, r); }, kTrigonometric);
    visit(
        "GetPitchYawRoll", [](Q const& q, T& p, T& y, T& r) { q.GetPitchYawRoll(p, y, r); }, kTrigonometric);
    visit("SetAxes", [](Q& q, V const& x, V const& y, V const& z) { q.SetAxes(x, y, z); });
    visit("GetAxes", [](Q const& q, V& x, V& y, V& z) { q.GetAxes(x, y, z); });
    visit("GetXAxis", [](Q const& q) { return q.GetXAxis(); });
    visit("GetYAxis", [](Q const& q) { return q.GetYAxis(); });
    visit("GetZAxis", [](Q const& q) { return q.GetZAxis(); });
    visit("ToMatrix", [](Q const& q) { return ToMatrix(q); });
    visit("FromMatrix", [](Matrix3D<T> const& m) { return FromMatrix(m); });
    visit("a * b", [](Q const& a, Q const& b) { return a * b; });
    visit("q * v", [](Q const& q, V const& v) { return q * v; });
    visit("Conj", [](Q const& q) { return Conj(q); });
    visit("UnitInvert", [](Q const& q) { return UnitInvert(q); });
    visit("Invert", [](Q const& q) { return Invert(q); });
    visit(
        "Exp", [](Q const& q) { return Exp(q); }, kTrigonometric);
    visit(
        "Log", [](Q const& q) { return Log(q); }, kTrigonometric);
    visit("Arc", [](V const& a, V const& b) { return Arc(a, b); });
    visit(
        "Slerp", [](Q const& a, Q const& b, T t, T e) { return Slerp(a, b, t, e); }, kTrigonometric);
}

template <class T>
void VisitLine3D(auto& visit) {
    using L = Line3D<T>;
    using V = Vec4D<T>;
    VisitCopies<L>(visit);
    VisitEquality<L, L>(visit);
    visit("(a, b)", [](V const& a, V const& b) { return L(a, b); });
    visit("(6 scalars)", [](T a, T b, T c, T d, T e, T f) { return L(a, b, c, d, e, f); });
    visit("+=", [](L& a, L const& b) { a += b; });
    visit("-=", [](L& a, L const& b) { a -= b; });
    visit("SetPoints", [](L& l, V const& a, V const& b) { l.SetPoints(a, b); });
    visit("SetPoints(6 scalars)", [](L& l, T a, T b, T c, T d, T e, T f) { l.SetPoints(a, b, c, d, e, f); });
    visit("Midpoint", [](L const& l) { return l.Midpoint(); });
    visit("Vec4D", [](L const& l) { return static_cast<V>(l); });
    visit("a + b", [](L const& a, L const& b) { return a + b; });
    visit("a - b", [](L const& a, L const& b) { return a - b; });
    visit("Len", [](L const& l) { return Len(l); });
    visit("Len2", [](L const& l) { return Len2(l); });
    visit("IsPointBetweenStartAndEnd",
          [](V const& p, L const& l) { return IsPointBetweenStartAndEnd(p, l); });
    visit("IsPointInsideLine", [](V const& p, L const& l, T t) { return IsPointInsideLine(p, l, t); });
    visit("GetClosestPoint", [](L const& l, V const& p) { return GetClosestPoint(l, p); });
    visit("IsIntersectingWithSphere",
          [](L const& l, V const& c, T r) { return IsIntersectingWithSphere(l, c, r, r); });
}

template <class T>
void VisitPlane3D(auto& visit) {
    using P = Plane3D<T>;
    using V = Vec4D<T>;
    VisitCopies<P>(visit);
    VisitEquality<P, P>(visit);
    visit("(n, d)", [](V const& n, T d) { return P(n, d); });
    visit("(n, p)", [](V const& n, V const& p) { return P(n, p); });
    visit("(6 scalars)", [](T a, T b, T c, T d, T e, T f) { return P(a, b, c, d, e, f); });
    visit("(a, b, c)", [](V const& a, V const& b, V const& c) { return P(a, b, c); });
    visit("SetPlane(a, b, c)", [](P& p, V const& a, V const& b, V const& c) { p.SetPlane(a, b, c); });
    visit("SetPlane(n, p)", [](P& p, V const& n, V const& q) { p.SetPlane(n, q); });
    visit("SetPlane(n, d)", [](P& p, V const& n, T d) { p.SetPlane(n, d); });
    visit("RecalculateDistance", [](P& p, V const& q) { p.RecalculateDistance(q); });
    visit("NormalizePlane", [](P& p) { p.NormalizePlane(); });
    visit("Distance", [](P const& p, V const& q) { return p.Distance(q); });
    visit("ClassifyPoint", [](P const& p, V const& q) { return p.ClassifyPoint(q); });
    visit("ClassifySphere", [](P const& p, Sphere3D<T> const& s) { return p.ClassifySphere(s); });
    visit("GetMemberPoint", [](P const& p) { return p.GetMemberPoint(); });
    visit("SolveForX", [](P const& p, T y, T z) { return p.SolveForX(y, z); });
    visit("SolveForY", [](P const& p, T x, T z) { return p.SolveForY(x, z); });
    visit("SolveForZ", [](P const& p, T x, T y) { return p.SolveForZ(x, y); });
    visit("Intersects(line)", [](P const& p, Line3D<T> const& l, V& out) { return p.Intersects(l, out); });
    visit("Intersects(d, p)",
          [](P const& p, V const& d, V const& q, V& out) { return p.Intersects(d, q, out); });
    visit("Intersects(b, c)",
          [](P const& a, P const& b, P const& c, V& out) { return a.Intersects(b, c, out); });
    visit("Intersects(plane)", [](P const& a, P const& b, V& d, V& p) { return a.Intersects(b, d, p); });
    visit("*= m", [](P& p, Matrix3D<T> const& m) { p *= m; });
    visit("IsFrontFacing", [](P const& p, V const& d) { return IsFrontFacing(p, d); });
    visit("p * m", [](P const& p, Matrix3D<T> const& m) { return p * m; });
    visit("m * p", [](P const& p, Matrix3D<T> const& m) { return m * p; });
}

template <class T>
void VisitAABBox3D(auto& visit) {
    using B = AABBox3D<T>;
    using V = Vec4D<T>;
    VisitCopies<B>(visit);
    VisitEquality<B, B>(visit);
    visit("(a, b)", [](V const& a, V const& b) { return B(a, b); });
    visit("(6 scalars)", [](T a, T b, T c, T d, T e, T f) { return B(a, b, c, d, e, f); });
    visit("Reset", [](B& b) { b.Reset(); });
    visit("Reset(x, y, z)", [](B& b, T x, T y, T z) { b.Reset(x, y, z); });
    visit("Reset(p)", [](B& b, V const& p) { b.Reset(p); });
    visit("Reset(box)", [](B& b, B const& c) { b.Reset(c); });
    visit("Add(x, y, z)", [](B& b, T x, T y, T z) { b.Add(x, y, z); });
    visit("Add(p)", [](B& b, V const& p) { b.Add(p); });
    visit("Add(box)", [](B& b, B const& c) { b.Add(c); });
    visit("Repair", [](B& b) { b.Repair(); });
    visit("Center", [](B const& b) { return b.Center(); });
    visit("GetExtent", [](B const& b) { return b.GetExtent(); });
    visit("IsEmpty", [](B const& b) { return b.IsEmpty(); });
    visit("IsInside(p)", [](B const& b, V const& p) { return b.IsInside(p); });
    visit("IsInside(box)", [](B const& b, B const& c) { return b.IsInside(c); });
    visit("IsTotallyInside(p)", [](B const& b, V const& p) { return b.IsTotallyInside(p); });
    visit("IsTotallyInside(box)", [](B const& b, B const& c) { return b.IsTotallyInside(c); });
    visit("GetClosestPoint", [](B const& b, V const& p) { return b.GetClosestPoint(p); });
    visit("ClassifyPlane", [](B const& b, Plane3D<T> const& p) { return b.ClassifyPlane(p); });
    visit("GetEdges", [](B const& b, std::array<V, 8>& corners) { b.GetEdges(corners.data()); });
    visit("GetFacePlanes", [](B const& b, std::array<Plane3D<T>, 6>& p) { b.GetFacePlanes(p.data()); });
    visit("GetFacePlanes(triangles)",
          [](B const& b, std::array<Triangle3D<T>, 6>& t) { b.GetFacePlanes(t.data()); });
    visit("Intersects(box)", [](B const& b, B const& c) { return b.Intersects(c); });
    visit("Intersects(d, p)", [](B const& b, V const& d, V const& p) { return b.Intersects(d, p); });
    visit("Intersects(line)", [](B const& b, Line3D<T> const& l) { return b.Intersects(l); });
    visit("Intersects(m, d, h)",
          [](B const& b, V const& m, V const& d, T h) { return b.Intersects(m, d, h); });
    visit("GetInterpolatedBoundingBox",
          [](B const& a, B const& b, T t) { return GetInterpolatedBoundingBox(a, b, t); });
}

template <class T>
void VisitSphere3D(auto& visit) {
    using S = Sphere3D<T>;
    using V = Vec4D<T>;
    VisitCopies<S>(visit);
    VisitEquality<S, S>(visit);
    visit("(c, r)", [](V const& c, T r) { return S(c, r); });
    visit("SurfaceArea", [](S const& s) { return s.SurfaceArea(); });
    visit("Volume", [](S const& s) { return s.Volume(); });
    visit("IsInside", [](S const& s, V const& p) { return s.IsInside(p); });
    visit("GetClosestPointOnSurface", [](S const& s, V const& p) { return s.GetClosestPointOnSurface(p); });
    visit("Intersects(sphere)", [](S const& s, S const& t) { return s.Intersects(t); });
    visit("Intersects(plane)", [](S const& s, Plane3D<T> const& p) { return s.Intersects(p); });
    visit("Intersects(o, d)",
          [](S const& s, V const& o, V const& d, V& hit) { return s.Intersects(o, d, hit); });
    visit("Collides",
          [](S const& a, V const& va, S const& b, V const& vb) { return Collides(a, va, b, vb); });
}

template <class T>
void VisitBSphere3D(auto& visit) {
    using S = BSphere3D<T>;
    using V = Vec4D<T>;
    VisitCopies<S>(visit);
    VisitEquality<S, S>(visit);
    visit("(c, r)", [](V const& c, T r) { return S(c, r); });
    visit("(sphere)", [](Sphere3D<T> const& s) { return S(s); });
    visit("(box)", [](AABBox3D<T> const& b) { return S(b); });
    visit("Intersects", [](S const& s, S const& t) { return s.Intersects(t); });
    visit("Intersects(box)", [](S const& s, AABBox3D<T> const& b) { return s.Intersects(b); });
    visit("Add(p)", [](S& s, V const& p) { s.Add(p); });
    visit("Add(box)", [](S& s, AABBox3D<T> const& b) { s.Add(b); });
    visit("Add(sphere)", [](S& s, S const& t) { s.Add(t); });
    visit("FitAround", [](S& s, AABBox3D<T> const& b) { s.FitAround(b); });
    visit("Reset(c, r)", [](S& s, V const& c, T r) { s.Reset(c, r); });
    visit("Reset", [](S& s) { s.Reset(); });
}

template <class T>
void VisitTriangle3D(auto& visit) {
    using S = Triangle3D<T>;
    using V = Vec4D<T>;
    VisitCopies<S>(visit);
    VisitEquality<S, S>(visit);
    VisitSubscripts<S, 3>(visit);
    visit("(a, b, c)", [](V const& a, V const& b, V const& c) { return S(a, b, c); });
    visit("(9 scalars)",
          [](std::array<T, 9> const& p) { return std::apply([](auto... s) { return S(s...); }, p); });
    visit("Set", [](S& s, V const& a, V const& b, V const& c) { s.Set(a, b, c); });
    visit("Plane3D", [](S const& s) { return static_cast<Plane3D<T>>(s); });
    visit("Intersects(p, d)",
          [](S const& s, V const& p, V const& d, V& out) { return s.Intersects(p, d, out); });
    visit("Intersects(line)", [](S const& s, Line3D<T> const& l, V& out) { return s.Intersects(l, out); });
    visit("Intersects(box)", [](S const& s, AABBox3D<T> const& b) { return s.Intersects(b); });
    visit("Normal", [](S const& s) { return Normal(s); });
    visit("IsFrontFacing", [](S const& s, V const& d) { return IsFrontFacing(s, d); });
    visit("TrianglePlaneIntersectsWithLine", [](S const& s, V const& p, V const& d, V& out) {
        return TrianglePlaneIntersectsWithLine(s, p, d, out);
    });
    visit("IsOnTheSameSide",
          [](V const& p, V const& q, V const& a, V const& b) { return IsOnTheSameSide(p, q, a, b); });
    visit("IsInsideTriangle", [](S const& s, V const& p) { return IsInsideTriangle(s, p); });
    visit("IsInsideTriangleFast", [](S const& s, V const& p) { return IsInsideTriangleFast(s, p); });
    visit("GetClosestPoint", [](S const& s, V const& p) { return GetClosestPoint(s, p); });
}

template <class T>
void VisitQuad3D(auto& visit) {
    using Q = Quad3D<T>;
    using S = Triangle3D<T>;
    using V = Vec4D<T>;
    VisitCopies<Q>(visit);
    VisitEquality<Q, Q>(visit);
    visit("(a, b, c, d)", [](V const& a, V const& b, V const& c, V const& d) { return Q(a, b, c, d); });
    visit("(16 scalars)",
          [](std::array<T, 16> const& p) { return std::apply([](auto... s) { return Q(s...); }, p); });
    visit("Intersects(p, d)",
          [](Q const& q, V const& p, V const& d, V& out) { return q.Intersects(p, d, out); });
    visit("Intersects(line)", [](Q const& q, Line3D<T> const& l, V& out) { return q.Intersects(l, out); });
    visit("IsCoPlanar", [](Q const& q) { return q.IsCoPlanar(); });
    visit("GetTrianglesFromQuad", [](Q const& q, S& s, S& t) { GetTrianglesFromQuad(q, s, t); });
    visit("ConstructFromTriangles",
          [](Q& q, S const& s, S const& t) { return ConstructFromTriangles(q, s, t); });
    visit("ConstructFromTriangles(split)", [](Q& q, Q const& split) {
        S s, t;
        GetTrianglesFromQuad(split, s, t);
        return ConstructFromTriangles(q, s, t);
    });
    visit("IsFrontFacing", [](Q const& q, V const& d) { return IsFrontFacing(q, d); });
    visit("IsInsideQuad", [](Q const& q, V const& p) { return IsInsideQuad(q, p); });
    visit("IsInsideQuadFast", [](Q const& q, V const& p) { return IsInsideQuadFast(q, p); });
}

template <class T>
void VisitRect2D(auto& visit) {
    using R = Rect2D<T>;
    using P = Position2D<T>;
    VisitCopies<R>(visit);
    VisitEquality<R, R>(visit);
    visit("(l, t, r, b)", [](T l, T t, T r, T b) { return R(l, t, r, b); });
    visit("(a, b)", [](P const& a, P const& b) { return R(a, b); });
    visit("(p, d)", [](P const& p, Dimension2D<T> const& d) { return R(p, d); });
    visit("Width", [](R const& r) { return r.Width(); });
    visit("Height", [](R const& r) { return r.Height(); });
    visit("Size", [](R const& r) { return r.Size(); });
    visit("Center", [](R const& r) { return r.Center(); });
    visit("IsPointInside", [](R const& r, P const& p) { return r.IsPointInside(p); });
    visit("IsCollided", [](R const& r, R const& s) { return r.IsCollided(s); });
    visit("IsValid", [](R& r) { return r.IsValid(); });
    visit("Repair", [](R& r) { r.Repair(); });
    visit("Clip", [](R& r, R const& s) { r.Clip(s); });
    visit("&=", [](R& r, R const& s) { r &= s; });
    visit("|=", [](R& r, R const& s) { r |= s; });
    visit("+=", [](R& r, P const& p) { r += p; });
    visit("-=", [](R& r, P const& p) { r -= p; });
    visit("Offset(p)", [](R& r, P const& p) { r.Offset(p); });
    visit("Offset", [](R& r, T x, T y) { r.Offset(x, y); });
    visit("Move", [](R& r, T x, T y) { r.Move(x, y); });
    visit("Move(p)", [](R& r, P const& p) { r.Move(p); });
    visit("Inflate(4)", [](R& r, T a, T b, T c, T d) { r.Inflate(a, b, c, d); });
    visit("Inflate(p, q)", [](R& r, P const& p, P const& q) { r.Inflate(p, q); });
    visit("Inflate", [](R& r, T x, T y) { r.Inflate(x, y); });
    visit("Inflate(p)", [](R& r, P const& p) { r.Inflate(p); });
    visit("Deflate(4)", [](R& r, T a, T b, T c, T d) { r.Deflate(a, b, c, d); });
    visit("Deflate(p, q)", [](R& r, P const& p, P const& q) { r.Deflate(p, q); });
    visit("Deflate", [](R& r, T x, T y) { r.Deflate(x, y); });
    visit("Deflate(p)", [](R& r, P const& p) { r.Deflate(p); });
    visit("r + p", [](R const& r, P const& p) { return r + p; });
    visit("p + r", [](R const& r, P const& p) { return p + r; });
    visit("r - p", [](R const& r, P const& p) { return r - p; });
    visit("p - r", [](R const& r, P const& p) { return p - r; });
    visit("r & s", [](R const& r, R const& s) { return r & s; });
    visit("r | s", [](R const& r, R const& s) { return r | s; });
}

template <class T>
void VisitLine2D(auto& visit) {
    using L = Line2D<T>;
    using V = Vec2D<T>;
    VisitCopies<L>(visit);
    visit("(a, b)", [](V const& a, V const& b) { return L(a, b); });
    visit("SetPoints", [](L& l, V const& a, V const& b) { l.SetPoints(a, b); });
    visit("SetPoints(4 scalars)", [](L& l, T a, T b, T c, T d) { l.SetPoints(a, b, c, d); });
    visit("Normal", [](L& l) { return V(l.Normal()); });
    visit("ComputeNormal", [](L& l) { l.ComputeNormal(); });
    visit("GetDirection", [](L const& l, V& out) { l.GetDirection(out); });
    visit("Length", [](L const& l) { return l.Length(); });
    visit("SignedDistance", [](L& l, V const& p) { return l.SignedDistance(p); });
    visit("ClassifyPoint", [](L const& l, V const& p, T t) { return l.ClassifyPoint(p, t); });
    visit("Intersection", [](L const& l, L const& m, V& out) { return l.Intersection(m, &out); });
}

template <class T>
void VisitColor3D(auto& visit) {
    using C = Color3D<T>;
    VisitEquality<C, C>(visit);
    VisitView<C, T, 4>(visit);
    VisitSubscripts<C, 4>(visit);
    visit("copy", [](C const& c) { return C(c); });
    visit("=", [](C& c, C const& d) { c = d; });
    visit("default, = packed", [](unsigned int word) {
        C c;
        c = word;
        return c;
    });
    visit("(r, g, b, a)", [](T r, T g, T b, T a) { return C(r, g, b, a); });
    visit("(p)", [](std::array<T, 4> const& p) { return C(p.data()); });
    visit("(packed)", [](unsigned int word) { return C(word); });
    visit("= p", [](C& c, std::array<T, 4> const& p) { c = p.data(); });
    visit("packed", [](C& c) { return static_cast<unsigned int>(c); });
    visit("const packed", [](C const& c) { return static_cast<unsigned int>(c); });
    visit("channels", [](C const& c) { return std::tuple(c.Red(), c.Green(), c.Blue(), c.Alpha()); });
    visit("+=", [](C& c, C const& d) { c += d; });
    visit("-=", [](C& c, C const& d) { c -= d; });
    visit("*=", [](C& c, C const& d) { c *= d; });
    visit("*= n", [](C& c, int n) { c *= n; });
    visit("/= n", [](C& c, int n) { c /= n; });
    visit("a + b", [](C const& a, C const& b) { return a + b; });
    visit("a - b", [](C const& a, C const& b) { return a - b; });
    visit("a * b", [](C const& a, C const& b) { return a * b; });
    visit("c * s", [](C const& c, T s) { return c * s; });
    visit("s * c", [](C const& c, T s) { return s * c; });
    visit("c / s", [](C const& c, T s) { return c / s; });
    visit("s / c", [](C const& c, T s) { return s / c; });
    visit("PixelShaderAdaptive",
          [](C const& a, C const& b, C const& c) { return PixelShaderAdaptive(a, b, c); });
    visit("PixelShaderSimpleAdaptive",
          [](C const& a, C const& b, C const& c) { return PixelShaderSimpleAdaptive(a, b, c); });
    visit("FromVector", [](Vec4D<T> const& v) { return FromVector(v); });
    visit("ToVector", [](C const& c) { return ToVector(c); });
    visit("AdjustRChannel", [](T s, C& c) { AdjustRChannel(s, c); });
    visit("AdjustGChannel", [](T s, C& c) { AdjustGChannel(s, c); });
    visit("AdjustBChannel", [](T s, C& c) { AdjustBChannel(s, c); });
    visit("AdjustAChannel", [](T s, C& c) { AdjustAChannel(s, c); });
    visit("AdjustBrightness", [](T s, C& c) { AdjustBrightness(s, c); });
}

template <class T>
void VisitLight3D(auto& visit) {
    using L = Light3D<T>;
    using C = Color3D<T>;
    using V = Vec4D<T>;
    VisitCopies<L>(visit);
    visit("(13 fields)", [](L const& l) {
        return L(l.LIGHT_SPOT, l.diffuse, l.specular, l.ambient, l.position, l.direction, l.range, l.falloff,
                 l.attenuation0, l.attenuation1, l.attenuation2, l.theta, l.phi);
    });
    visit("CreateDirectionalLight", [](C const& d, C const& s, C const& a, V const& direction) {
        return CreateDirectionalLight(d, s, a, direction);
    });
    visit("CreatePointLight", [](C const& c, V const& v, V const& w, T r, T f, T a, T b, T q) {
        return CreatePointLight(c, c, c, v, w, r, f, a, b, q);
    });
    visit("CreateSpotLight", [](C const& c, V const& v, V const& w, T r, T f, T a, T b, T q, T t, T p) {
        return CreateSpotLight(c, c, c, v, w, r, f, a, b, q, t, p);
    });
}

template <class T>
void VisitMaterial3D(auto& visit) {
    using M = Material3D<T>;
    using C = Color3D<T>;
    VisitCopies<M>(visit);
    VisitEquality<M, M>(visit);
    visit("(colours)", [](C const& a, C const& b, C const& c, C const& d, T p, T q, int n) {
        return M(a, b, c, d, p, nullptr, nullptr, M::MATERIAL_DEFAULT, q, n, 2, 3, 4, 5, 6, 7, 8, n);
    });
    visit("(packed)", [](unsigned int a, unsigned int b, unsigned int c, T p, T q, int n) {
        return M(a, b, c, a, p, nullptr, nullptr, M::MATERIAL_DEFAULT, q, n, 2, 3, 4, 5, 6, 7, 8, n);
    });
}

/// The cipher, of which the scalar does not matter: a message of nine words there and back.
inline void VisitCipher(auto& visit) {
    using Cipher = keel::CBlowFishEncrypterDecrypter;
    visit("Encrypt, Decrypt", [](std::array<unsigned int, 10> const& words, Index<3> mode, Index<36> size) {
        std::array<unsigned char, 40> bytes{}, secret{}, plain{};
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<unsigned char>(words[i / 4] >> (8 * (i % 4)) & 0xFF);
        auto const n =
            static_cast<std::size_t>(mode.value == Cipher::BLOWFISH_CFB ? size.value : size.value / 8 * 8);
        Cipher cipher;
        cipher.SetKey(bytes.data(), static_cast<std::size_t>(size.value) + 1);
        cipher.SetInitialChain(&bytes[32]);
        cipher.SetEncryptionMode(static_cast<Cipher::BLOWFISH_ENCRYPTION_MODE>(mode.value));
        cipher.Encrypt(bytes.data(), secret.data(), n);
        cipher.ResetChain();
        cipher.Decrypt(secret.data(), plain.data(), n);
        return std::tuple(secret, plain, cipher.GetEncryptionMode(), cipher.GetMinimumBlockSize());
    });
}

/// All families: visitFamily(name) gives the visitor of a family.
template <class T>
void VisitFamilies(auto const& visitFamily) {
    auto const family = [&](std::string_view name, auto const& list) {
        auto visit = visitFamily(name);
        list(visit);
    };
    family("vec4d", [](auto& visit) { VisitVec4D<T>(visit); });
    family("vec3d", [](auto& visit) { VisitVec3D<T>(visit); });
    family("vec2d", [](auto& visit) { VisitVec2D<T>(visit); });
    family("position2d", [](auto& visit) { VisitPosition2D<T>(visit); });
    family("dimension2d", [](auto& visit) { VisitDimension2D<T>(visit); });
    family("matrix3d", [](auto& visit) { VisitMatrix3D<T>(visit); });
    family("quat3d", [](auto& visit) { VisitQuat3D<T>(visit); });
    family("line3d", [](auto& visit) { VisitLine3D<T>(visit); });
    family("plane3d", [](auto& visit) { VisitPlane3D<T>(visit); });
    family("aabbox3d", [](auto& visit) { VisitAABBox3D<T>(visit); });
    family("sphere3d", [](auto& visit) { VisitSphere3D<T>(visit); });
    family("bsphere3d", [](auto& visit) { VisitBSphere3D<T>(visit); });
    family("triangle3d", [](auto& visit) { VisitTriangle3D<T>(visit); });
    family("quad3d", [](auto& visit) { VisitQuad3D<T>(visit); });
    family("rect2d", [](auto& visit) { VisitRect2D<T>(visit); });
    family("line2d", [](auto& visit) { VisitLine2D<T>(visit); });
    family("color3d", [](auto& visit) { VisitColor3D<T>(visit); });
    family("light3d", [](auto& visit) { VisitLight3D<T>(visit); });
    family("material3d", [](auto& visit) { VisitMaterial3D<T>(visit); });
}

}  // namespace bits
