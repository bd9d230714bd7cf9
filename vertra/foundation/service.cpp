#include <vertra/foundation/service.h>

namespace keel {

IService::IService() = default;
IService::~IService() = default;

}  // namespace keel
