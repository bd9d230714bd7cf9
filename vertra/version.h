#pragma once

/// @{ The version of these headers, for the preprocessor's conditions. The build reads it from here.
#define VERTRA_VERSION_MAJOR 0
#define VERTRA_VERSION_MINOR 1
#define VERTRA_VERSION_PATCH 0
/// @}

/// The types, each of them for float and for double.
namespace vertra {

/// @{ The three macros as constants.
inline constexpr int kVersionMajor = VERTRA_VERSION_MAJOR;
inline constexpr int kVersionMinor = VERTRA_VERSION_MINOR;
inline constexpr int kVersionPatch = VERTRA_VERSION_PATCH;
/// @}

}  // namespace vertra
