#include "render/picture.h"

#include "common/run.h"

#include <png.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace example {
namespace {

/// errno, or 0 for a complete file.
int Encode(Picture const& picture, std::FILE* file) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    errno = 0;
    if (png_image_write_to_stdio(&image, file, 0, picture.bytes.data(), 0, nullptr) &&
        std::fflush(file) == 0) {
        return 0;
    }
    return errno != 0 ? errno : EIO;
}

/// The same for a path, opened in the mode.
int Encode(Picture const& picture, std::string const& path, char const* mode) {
    std::FILE* const file = std::fopen(path.c_str(), mode);
    if (file == nullptr) return errno;
    int const error = Encode(picture, file);
    return std::fclose(file) != 0 && error == 0 ? errno : error;
}

}  // namespace

Picture::Picture(int width_, int height_)
    : width(width_),
      height(height_),
      bytes(3 * static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

void Picture::Set(int x, int y, unsigned int packed) {
    auto const pixel =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    for (std::size_t i = 0; i < 3; ++i) {
        bytes[3 * pixel + i] = static_cast<unsigned char>(packed >> (16 - 8 * i) & 0xFF);
    }
}

void WritePng(Picture const& picture, std::string const& path) {
    namespace fs = std::filesystem;
    auto const check = [&](int error) {
        if (error == 0) return;
        throw Error(path + ": cannot be written: " + std::generic_category().message(error));
    };
    std::error_code ignored;
    bool const exists = fs::exists(path, ignored);
    if (exists && !fs::is_regular_file(path, ignored)) return check(Encode(picture, path, "wb"));

    std::string const target =
        exists ? fs::canonical(path, ignored).string() : path;  // through symbolic links
    std::string const draft = target + '.' + std::to_string(getpid()) + ".part";
    int error = Encode(picture, draft, "wbx");
    if (error == 0 && std::rename(draft.c_str(), target.c_str()) != 0) error = errno;
    if (error != 0 && error != EEXIST) std::remove(draft.c_str());
    check(error);
}

}  // namespace example
