#include "ide_windows/modMiscellaneousButtonClickCode.h"

#include <cstdint>
#include <optional>
#include <string_view>

#include "environment/resume_next.h"

namespace brimwork {
namespace {

constexpr std::string_view kImmediateWindow = "Immediate";

bool IsCodeWindowOrDesigner(Window& window) {
  const int type = window.Type();
  return type == window_type::kCodeWindow || type == window_type::kDesigner;
}

/// Nothing while the main window has the focus.
std::optional<std::uintptr_t> ActiveWindowIdentity(Environment& environment) {
  const auto window = environment.vbe.ActiveWindow();
  return window ? std::optional(window->Identity()) : std::nullopt;
}

}  // namespace

void ClearImmediateWindow(Environment& environment) {
  // One step from the focus to the last key: keys that are sent after a failure would delete the
  // code of whichever module has the focus.
  ResumeNext([&] {
    const auto window = environment.vbe.WindowOfCaption(kImmediateWindow);
    if (!window || !window->Visible()) return;
    window->SetFocus();
    environment.keyboard.SendKeys("^(a)", true);
    environment.keyboard.SendKeys("{Del}", true);
  });
}

void CloseCodeWindows(Environment& environment, bool includeActive) {
  ResumeNext([&] {
    std::optional<std::uintptr_t> kept;
    if (!includeActive) kept = ActiveWindowIdentity(environment);
    for (const auto& window : environment.vbe.Windows()) {
      ResumeNext([&] {
        if (IsCodeWindowOrDesigner(*window) && window->Identity() != kept) window->Close();
      });
    }
  });
}

}  // namespace brimwork
