#include "windows/desktop/system_message_boxes.h"

#include <algorithm>

#include "win32/wide_text.h"
#include "windows/desktop/handles.h"

namespace brimwork::windows {

int SystemMessageBoxes::MessageBox(WindowHandle owner, std::string_view text,
                                   std::string_view title, std::int32_t style) {
  const int chosen = MessageBoxW(AsHwnd(owner), win32::Wide(text).c_str(),
                                 win32::Wide(title).c_str(), static_cast<UINT>(style));
  return std::max(0, chosen);  // a failure is not 0 on every system
}

}  // namespace brimwork::windows
