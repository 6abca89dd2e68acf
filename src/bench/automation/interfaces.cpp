#include "bench/automation/interfaces.h"

#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace {

/// The object of an interface that stands for the workbench as a whole.
win32::Variant WholeOf(Call& call, const InterfaceTable& table) {
  Session& session = call.TheSession();
  const std::shared_ptr<Workbench> whole(std::shared_ptr<void>(), &session.TheWorkbench());
  return session.ObjectFor(table, whole);
}

const InterfaceTable& InterfaceOf(const MemoryCommandBarControl& control) {
  return control.Entries() == nullptr ? kCommandBarButton : kCommandBarPopup;
}

}  // namespace

win32::Variant VbeOf(Call& call) { return win32::Variant(call.TheSession().Vbe()); }
win32::Variant WindowsOf(Call& call) { return WholeOf(call, kWindows); }
win32::Variant CodePanesOf(Call& call) { return WholeOf(call, kCodePanes); }
win32::Variant VbProjectsOf(Call& call) { return WholeOf(call, kVbProjects); }
win32::Variant CommandBarsOf(Call& call) { return WholeOf(call, kCommandBars); }

win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryWindow>& window) {
  return call.TheSession().ObjectFor(kWindow, window);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCodePane>& pane) {
  return call.TheSession().ObjectFor(kCodePane, pane);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<WorkProject>& project) {
  return call.TheSession().ObjectFor(kVbProject, project);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<WorkComponent>& component) {
  return call.TheSession().ObjectFor(kVbComponent, component);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBar>& bar) {
  return call.TheSession().ObjectFor(kCommandBar, bar);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBarControls>& controls) {
  return call.TheSession().ObjectFor(kCommandBarControls, controls);
}

win32::Variant ObjectOf(Call& call, const std::shared_ptr<MemoryCommandBarControl>& control) {
  if (control == nullptr) return win32::Variant(static_cast<IDispatch*>(nullptr));
  return call.TheSession().ObjectFor(InterfaceOf(*control), control);
}

win32::Variant CodeModuleOf(Call& call, const std::shared_ptr<WorkComponent>& component) {
  const bool hasCode = component != nullptr && component->Module() != nullptr;
  return call.TheSession().ObjectFor(kCodeModule, hasCode ? component : nullptr);
}

win32::Variant NotOffered(Call&) {
  constexpr int kActionNotSupported = 445;
  throw RunTimeError(kActionNotSupported, "Object doesn't support this action");
}

}  // namespace brimwork::bench
