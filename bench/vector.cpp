#include "bench.h"
#include "peers.h"

#include <vertra/numeric/vec4d.h>

namespace {

/// Vectors of four components on every side, since our length counts w. The last figures of our results
/// differ from the peers', in double the last half: our root is an approximation in float.
template <class T>
void Register() {
    Random<T> random;
    std::vector<vertra::Vec4D<T>> vectors(kInputs + 1);
    for (auto& vector : vectors) vector = random.Point();
    auto const* const v = Keep(std::move(vectors));
    [[maybe_unused]] int const count = kInputs + 1;
    IF_GLM(auto const* const gv = As<glm::vec<4, T, glm::packed_highp>>(v, count);
           auto const* const av = As<glm::vec<4, T, glm::aligned_highp>>(v, count);
           auto const* const g3 = As<glm::vec<3, T, glm::packed_highp>>(v, count);
           auto const* const a3 = As<glm::vec<3, T, glm::aligned_highp>>(v, count);)
    IF_EIGEN(using EigenVector = Eigen::Matrix<T, 4, 1>; auto const* const ev = As<EigenVector>(v, count);
             using EigenVector3 = Eigen::Matrix<T, 3, 1>; auto const* const e3 = As<EigenVector3>(v, count);)
    IF_IMATH(auto const* const iv = As<Imath::Vec4<T>>(v, count);
             auto const* const i3 = As<Imath::Vec3<T>>(v, count);)
    IF_CGLM(auto* const cv = Writable(As<CglmVec4>(v, count));
            auto* const c3 = Writable(As<CglmVec3>(v, count));)

    // glm's aligned form does less and takes no part: in float it is a bare estimate of the root, of twelve
    // bits.
    Operation<T> normalise("normalise", kInputs, 3, 1e-6);
    normalise.Add("vertra", [=](int i) { return Normalize(v[i]); });
    IF_GLM(normalise.Add("glm packed", [=](int i) { return glm::normalize(gv[i]); });)
    IF_EIGEN(normalise.Add("Eigen", [=](int i) -> EigenVector { return ev[i].normalized(); });)
    IF_IMATH(normalise.Add("Imath", [=](int i) { return iv[i].normalized(); });)
    IF_CGLM(if constexpr (kFloat<T>) normalise.Add("cglm", [=](int i) {
        CglmVec4 result;
        CGLM(vec4_normalize_to)(cv[i].v, result.v);
        return result;
    });)

    Operation<T> length("length", kInputs, 1, 1e-6);
    length.Add("vertra", [=](int i) { return Len(v[i]); });
    IF_GLM(length.Add("glm packed", [=](int i) { return glm::length(gv[i]); });)
    IF_GLM(length.Add("glm aligned", [=](int i) { return glm::length(av[i]); });)
    IF_EIGEN(length.Add("Eigen", [=](int i) { return ev[i].norm(); });)
    IF_IMATH(length.Add("Imath", [=](int i) { return iv[i].length(); });)
    IF_CGLM(if constexpr (kFloat<T>) length.Add("cglm", [=](int i) { return CGLM(vec4_norm)(cv[i].v); });)

    // Of three components, where a peer has them.
    Operation<T> distance("distance", kInputs, 1, 1e-6);
    distance.Add("vertra", [=](int i) { return GetDistanceBetween(v[i], v[i + 1]); });
    IF_GLM(distance.Add("glm packed", [=](int i) { return glm::distance(g3[i], g3[i + 1]); });)
    IF_GLM(distance.Add("glm aligned", [=](int i) { return glm::distance(a3[i], a3[i + 1]); });)
    IF_EIGEN(distance.Add("Eigen three", [=](int i) { return (e3[i] - e3[i + 1]).norm(); });)
    IF_EIGEN(distance.Add("Eigen four", [=](int i) { return (ev[i] - ev[i + 1]).norm(); });)
    IF_IMATH(distance.Add("Imath", [=](int i) { return (i3[i] - i3[i + 1]).length(); });)
    IF_CGLM(if constexpr (kFloat<T>)
                distance.Add("cglm", [=](int i) { return CGLM(vec3_distance)(c3[i].v, c3[i + 1].v); });)

    Operation<T> cross("cross product", kInputs, 3, 1e-6);
    cross.Add("vertra", [=](int i) { return v[i] ^ v[i + 1]; });
    IF_GLM(cross.Add("glm packed", [=](int i) { return glm::cross(g3[i], g3[i + 1]); });)
    IF_GLM(cross.Add("glm aligned", [=](int i) { return glm::cross(a3[i], a3[i + 1]); });)
    IF_EIGEN(cross.Add("Eigen three", [=](int i) -> EigenVector3 { return e3[i].cross(e3[i + 1]); });)
    IF_EIGEN(cross.Add("Eigen four", [=](int i) -> EigenVector { return ev[i].cross3(ev[i + 1]); });)
    IF_IMATH(cross.Add("Imath", [=](int i) { return i3[i].cross(i3[i + 1]); });)
    IF_CGLM(if constexpr (kFloat<T>) cross.Add("cglm", [=](int i) {
        CglmVec3 result;
        CGLM(vec3_cross)(c3[i].v, c3[i + 1].v, result.v);
        return result;
    });)

    Operation<T> dot("dot product", kInputs, 1, 1e-5);
    dot.Add("vertra", [=](int i) { return v[i] * v[i + 1]; });
    IF_GLM(dot.Add("glm packed", [=](int i) { return glm::dot(gv[i], gv[i + 1]); });)
    IF_GLM(dot.Add("glm aligned", [=](int i) { return glm::dot(av[i], av[i + 1]); });)
    IF_EIGEN(dot.Add("Eigen", [=](int i) { return ev[i].dot(ev[i + 1]); });)
    IF_IMATH(dot.Add("Imath", [=](int i) { return iv[i].dot(iv[i + 1]); });)
    IF_CGLM(if constexpr (kFloat<T>)
                dot.Add("cglm", [=](int i) { return CGLM(vec4_dot)(cv[i].v, cv[i + 1].v); });)
}

}  // namespace

void RegisterVector() {
    Register<float>();
    Register<double>();
}
