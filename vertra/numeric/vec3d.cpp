#include <vertra/vertra.h>

namespace vertra {
VERTRA_VEC3D(template, float)
VERTRA_VEC3D(template, double)
}  // namespace vertra
