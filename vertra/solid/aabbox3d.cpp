#include <vertra/vertra.h>

namespace vertra {
VERTRA_AABBOX3D(template, float)
VERTRA_AABBOX3D(template, double)
}  // namespace vertra
