#include "windows/forms/form_kit.h"

#include <commctrl.h>

#include "windows/forms/control_window.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

void LoadCommonControls() {
  INITCOMMONCONTROLSEX record = {sizeof record, ICC_TAB_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&record);
}

}  // namespace

FormKit::FormKit(PictureFiles files, ScreenScale screenScale)
    : scale(screenScale),
      pictures(std::move(files), screenScale),
      formClass(L"BrimworkForm", this, FormWindow::Procedure),
      paneClass(L"BrimworkPane", this, DefWindowProcW, CS_HREDRAW | CS_VREDRAW) {
  LoadCommonControls();
}

}  // namespace brimwork::windows
