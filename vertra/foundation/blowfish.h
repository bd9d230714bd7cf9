#pragma once

#include <vertra/export.h>
#include <vertra/foundation/encrypter_decrypter.h>

#include <cstddef>
#include <cstdint>

namespace keel {

/// The block cipher of B. Schneier, "Description of a New Variable-Length Key, 64-Bit Block Cipher
/// (Blowfish)", 1993.
///
/// It is here to read and write old data, not for new secrets: blocks of 64 bits repeat within some gigabytes
/// under one key, and then give plain text away (K. Bhargavan, G. Leurent, "On the Practical (In-)Security of
/// 64-bit Block Ciphers", 2016). Nor does any mode notice that data was tampered with.
///
/// E is the cipher under the key, p a block of plain text, c of cipher text, and the chain of CBC and CFB is
/// the last whole block of cipher text:
///
///     ECB     c = E(p)
///     CBC     c = E(p ^ chain)
///     CFB     c = p ^ E(chain)      a call's last block may be shorter
///
/// One chain serves both directions and runs on from call to call until it is reset; ECB, another mode and
/// another key leave it alone. A short block in CFB does so too and therefore ends a message: what followed
/// without a reset would repeat its key stream.
class VERTRA_API CBlowFishEncrypterDecrypter : public IEncrypterDecrypter {
public:
    /// 64 bits, big-endian in memory.
    struct _SBlock {  // NOLINT(bugprone-reserved-identifier): the engine's name
        /// @{ The first and the last four bytes.
        std::uint32_t left;
        std::uint32_t right;
        /// @}
    };
    /// The modes of the formulas above.
    enum BLOWFISH_ENCRYPTION_MODE : std::int32_t { BLOWFISH_ECB = 0, BLOWFISH_CBC = 1, BLOWFISH_CFB = 2 };

    /// Overwrites the key schedule.
    ~CBlowFishEncrypterDecrypter() override;

    /// Always 8.
    int GetMinimumBlockSize() const override;
    /// 1 to 56 bytes. Sets the key schedule and nothing else.
    void SetKey(unsigned char const* key, std::size_t size) override;
    /// Eight bytes.
    void SetInitialChain(unsigned char const* bytes) override;
    /// @{ Throws `std::invalid_argument` in ECB and CBC for a size that is no multiple of 8, and
    /// `std::logic_error` for a mode that is none of the three; so does Decrypt.
    void Encrypt(unsigned char const* in, unsigned char* out, std::size_t size) override;
    void Decrypt(unsigned char const* in, unsigned char* out, std::size_t size) override;
    /// @}

    /// @{ Any value is stored; the chain is not touched.
    void SetEncryptionMode(BLOWFISH_ENCRYPTION_MODE mode_);
    BLOWFISH_ENCRYPTION_MODE GetEncryptionMode() const;
    /// @}
    /// Back to the initial chain, which is 0 unless it was set.
    void ResetChain();

private:
    /// The round function: with the bytes a, b, c, d of x, the top one first, ((S0[a] + S1[b]) ^ S2[c]) +
    /// S3[d].
    unsigned int F(unsigned int x);
    /// From the eight bytes at the pointer.
    void BytesToBlock(unsigned char const* bytes, _SBlock& block) const;
    /// To the eight bytes that lie before the pointer.
    void BlockToBytes(_SBlock const& block, unsigned char* end) const;

    /// The sixteen rounds, with the subkeys in reverse to decrypt.
    void CryptBlock(_SBlock& block, bool decrypt);
    void Crypt(unsigned char const* in, unsigned char* out, std::size_t size, bool decrypt);

    _SBlock initialChain{};
    _SBlock chain{};
    std::uint32_t subkeys[18]{};  ///< all 0 before the first key, as no key makes them
    std::uint32_t sboxes[4][256]{};
    BLOWFISH_ENCRYPTION_MODE mode = BLOWFISH_ECB;
};

}  // namespace keel
