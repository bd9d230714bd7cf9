#include <vertra/vertra.h>

namespace vertra {
VERTRA_POSITION2D(template, float)
VERTRA_POSITION2D(template, double)
}  // namespace vertra
