#pragma once

/// @file
/// Every header, in dependency order, but for the two that bring in the standard containers:
/// foundation/tree.h and foundation/registry_section.h.
// clang-format off
#include <vertra/version.h>
#include <vertra/export.h>
#include <vertra/numeric/kernel.h>
#include <vertra/numeric/array_view.h>
#include <vertra/numeric/vec4d.h>
#include <vertra/numeric/vec3d.h>
#include <vertra/numeric/vec2d.h>
#include <vertra/numeric/position2d.h>
#include <vertra/numeric/dimension2d.h>
#include <vertra/transform/matrix3d.h>
#include <vertra/transform/quat3d.h>
#include <vertra/solid/line3d.h>
#include <vertra/solid/plane3d.h>
#include <vertra/solid/aabbox3d.h>
#include <vertra/solid/sphere3d.h>
#include <vertra/solid/bsphere3d.h>
#include <vertra/solid/triangle3d.h>
#include <vertra/solid/quad3d.h>
#include <vertra/planar/rect2d.h>
#include <vertra/planar/line2d.h>
#include <vertra/appearance/color3d.h>
#include <vertra/appearance/light3d.h>
#include <vertra/appearance/material3d.h>
#include <vertra/foundation/base.h>
#include <vertra/foundation/buffers.h>
#include <vertra/foundation/service.h>
#include <vertra/foundation/encrypter_decrypter.h>
#include <vertra/foundation/smart_ptr.h>
#include <vertra/foundation/blowfish.h>
// clang-format on
