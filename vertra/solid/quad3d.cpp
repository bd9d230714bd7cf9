#include <vertra/vertra.h>

namespace vertra {
VERTRA_QUAD3D(template, float)
VERTRA_QUAD3D(template, double)
}  // namespace vertra
