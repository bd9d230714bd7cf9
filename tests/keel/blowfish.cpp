#include <vertra/foundation/blowfish.h>

#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <openssl/provider.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <vector>

namespace {

using Cipher = keel::CBlowFishEncrypterDecrypter;
using Bytes = std::vector<unsigned char>;

void Crypt(Cipher& cipher, bool decrypt, unsigned char const* in, unsigned char* out, std::size_t size) {
    decrypt ? cipher.Decrypt(in, out, size) : cipher.Encrypt(in, out, size);
}

TEST(BlowFish, RefusalsChangeNothing) {
    for (bool const decrypt : {false, true}) {
        Cipher cipher;
        Bytes const zeros(57);
        Bytes out(9, 0xEE);
        auto const crypt = [&](int mode, std::size_t size) {
            cipher.SetEncryptionMode(Cipher::BLOWFISH_ENCRYPTION_MODE(mode));
            EXPECT_TRUE(cipher.GetEncryptionMode() == mode && cipher.GetMinimumBlockSize() == 8);
            Crypt(cipher, decrypt, zeros.data(), out.data(), size);
        };
        EXPECT_THROW(crypt(1, 8), std::logic_error) << "no key";
        cipher.SetKey(zeros.data(), 8);
        for (std::size_t const size : {std::size_t(0), std::size_t(57)})
            EXPECT_THROW(cipher.SetKey(zeros.data(), size), std::invalid_argument) << size;
        for (int const mode : {-1, 3}) EXPECT_THROW(crypt(mode, 8), std::logic_error) << mode;
        for (int const mode : {0, 1}) EXPECT_THROW(crypt(mode, 9), std::invalid_argument) << mode;
        for (int const mode : {-1, 3, 0, 1, 2}) crypt(mode, 0);
        EXPECT_EQ(out, Bytes(9, 0xEE));
        crypt(2, 8);
        EXPECT_EQ(out, (Bytes{0x4E, 0xF9, 0x97, 0x45, 0x61, 0x98, 0xDD, 0x78, 0xEE}))
            << "key and chain as before: what is published for zeros";
    }
}

TEST(BlowFish, DestructionWipesTheKeySchedule) {
    alignas(Cipher) unsigned char memory[sizeof(Cipher)] = {};
    auto const zeros = [&] { return std::count(memory + sizeof(void*), std::end(memory), 0); };
    auto* const cipher = new (memory) Cipher;
    cipher->SetKey(memory, 8);
    EXPECT_LT(zeros(), 100);
    cipher->~Cipher();
    EXPECT_EQ(zeros(), sizeof(Cipher) - sizeof(void*));
}

TEST(BlowFish, AgreesWithOpenSslHoweverAMessageIsSplitAndInterrupted) {
    auto* const legacy = OSSL_PROVIDER_load(nullptr, "legacy");
    ASSERT_NE(legacy, nullptr) << "OpenSSL is here without its legacy ciphers";
    auto* const judge = EVP_CIPHER_CTX_new();
    EVP_CIPHER const* const kinds[] = {EVP_bf_ecb(), EVP_bf_cbc(), EVP_bf_cfb64()};
    std::mt19937 random(20240601);
    Bytes bytes(64 + 200), expected(200), secret(200), plain(200), scratch(8);
    for (int i = 0; i < 300; ++i) {
        std::ranges::generate(bytes, [&] { return static_cast<unsigned char>(random() & 0xFF); });
        unsigned char const *const key = bytes.data(), *const chain = &bytes[56], *const text = &bytes[64];
        int const mode = i % 3, keySize = 1 + i % 56;
        std::size_t const size = random() % 25 * 8 + (mode == Cipher::BLOWFISH_CFB ? random() % 8 : 0);
        int judged = 0;
        EVP_EncryptInit_ex(judge, kinds[mode], nullptr, nullptr, nullptr);
        EVP_CIPHER_CTX_set_key_length(judge, keySize);
        EVP_EncryptInit_ex(judge, nullptr, nullptr, key, chain);
        EVP_EncryptUpdate(judge, expected.data(), &judged, text, int(size));

        Cipher cipher;
        cipher.SetInitialChain(chain);
        for (bool const decrypt : {false, true}) {
            for (std::size_t at = 0, part = 0; at < size; at += part) {
                cipher.SetKey(text, 8);  // no key, no other mode and no short block moves the chain
                for (auto const other : {Cipher::BLOWFISH_ECB, Cipher::BLOWFISH_CFB}) {
                    cipher.SetEncryptionMode(other);
                    Crypt(cipher, decrypt, text, scratch.data(), other == Cipher::BLOWFISH_ECB ? 8 : 7);
                }
                cipher.SetKey(key, std::size_t(keySize));
                cipher.SetEncryptionMode(Cipher::BLOWFISH_ENCRYPTION_MODE(mode));
                part = std::min<std::size_t>(size - at, random() % 6 * 8);
                auto* const out = &(decrypt ? plain : secret)[at];
                auto const* in = (decrypt ? secret.data() : text) + at;
                if (i % 2 == 0) in = std::copy_n(in, part, out) - part;  // in place
                Crypt(cipher, decrypt, in, out, part);
            }
            cipher.ResetChain();
        }
        EXPECT_TRUE(std::size_t(judged) == size && std::equal(text, text + size, plain.begin()) &&
                    std::equal(expected.begin(), expected.begin() + judged, secret.begin()))
            << "mode " << mode << ", " << size << " bytes, key of " << keySize;
    }
    EVP_CIPHER_CTX_free(judge);
    OSSL_PROVIDER_unload(legacy);
}

}  // namespace
