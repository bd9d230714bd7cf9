#pragma once

/// The peers that are installed. IF_GLM, IF_EIGEN and IF_IMATH keep what they are given where the peer is
/// there.
///
/// glm comes twice, with packed types (its default) and with aligned ones (its SIMD): now the one is faster,
/// now the other. All of glm and Eigen multiplies columns from the right, so a product takes its factors
/// turned round and then has the same scalars in the same places.

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
