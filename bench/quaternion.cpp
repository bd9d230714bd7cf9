#include "bench.h"
#include "peers.h"

#include <vertra/transform/quat3d.h>

namespace {

/// Unit quaternions of random rotations.
template <class T>
vertra::Quat3D<T> const* RandomQuaternions(int count) {
    Random<T> random;
    std::vector<vertra::Quat3D<T>> quaternions(static_cast<std::size_t>(count));
    for (auto& q : quaternions) q = vertra::Quat3D<T>(random.Point(), random.Scalar() * T(3));
    return Keep(std::move(quaternions));
}

/// A quaternion of any library as ours.
struct ToOurs {
    template <class T>
    vertra::Quat3D<T> operator()(vertra::Quat3D<T> const& q) const {
        return q;
    }
    IF_GLM(template <class T, glm::qualifier Q> vertra::Quat3D<T> operator()(glm::qua<T, Q> const& q) const {
        return {q.x, q.y, q.z, q.w};
    })
    IF_EIGEN(template <class T> vertra::Quat3D<T> operator()(Eigen::Quaternion<T> const& q) const {
        return {q.x(), q.y(), q.z(), q.w()};
    })
    IF_IMATH(template <class T> vertra::Quat3D<T> operator()(Imath::Quat<T> const& q) const {
        return {q.v.x, q.v.y, q.v.z, q.r};
    })
    IF_CGLM(vertra::Quat3D<float> operator()(CglmVec4 const& q) const {
        return {q.v[0], q.v[1], q.v[2], q.v[3]};
    })
};

/// The same, of the two quaternions of a rotation the one with a positive w.
constexpr auto kPositive = [](auto const& peer) {
    auto const q = ToOurs()(peer);
    return q.w < 0 ? vertra::Quat3D(-q.x, -q.y, -q.z, -q.w) : q;
};

template <class T>
void Register() {
    using vertra::Conj;
    using vertra::Quat3D;
    [[maybe_unused]] int const count = kInputs + 1;
    Random<T> random;
    std::vector<vertra::Vec4D<T>> points(kInputs);
    for (auto& point : points) point = random.Point();
    auto const* const v = Keep(std::move(points));
    auto const* const q = RandomQuaternions<T>(count);

    // Ours turn vectors and make matrices in the opposite sense: there the peers get the conjugates.
    [[maybe_unused]] auto const peers = [=](auto make, bool conjugate) {
        std::vector<decltype(make(*q))> made(static_cast<std::size_t>(count));
        std::transform(q, q + count, made.begin(),
                       [&](Quat3D<T> const& a) { return make(conjugate ? Conj(a) : a); });
        return Keep(std::move(made));
    };
    IF_GLM(
        using GlmQuat = glm::qua<T, glm::packed_highp>; using GlmAligned = glm::qua<T, glm::aligned_highp>;
        auto const glm = [](Quat3D<T> const& a) { return GlmQuat(a.w, a.x, a.y, a.z); };
        auto const aligned = [](Quat3D<T> const& a) { return GlmAligned(a.w, a.x, a.y, a.z); };
        auto const* const gq = peers(glm, false); auto const* const gc = peers(glm, true);
        auto const* const aq = peers(aligned, false);
        auto const* const gv = As<glm::vec<3, T, glm::packed_highp>>(v, kInputs);)
    IF_EIGEN(using EigenQuat = Eigen::Quaternion<T>; using EigenMatrix = Eigen::Matrix<T, 4, 4>;
             using EigenVector = Eigen::Matrix<T, 3, 1>;
             auto const eigen = [](Quat3D<T> const& a) { return EigenQuat(a.w, a.x, a.y, a.z); };
             auto const* const eq = peers(eigen, false); auto const* const ec = peers(eigen, true);
             auto const* const ev = As<EigenVector>(v, kInputs);)
    IF_IMATH(auto const imath = [](Quat3D<T> const& a) { return Imath::Quat<T>(a.w, a.x, a.y, a.z); };
             auto const* const iq = peers(imath, false); auto const* const ic = peers(imath, true);
             auto const* const iv = As<Imath::Vec3<T>>(v, kInputs);)
    IF_CGLM(auto const cglm =
                [](Quat3D<T> const& a) {
                    return CglmVec4{{float(a.x), float(a.y), float(a.z), float(a.w)}};
                };
            auto* const cq = Writable(peers(cglm, false)); auto* const cc = Writable(peers(cglm, true));
            auto* const cv = Writable(As<CglmVec3>(v, kInputs));)

    [[maybe_unused]] ToOurs const toOurs;
    Operation<T> product("quaternion product", kInputs, 4, 1e-6);
    product.Add("vertra", [=](int i) { return q[i] * q[i + 1]; });
    IF_GLM(product.Add(
        "glm packed", [=](int i) { return gq[i] * gq[i + 1]; }, 1, toOurs);)
    IF_GLM(product.Add(
        "glm aligned", [=](int i) { return aq[i] * aq[i + 1]; }, 1, toOurs);)
    IF_EIGEN(product.Add(
        "Eigen", [=](int i) -> EigenQuat { return eq[i] * eq[i + 1]; }, 1, toOurs);)
    IF_IMATH(product.Add("Imath", [=](int i) { return iq[i] * iq[i + 1]; });)
    IF_CGLM(if constexpr (kFloat<T>) product.Add(
        "cglm",
        [=](int i) {
            CglmVec4 result;
            CGLM(quat_mul)(cq[i].v, cq[i + 1].v, result.v);
            return result;
        },
        1, toOurs);)

    Operation<T> turn("quaternion turns a vector", kInputs, 3, 1e-5);
    turn.Add("vertra", [=](int i) { return q[i] * v[i]; });
    IF_GLM(turn.Add("glm", [=](int i) { return gc[i] * gv[i]; });)
    IF_EIGEN(turn.Add("Eigen", [=](int i) -> EigenVector { return ec[i] * ev[i]; });)
    IF_IMATH(turn.Add("Imath", [=](int i) { return ic[i].rotateVector(iv[i]); });)
    // It normalises the quaternion first; there is no form that does not.
    IF_CGLM(if constexpr (kFloat<T>) turn.Add("cglm", [=](int i) {
        CglmVec3 result;
        CGLM(quat_rotatev)(cc[i].v, cv[i].v, result.v);
        return result;
    });)

    Operation<T> slerp("slerp", kInputs, 4, 1e-5);
    slerp.Add(
        "vertra", [=](int i) { return Slerp(q[i], q[i + 1], T(0.3), T(1e-6)); }, 1, kPositive);
    IF_GLM(slerp.Add(
        "glm", [=](int i) { return glm::slerp(gq[i], gq[i + 1], T(0.3)); }, 1, kPositive);)
    IF_EIGEN(slerp.Add(
        "Eigen", [=](int i) -> EigenQuat { return eq[i].slerp(T(0.3), eq[i + 1]); }, 1, kPositive);)
    IF_IMATH(slerp.Add(
        "Imath", [=](int i) { return Imath::slerpShortestArc(iq[i], iq[i + 1], T(0.3)); }, 1, kPositive);)
    IF_CGLM(if constexpr (kFloat<T>) slerp.Add(
        "cglm",
        [=](int i) {
            CglmVec4 result;
            CGLM(quat_slerp)(cq[i].v, cq[i + 1].v, 0.3F, result.v);
            return result;
        },
        1, kPositive);)

    Operation<T> toMatrix("quaternion to matrix", kInputs, 16, 1e-6);
    toMatrix.Add("vertra", [=](int i) { return ToMatrix(q[i]); });
    IF_GLM(toMatrix.Add("glm", [=](int i) { return glm::mat4_cast(gc[i]); });)
    IF_EIGEN(toMatrix.Add("Eigen", [=](int i) -> EigenMatrix {
        EigenMatrix matrix = EigenMatrix::Identity();
        matrix.template topLeftCorner<3, 3>() = ec[i].toRotationMatrix();
        return matrix;
    });)
    IF_IMATH(toMatrix.Add("Imath", [=](int i) { return ic[i].toMatrix44(); });)
    IF_CGLM(if constexpr (kFloat<T>) toMatrix.Add("cglm", [=](int i) {
        CglmMatrix result;
        CGLM(quat_mat4)(cc[i].v, result.m);
        return result;
    });)

    std::vector<vertra::Matrix3D<T>> matrices(kInputs);
    std::transform(q, q + kInputs, matrices.begin(), [](Quat3D<T> const& a) { return ToMatrix(Conj(a)); });
    auto const* const m = Keep(std::move(matrices));
    IF_GLM(auto const* const gm = As<glm::mat<4, 4, T, glm::packed_highp>>(m, kInputs);)
    IF_EIGEN(auto const* const em = As<EigenMatrix>(m, kInputs);)
    IF_IMATH(auto const* const im = As<Imath::Matrix44<T>>(m, kInputs);)
    IF_CGLM(auto* const cm = Writable(As<CglmMatrix>(m, kInputs));)
    Operation<T> fromMatrix("quaternion from matrix", kInputs, 4, 1e-5);
    fromMatrix.Add(
        "vertra", [=](int i) { return FromMatrix(m[i]); }, 1, kPositive);
    IF_GLM(fromMatrix.Add(
        "glm", [=](int i) { return glm::quat_cast(gm[i]); }, 1, kPositive);)
    IF_EIGEN(fromMatrix.Add(
        "Eigen", [=](int i) { return EigenQuat(em[i].template topLeftCorner<3, 3>()); }, 1, kPositive);)
    IF_IMATH(fromMatrix.Add(
        "Imath", [=](int i) { return Imath::extractQuat(im[i]); }, 1, kPositive);)
    IF_CGLM(if constexpr (kFloat<T>) fromMatrix.Add(
        "cglm",
        [=](int i) {
            CglmVec4 result;
            CGLM(mat4_quat)(cm[i].m, result.v);
            return result;
        },
        1, kPositive);)
}

}  // namespace

void RegisterQuaternion() {
    Register<float>();
    Register<double>();
}
