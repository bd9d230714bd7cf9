#pragma once

#include <vertra/export.h>
#include <vertra/foundation/base.h>

#include <cstddef>

namespace keel {

/// A cipher with its key and the state of the message that it is at. What an operation refuses, by an
/// exception, has changed nothing and written nothing.
class VERTRA_API IEncrypterDecrypter : public Base {
public:
    /// Does nothing.
    ~IEncrypterDecrypter() override;

    /// The number of bytes that go through the cipher at once.
    virtual int GetMinimumBlockSize() const = 0;
    /// Takes a copy of the key. Throws `std::invalid_argument` for a size that the cipher cannot use.
    virtual void SetKey(unsigned char const* key, std::size_t size) = 0;
    /// One block, from which the chain of a message starts; the chain is reset to it.
    virtual void SetInitialChain(unsigned char const* bytes) = 0;
    /// @{ The next size bytes of a message; in and out are one buffer or do not overlap. A size of 0 does
    /// nothing, whatever the state. Throws `std::logic_error` where no key is set.
    virtual void Encrypt(unsigned char const* in, unsigned char* out, std::size_t size) = 0;
    virtual void Decrypt(unsigned char const* in, unsigned char* out, std::size_t size) = 0;
    /// @}

protected:
    /// Does nothing.
    IEncrypterDecrypter();
};

}  // namespace keel
