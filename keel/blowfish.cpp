#include "pi.h"

#include <vertra/foundation/blowfish.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

namespace keel {

CBlowFishEncrypterDecrypter::~CBlowFishEncrypterDecrypter() {
    // Through volatile: an ordinary write to an object that ends here is dropped by the optimiser.
    auto const wipe = [](auto& words) {
        for (std::uint32_t volatile& word : words) word = 0;
    };
    wipe(subkeys);
    for (auto& box : sboxes) wipe(box);
}

void CBlowFishEncrypterDecrypter::SetKey(unsigned char const* key, std::size_t size) {
    if (size < 1 || size > 56)
        throw std::invalid_argument("a Blowfish key has 1 to 56 bytes, not " + std::to_string(size));

    std::uint32_t const* pi = kPi;
    std::size_t next = 0;
    for (std::uint32_t& subkey : subkeys) {
        std::uint32_t word = 0;
        for (int i = 0; i < 4; ++i) word = word << 8 | key[next++ % size];
        subkey = *pi++ ^ word;
    }
    for (auto& box : sboxes)
        for (std::uint32_t& word : box) word = *pi++;

    // The cipher, as far as it stands, replaces its own tables.
    _SBlock block{};
    auto const replace = [&](auto& words) {
        for (std::size_t i = 0; i < std::size(words); i += 2) {
            CryptBlock(block, false);
            words[i] = block.left;
            words[i + 1] = block.right;
        }
    };
    replace(subkeys);
    for (auto& box : sboxes) replace(box);
}

void CBlowFishEncrypterDecrypter::SetInitialChain(unsigned char const* bytes) {
    BytesToBlock(bytes, initialChain);
    ResetChain();
}

void CBlowFishEncrypterDecrypter::Encrypt(unsigned char const* in, unsigned char* out, std::size_t size) {
    Crypt(in, out, size, false);
}

void CBlowFishEncrypterDecrypter::Decrypt(unsigned char const* in, unsigned char* out, std::size_t size) {
    Crypt(in, out, size, true);
}

void CBlowFishEncrypterDecrypter::CryptBlock(_SBlock& block, bool decrypt) {
    auto const subkey = [&](int i) { return subkeys[decrypt ? 17 - i : i]; };
    for (int round = 0; round < 16; ++round) {
        block.left ^= subkey(round);
        block.right ^= F(block.left);
        std::swap(block.left, block.right);
    }
    std::swap(block.left, block.right);
    block.right ^= subkey(16);
    block.left ^= subkey(17);
}

void CBlowFishEncrypterDecrypter::Crypt(unsigned char const* in, unsigned char* out, std::size_t size,
                                        bool decrypt) {
    if (size == 0) return;
    if (std::ranges::count(subkeys, 0U) == std::ssize(subkeys))
        throw std::logic_error("Blowfish is used without a key");
    if (mode != BLOWFISH_ECB && mode != BLOWFISH_CBC && mode != BLOWFISH_CFB)
        throw std::logic_error("Blowfish has no mode " + std::to_string(mode));
    if (mode != BLOWFISH_CFB && size % 8 != 0)
        throw std::invalid_argument("Blowfish takes whole blocks of 8 bytes, not " + std::to_string(size));

    auto const mix = [](_SBlock& block, _SBlock const& other) {
        block.left ^= other.left;
        block.right ^= other.right;
    };
    for (std::size_t at = 0; at < size; at += 8) {
        std::size_t const length = std::min<std::size_t>(size - at, 8);
        unsigned char bytes[8] = {};
        std::copy_n(in + at, length, bytes);
        _SBlock source{};
        BytesToBlock(bytes, source);
        _SBlock result = source;
        if (mode == BLOWFISH_CFB) {
            result = chain;
            CryptBlock(result, false);
            mix(result, source);
        } else {
            if (mode == BLOWFISH_CBC && !decrypt) mix(result, chain);
            CryptBlock(result, decrypt);
            if (mode == BLOWFISH_CBC && decrypt) mix(result, chain);
        }
        if (mode != BLOWFISH_ECB && length == 8) chain = decrypt ? source : result;
        BlockToBytes(result, bytes + 8);
        std::copy_n(bytes, length, out + at);
    }
}

}  // namespace keel
