#include <vertra/foundation/blowfish.h>

#include <initializer_list>

namespace keel {

int CBlowFishEncrypterDecrypter::GetMinimumBlockSize() const { return 8; }

void CBlowFishEncrypterDecrypter::SetEncryptionMode(BLOWFISH_ENCRYPTION_MODE mode_) { mode = mode_; }

CBlowFishEncrypterDecrypter::BLOWFISH_ENCRYPTION_MODE CBlowFishEncrypterDecrypter::GetEncryptionMode() const {
    return mode;
}

void CBlowFishEncrypterDecrypter::ResetChain() { chain = initialChain; }

unsigned int CBlowFishEncrypterDecrypter::F(unsigned int x) {
    return ((sboxes[0][x >> 24] + sboxes[1][x >> 16 & 0xFF]) ^ sboxes[2][x >> 8 & 0xFF]) +
           sboxes[3][x & 0xFF];
}

// NOLINTBEGIN(readability-convert-member-functions-to-static): members, as the engine has them
void CBlowFishEncrypterDecrypter::BytesToBlock(unsigned char const* bytes, _SBlock& block) const {
    for (std::uint32_t* half : {&block.left, &block.right}) {
        *half = 0;
        for (int i = 0; i < 4; ++i) *half = *half << 8 | *bytes++;
    }
}

void CBlowFishEncrypterDecrypter::BlockToBytes(_SBlock const& block, unsigned char* end) const {
    for (std::uint32_t half : {block.right, block.left})
        for (int i = 0; i < 4; ++i, half >>= 8) *--end = static_cast<unsigned char>(half & 0xFF);
}
// NOLINTEND(readability-convert-member-functions-to-static)

}  // namespace keel
