#include <vertra/vertra.h>

namespace vertra {
VERTRA_TRIANGLE3D(template, float)
VERTRA_TRIANGLE3D(template, double)
}  // namespace vertra
