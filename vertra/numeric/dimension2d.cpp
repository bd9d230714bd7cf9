#include <vertra/vertra.h>

namespace vertra {
VERTRA_DIMENSION2D(template, float)
VERTRA_DIMENSION2D(template, double)
}  // namespace vertra
