#pragma once

#include <vertra/interop/text.h>

#include <algorithm>
#include <string_view>
#include <version>

#ifdef __cpp_lib_format
#include <format>
#endif
#if !defined(__cpp_lib_format) || __has_include(<fmt/format.h>)
#include <fmt/format.h>
#endif

/// @file
/// For libfmt, and for std::format where the standard library has it: the text that `ostream.h` describes. A
/// format is one of a scalar and applies to each, {:.3f} or {:a}; without one, {}, each has the shortest
/// digits that read back as the same number.
namespace vertra::detail {

/// Scalar is the formatting library's own formatter of a scalar; to it a bad format is left.
template <class X, class Scalar>
struct Formatter {
    constexpr auto parse(auto& context) {
        isPlain = context.begin() == context.end() || *context.begin() == '}';
        return scalar.parse(context);
    }
    auto format(X const& x, auto& context) const {
        auto const put = [&](std::string_view text) {
            context.advance_to(std::copy(text.begin(), text.end(), context.out()));
        };
        PutText(x, put, [&](auto value) {
            if (isPlain) {
                PutDigits(value, put);
            } else {
                context.advance_to(scalar.format(value, context));
            }
        });
        return context.out();
    }

private:
    Scalar scalar;
    bool isPlain = true;
};

}  // namespace vertra::detail

#ifdef FMT_VERSION
template <vertra::detail::Primitive X>
struct fmt::formatter<X> : vertra::detail::Formatter<X, fmt::formatter<vertra::detail::ScalarOf<X>>> {};
#endif
#ifdef __cpp_lib_format
template <vertra::detail::Primitive X>
struct std::formatter<X> : vertra::detail::Formatter<X, std::formatter<vertra::detail::ScalarOf<X>>> {};
#endif
