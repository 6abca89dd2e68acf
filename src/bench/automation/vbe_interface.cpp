// The root of the object model.
#include "bench/automation/add_ins_object.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace vbe_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }

Variant Name(Call&) { return Variant("Visual Basic"); }
Variant FullName(Call& call) { return Variant(WorkbenchOf(call).vbe.FullName()); }
Variant Version(Call&) { return Variant("6.00 Brimwork Bench"); }
Variant TemplatePath(Call&) { return Variant(""); }
Variant ReadOnlyMode(Call&) { return Variant(static_cast<short>(0)); }
Variant DisplayModel(Call&) { return Variant(1); }

Variant LastUsedPath(Call& call) { return Variant(WorkbenchOf(call).lastUsedPath); }
Variant SetLastUsedPath(Call& call) {
  WorkbenchOf(call).lastUsedPath = call.Text(0);
  return Variant();
}

Variant ActiveVbProject(Call& call) { return ObjectOf(call, WorkbenchOf(call).ActiveProject()); }
Variant SetActiveVbProject(Call& call) {
  WorkbenchOf(call).SetActiveProject(ArgumentOf<WorkProject>(call, 0, kVbProject));
  return Variant();
}

Variant SelectedVbComponent(Call& call) {
  return ObjectOf(call, WorkbenchOf(call).SelectedComponent());
}

Variant MainWindow(Call& call) {
  return ObjectOf(call, std::static_pointer_cast<MemoryWindow>(WorkbenchOf(call).vbe.MainWindow()));
}

Variant ActiveWindow(Call& call) {
  return ObjectOf(call,
                  std::static_pointer_cast<MemoryWindow>(WorkbenchOf(call).vbe.ActiveWindow()));
}

Variant ActiveCodePane(Call& call) {
  return ObjectOf(call,
                  std::static_pointer_cast<MemoryCodePane>(WorkbenchOf(call).vbe.ActiveCodePane()));
}

Variant SetActiveCodePane(Call& call) {
  ArgumentOf<MemoryCodePane>(call, 0, kCodePane)->ContainingWindow()->SetFocus();
  return Variant();
}

Variant EventsOf(Call& call) {
  Session& session = call.TheSession();
  const std::shared_ptr<Workbench> whole(std::shared_ptr<void>(), &session.TheWorkbench());
  return session.ObjectFor(kEvents, whole);
}

Variant Quit(Call& call) {
  call.TheSession().TheSurface().Quit();
  return Variant();
}

constexpr Member kMembers[] = {
    Get(L"Name", 0x0, Name),
    Get(L"FullName", 0xA, FullName),
    GetPut(L"LastUsedPath", 0xB, LastUsedPath, SetLastUsedPath),
    Get(L"Version", 0x64, Version),
    Get(L"ReadOnlyMode", 0x6A, ReadOnlyMode),
    Get(L"VBProjects", 0x6B, VbProjectsOf),
    Get(L"CommandBars", 0x6C, CommandBarsOf),
    Get(L"CodePanes", 0x6D, CodePanesOf),
    Get(L"Windows", 0x6E, WindowsOf),
    Get(L"Events", 0x6F, EventsOf),
    Get(L"Addins", 0xC8, AddInsOf),
    GetSet(L"ActiveVBProject", 0xC9, ActiveVbProject, SetActiveVbProject),
    Get(L"SelectedVBComponent", 0xCA, SelectedVbComponent),
    Get(L"TemplatePath", 0xCB, TemplatePath),
    Get(L"MainWindow", 0xCC, MainWindow),
    Get(L"ActiveWindow", 0xCD, ActiveWindow),
    GetSet(L"ActiveCodePane", 0xCE, ActiveCodePane, SetActiveCodePane),
    Method(L"Quit", 0xCF, Quit),
    Get(L"DisplayModel", 0xD0, DisplayModel),
};

}  // namespace vbe_interface

constinit const InterfaceTable kVbe{"VBE", iid::kVbe, vbe_interface::kMembers};

}  // namespace brimwork::bench
