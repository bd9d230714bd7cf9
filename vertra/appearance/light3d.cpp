#include <vertra/vertra.h>

namespace vertra {
VERTRA_LIGHT3D(template, float)
VERTRA_LIGHT3D(template, double)
}  // namespace vertra
