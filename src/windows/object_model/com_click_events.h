// The binding of a control's clicks to a handler over COM.
#pragma once

#include <memory>

#include "environment/command_bar.h"
#include "windows/object_model/click_sink.h"
#include "windows/object_model/com_command_bar_control.h"
#include "windows/object_model/dispatch_object.h"

struct IConnectionPoint;

namespace brimwork::windows {

class ComClickEvents : public CommandBarEvents {
 public:
  /// vbe: the environment. Raises error 438 when its events do not know clicks.
  ComClickEvents(const DispatchObject& vbe, std::shared_ptr<ComCommandBarControl> control,
                 ClickHandler onClick);
  /// Raises nothing, even when the environment has gone.
  ~ComClickEvents() override;

 private:
  win32::ComPointer<IUnknown> events_;  // when it goes, clicks end
  win32::ComPointer<ClickSink> sink_;
  win32::ComPointer<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace brimwork::windows
