#include <vertra/vertra.h>

namespace vertra {
VERTRA_MATERIAL3D(template, float)
VERTRA_MATERIAL3D(template, double)
}  // namespace vertra
