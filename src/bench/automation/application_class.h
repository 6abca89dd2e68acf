// The class by which a script outside gets at the object model: BrimworkBench.Application.
#pragma once

#include <windows.h>

#include <string>

#include "bench/automation/session.h"

namespace brimwork::bench {

inline constexpr CLSID kApplicationClass = {
    0x8d0c1f5a, 0x3b7e, 0x4c62, {0x9a, 0x41, 0x5e, 0x27, 0xc8, 0x96, 0x0d, 0xb3}};

/// Offers the class to other programs, as long as it lives. All of it belongs to the thread's
/// apartment, which must be single-threaded and run a message loop.
class ApplicationClass {
 public:
  /// Throws std::runtime_error with the system's words when the system refuses the class.
  ApplicationClass(Workbench& workbench, Surface& surface, AddInList& addIns);
  ~ApplicationClass();
  ApplicationClass(const ApplicationClass&) = delete;
  ApplicationClass& operator=(const ApplicationClass&) = delete;

 private:
  std::shared_ptr<Session> session_;
  win32::ComPointer<IClassFactory> factory_;
  DWORD registration_ = 0;
};

/// Writes the class into the current user's registry: program is started when a client asks for an
/// object and it does not run. Throws RunTimeError when that fails.
void RegisterApplicationClass(const std::string& program);
void UnregisterApplicationClass();

}  // namespace brimwork::bench
