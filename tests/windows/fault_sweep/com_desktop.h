// An environment over COM, with a workbench behind it, and a desktop of plain data around it. Calls
// over COM fail as told.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "bench/automation/automation_fixture.h"
#include "memory/memory_environment.h"
#include "support/windows/faulty_dispatch.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::windows {

class ComDesktop {
 public:
  explicit ComDesktop(DispatchFault fault);
  ~ComDesktop() { session_->End(); }
  ComDesktop(const ComDesktop&) = delete;
  ComDesktop& operator=(const ComDesktop&) = delete;

  /// Adds a module to the project and opens it in a code window, which gets the focus.
  std::shared_ptr<MemoryCodePane> Open(const std::string& text);

  /// The parts live as long as this, or until the connection is closed.
  Environment Parts();

  /// Lets go of the environment's root.
  void CloseConnection() { vbe_.reset(); }

  /// What is still held of the environment, object by object.
  std::vector<bench::HeldObject> Held() const { return session_->Held(); }

  /// "" when pointer, redraw lock and clipboard are the user's again.
  std::string Complaint();

  static constexpr const char* kUsersClipboard = "what the user copied";

  DispatchCalls calls;
  bench::Workbench workbench;
  MemoryEnvironment desktop;

 private:
  bench::BareSurface surface_;
  bench::NoAddIns addIns_;
  std::shared_ptr<bench::Session> session_;
  MemoryWordProcessors wordProcessors_{workbench.clipboard};
  std::unique_ptr<ComVbe> vbe_;
};

}  // namespace brimwork::windows
