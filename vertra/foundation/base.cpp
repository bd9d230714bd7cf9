#include <vertra/foundation/base.h>

namespace keel {

Base::Base() = default;
Base::~Base() = default;

}  // namespace keel
