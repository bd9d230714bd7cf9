#pragma once

#include <vertra/export.h>
#include <vertra/foundation/buffers.h>

#include <cstddef>
#include <vector>

namespace keel {

/// A buffer on the heap.
class VERTRA_API CSoftwareBuffer : public ISoftwareBuffer {
public:
    ~CSoftwareBuffer() override;

    std::size_t GetSize() const override;
    void Resize(std::size_t size) override;
    void Read(std::size_t offset, void* bytes, std::size_t size) const override;
    void Write(std::size_t offset, void const* bytes, std::size_t size) override;
    unsigned char* GetData() override;
    unsigned char const* GetData() const override;
    std::size_t GetCapacity() const override;
    void Reserve(std::size_t capacity) override;
    void Append(void const* bytes, std::size_t size) override;

private:
    std::vector<unsigned char> data;
};

}  // namespace keel
