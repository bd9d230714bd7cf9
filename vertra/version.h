#pragma once

/// The version of these headers, for #if; the constants say the same to code. The build reads it from here.
#define VERTRA_VERSION_MAJOR 0
#define VERTRA_VERSION_MINOR 1
#define VERTRA_VERSION_PATCH 0

namespace vertra {

inline constexpr int kVersionMajor = VERTRA_VERSION_MAJOR;
inline constexpr int kVersionMinor = VERTRA_VERSION_MINOR;
inline constexpr int kVersionPatch = VERTRA_VERSION_PATCH;

}  // namespace vertra
