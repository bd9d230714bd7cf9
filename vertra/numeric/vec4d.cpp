#include <vertra/vertra.h>

namespace vertra {
VERTRA_VEC4D(template, float)
VERTRA_VEC4D(template, double)
}  // namespace vertra
