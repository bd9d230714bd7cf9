#pragma once

/// The peers that are installed. IF_GLM, IF_EIGEN, IF_IMATH and IF_CGLM keep what they are given where the
/// peer is there.
///
/// glm comes twice, with packed types (its default) and with aligned ones (its SIMD): now the one is faster,
/// now the other. All of glm, cglm and Eigen multiplies columns from the right, so a product takes its
/// factors turned round and then has the same scalars in the same places.

#ifdef VERTRA_BENCH_GLM
#define GLM_FORCE_INTRINSICS
#define GLM_ENABLE_EXPERIMENTAL
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>
#include <glm/gtc/type_aligned.hpp>
#include <glm/gtx/intersect.hpp>
#define IF_GLM(...) __VA_ARGS__
#else
#define IF_GLM(...)
#endif

#ifdef VERTRA_BENCH_EIGEN3
#include <Eigen/Geometry>
#include <Eigen/LU>
#define IF_EIGEN(...) __VA_ARGS__
#else
#define IF_EIGEN(...)
#endif

#ifdef VERTRA_BENCH_IMATH
#include <Imath/ImathBoxAlgo.h>
#include <Imath/ImathLineAlgo.h>
#include <Imath/ImathMatrix.h>
#include <Imath/ImathMatrixAlgo.h>
#include <Imath/ImathPlane.h>
#include <Imath/ImathQuat.h>
#include <Imath/ImathSphere.h>
#define IF_IMATH(...) __VA_ARGS__
#else
#define IF_IMATH(...)
#endif

/// cglm has float alone, and takes without const what it only reads. Its header is inline functions; what an
/// unoptimised program had better call is compiled in its library. Two of its functions have names that glm
/// gives to types.
#ifdef VERTRA_BENCH_CGLM
#define glm_vec4 cglm_vec4
#define glm_ivec4 cglm_ivec4
#include <cglm/call.h>
#include <cglm/cglm.h>
#undef glm_vec4
#undef glm_ivec4
#ifdef __OPTIMIZE__
#define CGLM(FUNCTION) glm_##FUNCTION
#else
#define CGLM(FUNCTION) glmc_##FUNCTION
#endif
#define IF_CGLM(...) __VA_ARGS__
struct CglmVec3 {
    vec3 v;
};
struct CglmVec4 {
    vec4 v;
};
struct CglmMatrix {
    mat4 m;
};
template <class Value>
Value* Writable(Value const* values) {
    return const_cast<Value*>(values);
}
#else
#define IF_CGLM(...)
#endif
