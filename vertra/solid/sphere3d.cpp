#include <vertra/vertra.h>

namespace vertra {
VERTRA_SPHERE3D(template, float)
VERTRA_SPHERE3D(template, double)
}  // namespace vertra
