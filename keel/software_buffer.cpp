#include <keel/software_buffer.h>

#include <algorithm>
#include <stdexcept>

namespace keel {

namespace {

/// Throws unless the range lies within a buffer of length bytes; no sum of the two can overflow here.
void CheckRange(std::size_t offset, std::size_t size, std::size_t length) {
    if (offset > length || size > length - offset) throw std::out_of_range("beyond the end of the buffer");
}

}  // namespace

CSoftwareBuffer::~CSoftwareBuffer() = default;

std::size_t CSoftwareBuffer::GetSize() const { return data.size(); }

void CSoftwareBuffer::Resize(std::size_t size) { data.resize(size); }

void CSoftwareBuffer::Read(std::size_t offset, void* bytes, std::size_t size) const {
    CheckRange(offset, size, data.size());
    std::copy_n(data.data() + offset, size, static_cast<unsigned char*>(bytes));
}

void CSoftwareBuffer::Write(std::size_t offset, void const* bytes, std::size_t size) {
    CheckRange(offset, size, data.size());
    std::copy_n(static_cast<unsigned char const*>(bytes), size, data.data() + offset);
}

unsigned char* CSoftwareBuffer::GetData() { return data.data(); }

unsigned char const* CSoftwareBuffer::GetData() const { return data.data(); }

std::size_t CSoftwareBuffer::GetCapacity() const { return data.capacity(); }

void CSoftwareBuffer::Reserve(std::size_t capacity) { data.reserve(capacity); }

void CSoftwareBuffer::Append(void const* bytes, std::size_t size) {
    auto const* const first = static_cast<unsigned char const*>(bytes);
    data.insert(data.end(), first, first + size);
}

}  // namespace keel
