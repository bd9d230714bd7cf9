#pragma once

#include <vertra/interop/fields.h>

#include <charconv>
#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>

/// The one text form of `ostream.h` and `fmt.h`.
namespace vertra::detail {

/// The shortest digits that read back as the same number go to `put`.
template <class N>
void PutDigits(N number, auto const& put, auto... base) {
    char digits[32];
    put(std::string_view(digits, std::to_chars(digits, digits + sizeof digits, number, base...).ptr));
}

/// The text of x: each of its scalars goes to `scalar`, all around them to `put`.
template <class X>
void PutText(X const& x, auto const& put, auto const& scalar) {
    if constexpr (std::floating_point<X>) {
        scalar(x);
    } else if constexpr (std::is_pointer_v<X>) {
        put("0x");
        PutDigits(reinterpret_cast<std::uintptr_t>(x), put, 16);
    } else if constexpr (std::is_enum_v<X> || std::integral<X>) {
        PutDigits(static_cast<int>(x), put);
    } else if constexpr (requires { x.name; }) {
        put(x.name);
        put(": ");
        PutText(x.value, put, scalar);
    } else {
        bool const isMatrix = std::same_as<X, Matrix3D<float>> || std::same_as<X, Matrix3D<double>>;
        std::string_view separator = isMatrix ? "" : "(";
        auto const one = [&](auto const& field) {
            put(separator);
            separator = isMatrix ? "\n" : ", ";
            PutText(field, put, scalar);
        };
        std::apply([&](auto const&... fields) { (one(fields), ...); }, detail::Fields(x));
        if (!isMatrix) put(")");
    }
}

}  // namespace vertra::detail
