#include <vertra/vertra.h>

namespace vertra {
VERTRA_VEC2D(template, float)
VERTRA_VEC2D(template, double)
}  // namespace vertra
