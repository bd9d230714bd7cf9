#include <vertra/foundation/registry_section.h>

namespace keel {

// The name is copied, not moved: a section stays, and a copy has no capacity to spare.
// NOLINTBEGIN(modernize-pass-by-value, performance-unnecessary-value-param)
CRegistrySection::CRegistrySection(std::string name_, CRegistry* registry_)
    : registry(registry_), name(name_) {}
// NOLINTEND(modernize-pass-by-value, performance-unnecessary-value-param)

}  // namespace keel
