#pragma once

#include <vertra/export.h>
#include <vertra/foundation/base.h>

#include <cstddef>

namespace keel {

/// A run of bytes, wherever it lies: in main memory, on a device, in a file.
class VERTRA_API IBuffer : public Base {
public:
    /// @{ Do nothing.
    IBuffer();
    ~IBuffer() override;
    /// @}

    /// In bytes.
    virtual std::size_t GetSize() const = 0;
    /// Keeps the bytes that fit; new ones are 0.
    virtual void Resize(std::size_t size) = 0;
    /// @{ Copies size bytes from the offset on. Throws `std::out_of_range`, and copies nothing, where they do
    /// not all lie within the buffer; so does Write, which never grows it.
    virtual void Read(std::size_t offset, void* bytes, std::size_t size) const = 0;
    virtual void Write(std::size_t offset, void const* bytes, std::size_t size) = 0;
    /// @}
};

/// A buffer in main memory, which can be reached in place.
class VERTRA_API ISoftwareBuffer : public IBuffer {
public:
    /// Does nothing.
    ~ISoftwareBuffer() override;

    /// @{ The first byte, until the buffer grows or is destroyed; perhaps null when it is empty.
    virtual unsigned char* GetData() = 0;
    virtual unsigned char const* GetData() const = 0;
    /// @}
    /// The size up to which the buffer grows in place.
    virtual std::size_t GetCapacity() const = 0;
    /// Raises the capacity to at least the one given; never lowers it.
    virtual void Reserve(std::size_t capacity) = 0;
    /// Grows the buffer by a copy of size bytes, which lie outside it.
    virtual void Append(void const* bytes, std::size_t size) = 0;

protected:
    /// Does nothing.
    ISoftwareBuffer();
};

}  // namespace keel
