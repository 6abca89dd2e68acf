#include "windows/forms/screen_scale.h"

#include "windows/forms/gdi_object.h"

namespace brimwork::windows {

ScreenScale CurrentScreenScale() {
  const int dotsPerInch = GetDeviceCaps(MemoryContext(), LOGPIXELSX);
  return dotsPerInch > 0 ? ScreenScale{dotsPerInch} : ScreenScale{};
}

}  // namespace brimwork::windows
