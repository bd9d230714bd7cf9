#include <vertra/foundation/buffers.h>

namespace keel {

IBuffer::IBuffer() = default;
IBuffer::~IBuffer() = default;

ISoftwareBuffer::ISoftwareBuffer() = default;
ISoftwareBuffer::~ISoftwareBuffer() = default;

}  // namespace keel
