#include <vertra/foundation/registry_section.h>

namespace keel {

CRegistrySection::~CRegistrySection() = default;

}  // namespace keel
