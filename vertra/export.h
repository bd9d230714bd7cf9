#pragma once

/// Marks what the shared library exports. It stands on classes, on their forward declarations and on the
/// function lines of each header's list of instantiations, nowhere else.
#ifndef _WIN32
#define VERTRA_API __attribute__((visibility("default")))
#elif defined(vertra_EXPORTS)  // while the library itself is compiled
#define VERTRA_API __declspec(dllexport)
#else
#define VERTRA_API __declspec(dllimport)
#endif
