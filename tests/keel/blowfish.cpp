#include <vertra/foundation/blowfish.h>

#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <openssl/provider.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Cipher = keel::CBlowFishEncrypterDecrypter;
using Bytes = std::vector<unsigned char>;

Bytes Hex(std::string const& digits) {
    Bytes bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return bytes;
}
void Crypt(Cipher& cipher, bool decrypt, unsigned char const* in, unsigned char* out, std::size_t size) {
    decrypt ? cipher.Decrypt(in, out, size) : cipher.Encrypt(in, out, size);
}
/// Both ways from the initial chain, in place.
void ExpectCrypts(Cipher& cipher, Bytes const& key, Bytes const& plain, Bytes const& secret) {
    cipher.SetKey(key.data(), key.size());
    for (bool const decrypt : {false, true}) {
        Bytes bytes = decrypt ? secret : plain;
        cipher.ResetChain();
        Crypt(cipher, decrypt, bytes.data(), bytes.data(), bytes.size());
        EXPECT_EQ(bytes, decrypt ? plain : secret) << "key of " << key.size();
    }
}

TEST(BlowFish, PublishedVectors) {  // B. Schneier publishes them with the cipher
    char const* const blocks[][3] = {{"0000000000000000", "0000000000000000", "4EF997456198DD78"},
                                     {"FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFFFF", "51866FD5B85ECB8A"},
                                     {"3000000000000000", "1000000000000001", "7D856F9A613063F2"},
                                     {"0123456789ABCDEF", "1111111111111111", "61F9C3802281B096"},
                                     {"FEDCBA9876543210", "0123456789ABCDEF", "0ACEAB0FC6A0A28D"}};
    char const* const keySizes[] = {
        "F9AD597C49DB005E", "E91D21C1D961A6D6", "E9C2B70A1BC65CF3", "BE1E639408640F05", "B39E44481BDB1E6E",
        "9457AA83B1928C0D", "8BB77032F960629D", "E87A244E2CC85E82", "15750E7A4F4EC577", "122BA70B3AB64AE0",
        "3A833C9AFFC537F6", "9409DA87A90F6BF2", "884F80625060B8B4", "1F85031C19E11968", "79D9373A714CA34F",
        "93142887EE3BE15C", "03429E838CE2D14B", "A4299E27469FF67B", "AFD5AED1C1BC96A8", "10851C0E3858DA9F",
        "E6F51ED79B9DB21F", "64A6E14AFD36B46F", "80C7D7D45A5479AD", "05044B62FA52D080"};
    Cipher cipher;
    for (auto const& [key, plain, secret] : blocks) ExpectCrypts(cipher, Hex(key), Hex(plain), Hex(secret));
    Bytes const key = Hex("F0E1D2C3B4A5968778695A4B3C2D1E0F0011223344556677"),
                block = Hex("FEDCBA9876543210");
    for (auto end = key.begin(); char const* const secret : keySizes)
        ExpectCrypts(cipher, Bytes(key.begin(), ++end), block, Hex(secret));

    Bytes const chainKey = Hex("0123456789ABCDEFF0E1D2C3B4A59687");
    std::string const text("7654321 Now is the time for \0\0\0\0", 32);
    cipher.SetInitialChain(block.data());
    cipher.SetEncryptionMode(Cipher::BLOWFISH_CBC);
    ExpectCrypts(cipher, chainKey, Bytes(text.begin(), text.end()),
                 Hex("6B77B4D63006DEE605B156E27403979358DEB9E7154616D959F1652BD5FF92CC"));
    cipher.SetEncryptionMode(Cipher::BLOWFISH_CFB);
    ExpectCrypts(cipher, chainKey, Bytes(text.begin(), text.end() - 3),
                 Hex("E73214A2822139CAF26ECF6D2EB9E76E3DA3DE04D1517200519D57A6C3"));
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
        EXPECT_EQ(out, Hex("4EF997456198DD78EE")) << "key and chain are as before";
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
                Crypt(cipher, decrypt, (decrypt ? secret.data() : text) + at, &(decrypt ? plain : secret)[at],
                      part);
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
