#include <vertra/foundation/registry_section.h>

namespace keel {

CRegistrySection::CRegistrySection(std::string name_, CRegistry* registry_)
    : registry(registry_), name(name_) {}

}  // namespace keel
