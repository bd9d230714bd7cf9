#pragma once

#include <vertra/export.h>
#include <vertra/foundation/base.h>

namespace keel {

/// A part of the engine that others use and do not own: it is made and destroyed by its own code only.
class VERTRA_API IService : public Base {
protected:
    /// @{ Do nothing.
    IService();
    ~IService() override;
    /// @}
};

}  // namespace keel
