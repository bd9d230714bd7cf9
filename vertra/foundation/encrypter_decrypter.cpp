#include <vertra/foundation/encrypter_decrypter.h>

namespace keel {

IEncrypterDecrypter::IEncrypterDecrypter() = default;
IEncrypterDecrypter::~IEncrypterDecrypter() = default;

}  // namespace keel
