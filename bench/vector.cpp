#include "bench.h"
#include "peers.h"

#include <vertra/numeric/vec4d.h>

namespace {

/// Vectors of four components on every side, since our length counts w. The last figures of our results
/// differ from the peers', in double the last half: our root is an approximation in float.
template <class T>
void Register() {
    Random<T> random;
    std::vector<vertra::Vec4D<T>> vectors(kInputs);
    for (auto& vector : vectors) vector = random.Point();
    auto const* const v = Keep(std::move(vectors));
    IF_GLM(auto const* const gv = As<glm::vec<4, T, glm::packed_highp>>(v, kInputs);
           auto const* const av = As<glm::vec<4, T, glm::aligned_highp>>(v, kInputs);)
    IF_EIGEN(using EigenVector = Eigen::Matrix<T, 4, 1>; auto const* const ev = As<EigenVector>(v, kInputs);)
    IF_IMATH(auto const* const iv = As<Imath::Vec4<T>>(v, kInputs);)

    // glm's aligned form does less and takes no part: in float it is a bare estimate of the root, of twelve
    // bits.
    Operation<T> normalise("normalise", kInputs, 3, 1e-6);
    normalise.Add("vertra", [=](int i) { return Normalize(v[i]); });
    IF_GLM(normalise.Add("glm packed", [=](int i) { return glm::normalize(gv[i]); });)
    IF_EIGEN(normalise.Add("Eigen", [=](int i) -> EigenVector { return ev[i].normalized(); });)
    IF_IMATH(normalise.Add("Imath", [=](int i) { return iv[i].normalized(); });)

    Operation<T> length("length", kInputs, 1, 1e-6);
    length.Add("vertra", [=](int i) { return Len(v[i]); });
    IF_GLM(length.Add("glm packed", [=](int i) { return glm::length(gv[i]); });)
    IF_GLM(length.Add("glm aligned", [=](int i) { return glm::length(av[i]); });)
    IF_EIGEN(length.Add("Eigen", [=](int i) { return ev[i].norm(); });)
    IF_IMATH(length.Add("Imath", [=](int i) { return iv[i].length(); });)
}

}  // namespace

void RegisterVector() {
    Register<float>();
    Register<double>();
}
