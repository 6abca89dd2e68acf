// The interfaces of the object model, and the objects of each as a call's result. Beside each
// stands what its objects stand for.
#pragma once

#include <memory>

#include "bench/automation/call.h"
#include "bench/automation/member.h"
#include "bench/automation/session.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {

extern const InterfaceTable kVbe;                 // the workbench
extern const InterfaceTable kWindows;             // the workbench
extern const InterfaceTable kWindow;              // MemoryWindow
extern const InterfaceTable kCodePanes;           // the workbench
extern const InterfaceTable kCodePane;            // MemoryCodePane
extern const InterfaceTable kCodeModule;          // WorkComponent
extern const InterfaceTable kVbProjects;          // the workbench
extern const InterfaceTable kVbProject;           // WorkProject
extern const InterfaceTable kVbComponents;        // WorkProject
extern const InterfaceTable kVbComponent;         // WorkComponent
extern const InterfaceTable kAddIns;              // the list of add-ins
extern const InterfaceTable kAddIn;               // AddInEntry
extern const InterfaceTable kEvents;              // the workbench
extern const InterfaceTable kCommandBars;         // the workbench
extern const InterfaceTable kCommandBar;          // MemoryCommandBar
extern const InterfaceTable kCommandBarControls;  // MemoryCommandBarControls
extern const InterfaceTable kCommandBarControl;   // MemoryCommandBarControl; so the next two
extern const InterfaceTable kCommandBarButton;
extern const InterfaceTable kCommandBarPopup;

// The root and its collections.
win32::Variant VbeOf(Call& call);
win32::Variant WindowsOf(Call& call);
win32::Variant CodePanesOf(Call& call);
win32::Variant VbProjectsOf(Call& call);
win32::Variant CommandBarsOf(Call& call);

// Objects; null gives "nothing".
win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryWindow>& window);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCodePane>& pane);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<WorkProject>& project);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<WorkComponent>& component);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBar>& bar);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBarControls>& controls);
win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBarControl>& control);

/// The code module of a component; "nothing" for one without code.
win32::Variant CodeModuleOf(Call& call, const std::shared_ptr<WorkComponent>& component);

/// A member that this environment has for the sake of its name: it raises error 445.
win32::Variant NotOffered(Call& call);

/// What an object that a client passed stands for; null when it is no such object.
template <typename Target>
std::shared_ptr<Target> TargetOf(IUnknown* object, const InterfaceTable& table) {
  const AutomationObject* const own = AutomationObject::From(object, table);
  if (own == nullptr) return nullptr;
  return std::any_cast<std::shared_ptr<Target>>(own->Target());
}

/// The same for an argument; raises error 13 for any other object.
template <typename Target>
std::shared_ptr<Target> ArgumentOf(Call& call, std::size_t index, const InterfaceTable& table) {
  auto target = TargetOf<Target>(call.Object(index).get(), table);
  if (target == nullptr) throw RunTimeError(error_number::kTypeMismatch, "Type mismatch");
  return target;
}

}  // namespace brimwork::bench
