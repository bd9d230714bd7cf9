#!/usr/bin/env python3
"""Prints pi.h, by J. Machin's formula of 1706: pi = 16 atan(1/5) - 4 atan(1/239)."""

WORDS, GUARD = 18 + 4 * 256, 64
ONE = 1 << (32 * WORDS + GUARD)


def atan_of_inverse(n):
    total, power, divisor = 0, ONE // n, 1
    while power:
        total += power // divisor
        power, divisor = power // -(n * n), divisor + 2
    return total


fraction = (16 * atan_of_inverse(5) - 4 * atan_of_inverse(239)) % ONE >> GUARD
words = [f"0x{fraction >> 32 * i & 0xFFFFFFFF:08X}" for i in reversed(range(WORDS))]
rows = ",\n    ".join(", ".join(words[i : i + 8]) for i in range(0, WORDS, 8))
print(f"""\
#pragma once

#include <cstdint>

namespace keel {{

/// The fraction of pi, 32 bits a word, the top ones first. Blowfish begins with its first 18 words as subkeys
/// and the rest as S-boxes. Printed by pi.py.
inline constexpr std::uint32_t kPi[18 + 4 * 256] = {{
    {rows},
}};

}}  // namespace keel""")
