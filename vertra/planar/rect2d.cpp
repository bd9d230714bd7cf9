#include <vertra/vertra.h>

namespace vertra {
VERTRA_RECT2D(template, float)
VERTRA_RECT2D(template, double)
}  // namespace vertra
