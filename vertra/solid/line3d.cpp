#include <vertra/vertra.h>

namespace vertra {
VERTRA_LINE3D(template, float)
VERTRA_LINE3D(template, double)
}  // namespace vertra
