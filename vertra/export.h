#pragma once

/// Marks what the shared library exports. It stands on classes, on their forward declarations and on the
/// function lines of each header's list of instantiations, nowhere else.
#define VERTRA_API __attribute__((visibility("default")))
