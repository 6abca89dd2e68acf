// Finds where the environment's events object tells of clicks.
#pragma once

#include <windows.h>

#include <ocidl.h>

#include "win32/com_pointer.h"
#include "windows/object_model/click_sink.h"

namespace brimwork::windows {

/// A sink that is listening; point is null where nothing would have it.
struct ClickConnection {
  win32::ComPointer<IConnectionPoint> point;
  DWORD cookie = 0;
};

/// Visual Basic 6 and the VBA editors have an event interface each, and others may come: the sink
/// is offered to the first, the second, then to every connection point that there is.
ClickConnection ConnectClicks(const win32::ComPointer<IUnknown>& events, ClickSink& sink);

}  // namespace brimwork::windows
