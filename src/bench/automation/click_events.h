// The object that tells a client of the clicks on a control: an object with a connection point, as
// long as it lives.
#pragma once

#include <memory>

#include "memory/memory_command_bar_control.h"
#include "win32/variant.h"

namespace brimwork::bench {

class Session;

/// An object without automation of its own (IUnknown, IConnectionPointContainer and
/// IProvideClassInfo2), whose connection point calls Click for each click on the control, and on
/// those that have its Id and Tag now.
win32::Variant NewClickEvents(Session& session,
                              const std::shared_ptr<MemoryCommandBarControl>& control);

}  // namespace brimwork::bench
