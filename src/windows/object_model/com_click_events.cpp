#include "windows/object_model/com_click_events.h"

#include <utility>

#include "environment/run_time_error.h"
#include "windows/object_model/click_connection.h"

namespace brimwork::windows {

using win32::Variant;

namespace {

using Control = std::shared_ptr<ComCommandBarControl>;

/// bound: the control that is meant where the environment does not say which was clicked.
ClickSink::Handler SinkHandler(Control bound, ClickHandler onClick) {
  return [bound = std::move(bound), onClick = std::move(onClick)](const auto& clicked) {
    if (!clicked) return onClick(*bound);
    const auto& connection = bound->Control().Connected();
    ComCommandBarControl control(DispatchObject(clicked, connection, ComCommandBarControl::kKind));
    onClick(control);
  };
}

}  // namespace

// The interface of these events is empty, so they need not be an automation object.
ComClickEvents::ComClickEvents(const DispatchObject& vbe, Control control, ClickHandler onClick)
    : events_(ToUnknown(vbe.Part(ObjectKind::kEvents, L"Events")
                            .Get(L"CommandBarEvents", Variant(control->Control().Object())))),
      sink_(ClickSink::Make(SinkHandler(std::move(control), std::move(onClick)),
                            vbe.Connected()->inUse)) {
  auto connection = ConnectClicks(events_, *sink_);
  if (!connection.point) {
    throw RunTimeError(error_number::kNotSupportedByObject, "the environment tells of no clicks");
  }
  point_ = std::move(connection.point);
  cookie_ = connection.cookie;
}

ComClickEvents::~ComClickEvents() {
  sink_->Deafen();
  point_->Unadvise(cookie_);
}

}  // namespace brimwork::windows
