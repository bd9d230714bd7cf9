#include "bench.h"
#include "peers.h"

#include <vertra/transform/matrix3d.h>

namespace {

/// General matrices, none of them near singular: no peer takes its short cut for affine ones.
template <class T>
vertra::Matrix3D<T> const* RandomMatrices(int count) {
    Random<T> random;
    std::vector<vertra::Matrix3D<T>> matrices(static_cast<std::size_t>(count));
    for (auto& matrix : matrices) {
        do {
            for (T& element : matrix.m) element = random.Scalar();
        } while (std::abs(Det(matrix)) < T(0.1));
    }
    return Keep(std::move(matrices));
}

/// With w = 1, for the peers whose product reads it.
template <class T>
vertra::Vec4D<T> const* RandomPoints(int count) {
    Random<T> random;
    std::vector<vertra::Vec4D<T>> points(static_cast<std::size_t>(count));
    for (auto& point : points) {
        point = random.Point();
        point.w = 1;
    }
    return Keep(std::move(points));
}

template <class T>
void Register() {
    auto const* const m = RandomMatrices<T>(kInputs + 1);
    auto const* const p = RandomPoints<T>(kInputs);
    IF_GLM(auto const* const gm = As<glm::mat<4, 4, T, glm::packed_highp>>(m, kInputs + 1);
           auto const* const gp = As<glm::vec<4, T, glm::packed_highp>>(p, kInputs);
           auto const* const am = As<glm::mat<4, 4, T, glm::aligned_highp>>(m, kInputs + 1);
           auto const* const ap = As<glm::vec<4, T, glm::aligned_highp>>(p, kInputs);)
    IF_EIGEN(using EigenMatrix = Eigen::Matrix<T, 4, 4>; using EigenVector = Eigen::Matrix<T, 4, 1>;
             auto const* const em = As<EigenMatrix>(m, kInputs + 1);
             auto const* const ep = As<EigenVector>(p, kInputs);)
    IF_IMATH(auto const* const im = As<Imath::Matrix44<T>>(m, kInputs + 1);
             auto const* const ip = As<Imath::Vec4<T>>(p, kInputs);)
    IF_CGLM(auto* const cm = Writable(As<CglmMatrix>(m, kInputs + 1));
            auto* const cp = Writable(As<CglmVec4>(p, kInputs));)

    Operation<T> product("matrix product", kInputs, 16, 1e-6);
    product.Add("vertra", [=](int i) { return m[i] * m[i + 1]; });
    IF_GLM(product.Add("glm packed", [=](int i) { return gm[i + 1] * gm[i]; });)
    IF_GLM(product.Add("glm aligned", [=](int i) { return am[i + 1] * am[i]; });)
    IF_EIGEN(product.Add("Eigen", [=](int i) -> EigenMatrix { return em[i + 1] * em[i]; });)
    IF_IMATH(product.Add("Imath", [=](int i) { return im[i] * im[i + 1]; });)
    IF_CGLM(if constexpr (kFloat<T>) product.Add("cglm", [=](int i) {
        CglmMatrix result;
        CGLM(mat4_mul)(cm[i + 1].m, cm[i].m, result.m);
        return result;
    });)

    // The peers compute the fourth component as well, which with us is 0.
    Operation<T> point("point by matrix", kInputs, 3, 1e-6);
    point.Add("vertra", [=](int i) { return p[i] * m[i]; });
    IF_GLM(point.Add("glm packed", [=](int i) { return gm[i] * gp[i]; });)
    IF_GLM(point.Add("glm aligned", [=](int i) { return am[i] * ap[i]; });)
    IF_EIGEN(point.Add("Eigen", [=](int i) -> EigenVector { return em[i] * ep[i]; });)
    IF_IMATH(point.Add("Imath", [=](int i) { return ip[i] * im[i]; });)
    IF_CGLM(if constexpr (kFloat<T>) point.Add("cglm", [=](int i) {
        CglmVec4 result;
        CGLM(mat4_mulv)(cm[i].m, cp[i].v, result.v);
        return result;
    });)

    // The others but Imath take cofactors: less work, and badly scaled matrices are lost.
    Operation<T> inverse("inverse", kInputs, 16, 1e-4);
    inverse.Add("vertra", [=](int i) { return Invert(m[i]); });
    IF_GLM(inverse.Add("glm packed", [=](int i) { return glm::inverse(gm[i]); });)
    IF_GLM(inverse.Add("glm aligned", [=](int i) { return glm::inverse(am[i]); });)
    IF_EIGEN(inverse.Add("Eigen", [=](int i) -> EigenMatrix { return em[i].inverse(); });)
    IF_IMATH(inverse.Add("Imath", [=](int i) { return im[i].inverse(); });)
    IF_CGLM(if constexpr (kFloat<T>) inverse.Add("cglm", [=](int i) {
        CglmMatrix result;
        CGLM(mat4_inv)(cm[i].m, result.m);
        return result;
    });)

    Operation<T> pivoting("inverse with pivots", kInputs, 16, 1e-4);
    pivoting.Add("vertra", [=](int i) { return Invert(m[i]); });
    IF_EIGEN(pivoting.Add("Eigen", [=](int i) -> EigenMatrix { return em[i].partialPivLu().inverse(); });)
    IF_IMATH(pivoting.Add("Imath", [=](int i) { return im[i].gjInverse(); });)

    Operation<T> determinant("determinant", kInputs, 1, 1e-4);
    determinant.Add("vertra", [=](int i) { return Det(m[i]); });
    IF_GLM(determinant.Add("glm packed", [=](int i) { return glm::determinant(gm[i]); });)
    IF_GLM(determinant.Add("glm aligned", [=](int i) { return glm::determinant(am[i]); });)
    IF_EIGEN(determinant.Add("Eigen", [=](int i) { return em[i].determinant(); });)
    IF_IMATH(determinant.Add("Imath", [=](int i) { return im[i].determinant(); });)
    IF_CGLM(if constexpr (kFloat<T>) determinant.Add("cglm", [=](int i) { return CGLM(mat4_det)(cm[i].m); });)

    Operation<T> transpose("transpose", kInputs, 16, 1e-6);
    transpose.Add("vertra", [=](int i) { return Transpose(m[i]); });
    IF_GLM(transpose.Add("glm packed", [=](int i) { return glm::transpose(gm[i]); });)
    IF_GLM(transpose.Add("glm aligned", [=](int i) { return glm::transpose(am[i]); });)
    IF_EIGEN(transpose.Add("Eigen", [=](int i) -> EigenMatrix { return em[i].transpose(); });)
    IF_IMATH(transpose.Add("Imath", [=](int i) { return im[i].transposed(); });)
    IF_CGLM(if constexpr (kFloat<T>) transpose.Add("cglm", [=](int i) {
        CglmMatrix result;
        CGLM(mat4_transpose_to)(cm[i].m, result.m);
        return result;
    });)
}

}  // namespace

void RegisterMatrix() {
    Register<float>();
    Register<double>();
    // What the loop itself costs, which is in every row.
    Operation<float>("the empty loop", kInputs, 1, 0).Add("vertra", [](int i) { return i; });
}
