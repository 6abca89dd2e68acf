// The sources of events of the object model.
#include "bench/automation/click_events.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"

namespace brimwork::bench {
namespace events_interface {

win32::Variant CommandBarEventsOf(Call& call) {
  return NewClickEvents(call.TheSession(),
                        ArgumentOf<MemoryCommandBarControl>(call, 0, kCommandBarControl));
}

constexpr Parameters kProject(L"VBProject");
constexpr Parameters kProjectAndForm(L"VBProject", L"VBForm");

constexpr Member kMembers[] = {
    Get(L"VBProjectsEvents", 0xC8, NotOffered),
    Get(L"VBComponentsEvents", 0xC9, NotOffered, kProject),
    Get(L"ReferencesEvents", 0xCA, NotOffered, kProject),
    Get(L"VBControlsEvents", 0xCB, NotOffered, kProjectAndForm),
    Get(L"SelectedVBControlsEvents", 0xCC, NotOffered, kProjectAndForm),
    Get(L"CommandBarEvents", 0xCD, CommandBarEventsOf, Parameters(L"CommandBarControl")),
    Get(L"FileControlEvents", 0xCE, NotOffered, kProject),
};

}  // namespace events_interface

constinit const InterfaceTable kEvents{"Events", iid::kEvents, events_interface::kMembers};

}  // namespace brimwork::bench
