#pragma once

#include <vertra/export.h>

/// The classes of the engine's foundation library that this library has a share in. Each function, virtual
/// table and type information lies in one library, vertra or keel, and `VERTRA_API` exports it from there.
namespace keel {

/// The root of the polymorphic classes. The destructor is the first virtual operation of each.
class VERTRA_API Base {
public:
    /// @{ Do nothing.
    Base();
    virtual ~Base();
    /// @}
};

}  // namespace keel
