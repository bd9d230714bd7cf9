#include <vertra/vertra.h>

namespace vertra {
VERTRA_PLANE3D(template, float)
VERTRA_PLANE3D(template, double)
}  // namespace vertra
