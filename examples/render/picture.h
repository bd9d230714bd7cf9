#pragma once

#include <string>
#include <vector>

namespace example {

struct Picture {
    int width;
    int height;
    std::vector<unsigned char> bytes;  ///< red, green, blue of each pixel, from the upper left

    Picture(int width_, int height_);
    /// 0xAARRGGBB; alpha is dropped.
    void Set(int x, int y, unsigned int packed);
};

/// Writes a PNG file. It appears under its name when it is complete and not before; a device or a pipe is
/// written straight into. Throws an Error that names the path.
void WritePng(Picture const& picture, std::string const& path);

}  // namespace example
