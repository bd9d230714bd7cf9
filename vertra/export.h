#pragma once

/// Marks what the shared library exports. It stands on classes, on their forward declarations and on the
/// function lines of each header's list of instantiations, nowhere else.
#ifndef _WIN32
#define VERTRA_API __attribute__((visibility("default")))
#elif defined(vertra_EXPORTS)  // while the library itself is compiled; CMake defines it
#define VERTRA_API __declspec(dllexport)
#else  // the import library does it: on functions that may be inlined g++ ignores dllimport, with a warning
#define VERTRA_API
#endif
