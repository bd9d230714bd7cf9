#include <vertra/vertra.h>

namespace vertra {
VERTRA_LINE2D(template, float)
VERTRA_LINE2D(template, double)
}  // namespace vertra
