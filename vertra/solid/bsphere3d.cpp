#include <vertra/vertra.h>

namespace vertra {
VERTRA_BSPHERE3D(template, float)
VERTRA_BSPHERE3D(template, double)
}  // namespace vertra
