// The run time that is linked in counts time with a function that the system has since Windows
// Vista only; with this in its place the library also starts on Windows XP.
#include <windows.h>

namespace {

ULONGLONG WINAPI MillisecondsSinceStart() {
  constexpr ULONGLONG kMillisecondsPerSecond = 1000;
  LARGE_INTEGER frequency;
  LARGE_INTEGER count;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&count);
  const auto perSecond = static_cast<ULONGLONG>(frequency.QuadPart);
  const auto counted = static_cast<ULONGLONG>(count.QuadPart);
  return counted / perSecond * kMillisecondsPerSecond +
         counted % perSecond * kMillisecondsPerSecond / perSecond;
}

}  // namespace

// Where the linker looks for the address of GetTickCount64 before it looks into the system's
// libraries.
#ifdef _WIN64
extern "C" ULONGLONG(WINAPI* const tickCountAddress)() __asm__("__imp_GetTickCount64");
#else
extern "C" ULONGLONG(WINAPI* const tickCountAddress)() __asm__("__imp__GetTickCount64@0");
#endif
ULONGLONG(WINAPI* const tickCountAddress)() = MillisecondsSinceStart;
