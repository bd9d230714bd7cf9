#include "bench.h"
#include "peers.h"

#include <vertra/solid/aabbox3d.h>
#include <vertra/transform/matrix3d.h>

#include <array>

namespace {

using vertra::AABBox3D;
using vertra::Matrix3D;
using vertra::Vec4D;

/// The six bounds of a box.
template <class T, class Low, class High>
std::array<T, 6> Bounds(Low const& low, High const& high) {
    return {low[0], low[1], low[2], high[0], high[1], high[2]};
}

/// A box that grows over all points.
template <class T>
void RegisterGrowth(std::string const& place, Vec4D<T> const* p, int count) {
    IF_EIGEN(auto const* const e3 = As<Eigen::Matrix<T, 3, 1>>(p, count);
             auto const* const e4 = As<Eigen::Matrix<T, 4, 1>>(p, count);)
    IF_IMATH(auto const* const ip = As<Imath::Vec3<T>>(p, count);)

    Operation<T> growth("box growth, " + place, 1, 6, 0);
    auto const ours = [=](int) {
        AABBox3D<T> box;
        for (int i = 0; i < count; ++i) box.Add(p[i]);
        return Bounds<T>(box.min, box.max);
    };
    growth.Add("vertra", ours, count);
#ifdef VERTRA_BENCH_EIGEN3
    auto const eigen3 = [=](int) {
        Eigen::AlignedBox<T, 3> box;
        for (int i = 0; i < count; ++i) box.extend(e3[i]);
        return Bounds<T>(box.min(), box.max());
    };
    growth.Add("Eigen three", eigen3, count);
    // Four dimensions: more work than ours, but all of it side by side.
    auto const eigen4 = [=](int) {
        Eigen::AlignedBox<T, 4> box;
        for (int i = 0; i < count; ++i) box.extend(e4[i]);
        return Bounds<T>(box.min(), box.max());
    };
    growth.Add("Eigen four", eigen4, count);
#endif
#ifdef VERTRA_BENCH_IMATH
    auto const imath = [=](int) {
        Imath::Box<Imath::Vec3<T>> box;
        for (int i = 0; i < count; ++i) box.extendBy(ip[i]);
        return Bounds<T>(box.min, box.max);
    };
    growth.Add("Imath", imath, count);
#endif
}

/// x, y and z of 64 vectors spread over an array: what is compared of it.
constexpr std::size_t kSamples = 64;
template <class T, class Vector>
std::array<T, 3 * kSamples> Samples(Vector const* vectors, int count) {
    std::array<T, 3 * kSamples> samples;
    std::size_t const step = (static_cast<std::size_t>(count) - 1) / (kSamples - 1);
    for (std::size_t i = 0; i < kSamples; ++i) {
        std::copy_n(reinterpret_cast<T const*>(vectors + i * step), 3, samples.data() + 3 * i);
    }
    return samples;
}

/// An operation on each vector of an array, the results into another.
template <class T>
class ArrayOperation {
public:
    ArrayOperation(std::string const& name, int count)
        : operation_(name, 1, static_cast<int>(3 * kSamples), 1e-5), count_(count) {}

    /// all(in, out, count) does it.
    template <class Vector, class All>
    void Add(std::string const& library, Vector const* in, All all) {
        int const count = count_;
        auto* const out = const_cast<Vector*>(Keep(std::vector<Vector>(static_cast<std::size_t>(count))));
        operation_.Add(
            library,
            [=](int) {
                all(in, out, count);
                return out;
            },
            count, [=](Vector const* vectors) { return Samples<T>(vectors, count); });
    }

private:
    Operation<T> operation_;
    int count_;
};

/// Makes of a function of one vector one of arrays.
template <class Each>
auto ForEach(Each each) {
    return [=](auto const* in, auto* out, int count) {
        for (int i = 0; i < count; ++i) out[i] = each(in[i]);
    };
}

template <class T>
void RegisterEach(std::string const& place, Vec4D<T> const* p, int count) {
    Random<T> random;
    std::vector<Matrix3D<T>> matrices(1);
    for (T& element : matrices[0].m) element = random.Scalar();
    auto const* const m = Keep(std::move(matrices));
    IF_GLM(auto const* const gm = As<glm::mat<4, 4, T, glm::packed_highp>>(m, 1);
           auto const* const am = As<glm::mat<4, 4, T, glm::aligned_highp>>(m, 1);
           auto const* const gp = As<glm::vec<4, T, glm::packed_highp>>(p, count);
           auto const* const ap = As<glm::vec<4, T, glm::aligned_highp>>(p, count);)
    IF_EIGEN(using EigenVector = Eigen::Matrix<T, 4, 1>; using EigenMatrix = Eigen::Matrix<T, 4, 4>;
             using EigenArray = Eigen::Matrix<T, 4, Eigen::Dynamic>;
             auto const* const em = As<EigenMatrix>(m, 1); auto const* const ep = As<EigenVector>(p, count);)
    IF_IMATH(auto const* const im = As<Imath::Matrix44<T>>(m, 1);
             auto const* const ip = As<Imath::Vec4<T>>(p, count);)
    IF_CGLM(auto* const cm = Writable(As<CglmMatrix>(m, 1)); auto const* const cp = As<CglmVec4>(p, count);)

    // Eigen takes an array whole as well.
    ArrayOperation<T> points("points by one matrix, " + place, count);
    points.Add("vertra", p, ForEach([=](Vec4D<T> const& v) { return v * *m; }));
    IF_GLM(points.Add("glm packed", gp, ForEach([=](auto const& v) { return *gm * v; }));)
    IF_GLM(points.Add("glm aligned", ap, ForEach([=](auto const& v) { return *am * v; }));)
    IF_EIGEN(
        points.Add("Eigen each", ep, ForEach([=](EigenVector const& v) -> EigenVector { return *em * v; }));)
    IF_EIGEN(points.Add("Eigen whole", ep, [=](EigenVector const* in, EigenVector* out, int n) {
        Eigen::Map<EigenArray>(out->data(), 4, n).noalias() =
            *em * Eigen::Map<EigenArray const>(in->data(), 4, n);
    });)
    IF_IMATH(points.Add("Imath", ip, ForEach([=](auto const& v) { return v * *im; }));)
    IF_CGLM(if constexpr (kFloat<T>) points.Add("cglm", cp, [=](CglmVec4 const* in, CglmVec4* out, int n) {
        for (int i = 0; i < n; ++i) CGLM(mat4_mulv)(cm->m, Writable(in)[i].v, out[i].v);
    });)

    ArrayOperation<T> normalise("normalise an array, " + place, count);
    normalise.Add("vertra", p, ForEach([](Vec4D<T> const& v) { return Normalize(v); }));
    IF_GLM(normalise.Add("glm packed", gp, ForEach([](auto const& v) { return glm::normalize(v); }));)
    IF_EIGEN(normalise.Add("Eigen each", ep,
                           ForEach([](auto const& v) -> EigenVector { return v.normalized(); }));)
    IF_EIGEN(normalise.Add("Eigen whole", ep, [](EigenVector const* in, EigenVector* out, int n) {
        Eigen::Map<EigenArray>(out->data(), 4, n) =
            Eigen::Map<EigenArray const>(in->data(), 4, n).colwise().normalized();
    });)
    IF_IMATH(normalise.Add("Imath", ip, ForEach([](auto const& v) { return v.normalized(); }));)
    IF_CGLM(if constexpr (kFloat<T>) normalise.Add("cglm", cp, [](CglmVec4 const* in, CglmVec4* out, int n) {
        for (int i = 0; i < n; ++i) CGLM(vec4_normalize_to)(Writable(in)[i].v, out[i].v);
    });)
}

/// Points with w = 1, for the peers whose product reads it.
template <class T>
void Register(std::string const& place, int count) {
    Random<T> random;
    std::vector<Vec4D<T>> made(static_cast<std::size_t>(count));
    for (auto& point : made) {
        point = random.Point();
        point.w = 1;
    }
    auto const* const points = Keep(std::move(made));
    RegisterGrowth(place, points, count);
    RegisterEach(place, points, count);
}

template <class T>
void RegisterSizes() {
    Register<T>("first cache", 400);
    if (!kOptimised) return;
    Register<T>("second cache", 6000);
    Register<T>("memory", 1500000);
}

}  // namespace

void RegisterArrays() {
    RegisterSizes<float>();
    RegisterSizes<double>();
}
