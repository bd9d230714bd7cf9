// Part of the Windows library alone.
#ifdef _WIN32

#include <windows.h>

// The sine, cosine and arc tangent that mingw links in come from the x87, which gives up large angles. The C
// runtime's own, which mingw declares as data only, are those of the platform.
// NOLINTBEGIN(bugprone-reserved-identifier, readability-identifier-naming): the linker's names for imports
extern "C" {
extern double (*__imp_sin)(double);
extern double (*__imp_cos)(double);
extern double (*__imp_atan2)(double, double);

double sin(double x) { return __imp_sin(x); }
double cos(double x) { return __imp_cos(x); }
double atan2(double y, double x) { return __imp_atan2(y, x); }
void sincos(double x, double* sine, double* cosine) {  // what g++ makes of the two of one angle
    *sine = sin(x);
    *cosine = cos(x);
}
}
// NOLINTEND(bugprone-reserved-identifier, readability-identifier-naming)

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(library);
    return TRUE;
}

#endif
