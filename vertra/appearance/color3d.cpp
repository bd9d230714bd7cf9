#include <vertra/vertra.h>

namespace vertra {
VERTRA_COLOR3D(template, float)
VERTRA_COLOR3D(template, double)
}  // namespace vertra
