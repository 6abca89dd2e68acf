// The code panes of the object model.
#include "bench/automation/collection.h"
#include "bench/automation/columns.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"

namespace brimwork::bench {
namespace code_pane_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }
Surface& SurfaceOf(Call& call) { return call.TheSession().TheSurface(); }

// A pane is found by number alone.
Variant Item(Call& call) {
  return EntryOf(call, WorkbenchOf(call).vbe.Panes(),
                 [](MemoryCodePane&, const std::string&) { return false; });
}
Variant CountOfPanes(Call& call) { return CountOf(WorkbenchOf(call).vbe.Panes()); }
Variant EnumeratePanes(Call& call) { return EnumeratorOf(call, WorkbenchOf(call).vbe.Panes()); }

Variant Current(Call& call) {
  return ObjectOf(call,
                  std::static_pointer_cast<MemoryCodePane>(WorkbenchOf(call).vbe.ActiveCodePane()));
}

void Activate(MemoryCodePane& pane) {
  if (const auto window = pane.ContainingWindow()) window->SetFocus();
}

Variant SetCurrent(Call& call) {
  Activate(*ArgumentOf<MemoryCodePane>(call, 0, kCodePane));
  return Variant();
}

MemoryCodePane& Self(Call& call) { return call.The<MemoryCodePane>(); }

Variant WindowOfPane(Call& call) {
  return ObjectOf(call, std::static_pointer_cast<MemoryWindow>(Self(call).ContainingWindow()));
}

Variant ModuleOfPane(Call& call) {
  return CodeModuleOf(call, WorkbenchOf(call).ComponentOf(*Self(call).Module()));
}

Variant GetSelection(Call& call) {
  const Selection selection = InUnits(*Self(call).Module(), Self(call).GetSelection());
  call.Return(0, selection.startLine);
  call.Return(1, selection.startColumn);
  call.Return(2, selection.endLine);
  call.Return(3, selection.endColumn);
  return Variant();
}

Variant SetSelection(Call& call) {
  const auto number = [&](std::size_t index) { return static_cast<int>(call.Long(index)); };
  Self(call).SetSelection(
      InCharacters(*Self(call).Module(), {number(0), number(1), number(2), number(3)}));
  return Variant();
}

Variant TopLine(Call& call) { return Variant(SurfaceOf(call).TopLineOf(Self(call))); }

Variant SetTopLine(Call& call) {
  const long line = call.Long(0);
  if (line < 1) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  const long last = std::max(1, Self(call).Module()->CountOfLines());
  SurfaceOf(call).SetTopLineOf(Self(call), static_cast<int>(std::min(line, last)));
  return Variant();
}

Variant VisibleLines(Call& call) { return Variant(SurfaceOf(call).VisibleLinesOf(Self(call))); }

Variant Show(Call& call) {
  Activate(Self(call));
  return Variant();
}

Variant FullModuleView(Call&) { return Variant(1); }

constexpr Member kCodePanesMembers[] = {
    Method(L"Item", DISPID_VALUE, Item, Parameters(L"index")),
    Get(L"Parent", 0x60020000, VbeOf),
    Get(L"VBE", 0x60020001, VbeOf),
    Get(L"Count", 0x60020003, CountOfPanes),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumeratePanes),
    GetSet(L"Current", 0x60020005, Current, SetCurrent),
};

constexpr Parameters kCorners(L"StartLine", L"StartColumn", L"EndLine", L"EndColumn");

constexpr Member kCodePaneMembers[] = {
    Get(L"Collection", 0x60020000, CodePanesOf),
    Get(L"VBE", 0x60020001, VbeOf),
    Get(L"Window", 0x60020002, WindowOfPane),
    Method(L"GetSelection", 0x60020003, GetSelection, kCorners),
    Method(L"SetSelection", 0x60020004, SetSelection, kCorners),
    GetPut(L"TopLine", 0x60020005, TopLine, SetTopLine),
    Get(L"CountOfVisibleLines", 0x60020007, VisibleLines),
    Get(L"CodeModule", 0x60020008, ModuleOfPane),
    Method(L"Show", 0x60020009, Show),
    Get(L"CodePaneView", 0x6002000A, FullModuleView),
};

}  // namespace code_pane_interface

constinit const InterfaceTable kCodePanes{"CodePanes", iid::kCodePanes,
                                          code_pane_interface::kCodePanesMembers};
constinit const InterfaceTable kCodePane{"CodePane", iid::kCodePane,
                                         code_pane_interface::kCodePaneMembers};

}  // namespace brimwork::bench
