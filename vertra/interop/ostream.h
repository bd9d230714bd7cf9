#pragma once

#include <vertra/interop/text.h>

#include <ios>
#include <ostream>
#include <string_view>

namespace vertra {

/// Vectors and colours as (1, 2, 3, 0), a matrix as four lines, one a row, and where places do not tell,
/// names: (min: (0, 0, 0, 0), max: (1, 1, 1, 0)). Every w is shown.
///
/// Scalars have the shortest digits that read back as the same number. Under std::fixed, std::scientific or
/// std::hexfloat they are as the stream writes them. Each of them fills the width.
template <detail::Primitive X>
std::ostream& operator<<(std::ostream& out, X const& x) {
    std::streamsize const width = out.width(0);
    auto const put = [&](std::string_view text) { out << text; };
    detail::PutText(x, put, [&](auto scalar) {
        out.width(width);
        if ((out.flags() & std::ios_base::floatfield) != 0) {
            out << scalar;
        } else {
            detail::PutDigits(scalar, put);
        }
    });
    return out;
}

}  // namespace vertra
