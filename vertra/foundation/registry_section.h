#pragma once

#include <vertra/export.h>
#include <vertra/foundation/base.h>

#include <map>
#include <string>

namespace keel {

class VERTRA_API CRegistry;

/// A named section of keys and values. Its destructor lies in keel, the one function that vertra takes from
/// there.
class VERTRA_API CRegistrySection : public Base {
public:
    /// Values by their keys.
    std::map<std::string, std::string> entries;
    CRegistry* registry;  ///< where the section belongs, or null; not owned and never called
    /// Any, an empty one too.
    std::string name;

    /// No entries yet; any name, an empty one too.
    CRegistrySection(std::string name_, CRegistry* registry_);
    ~CRegistrySection() override;
};

}  // namespace keel
