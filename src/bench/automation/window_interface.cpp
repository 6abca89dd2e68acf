// The windows of the object model.
#include "bench/automation/collection.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"

namespace brimwork::bench {
namespace window_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }
Surface& SurfaceOf(Call& call) { return call.TheSession().TheSurface(); }
const auto& WindowsIn(Call& call) { return WorkbenchOf(call).vbe.windows.All(); }

Variant Item(Call& call) {
  return EntryOf(call, WindowsIn(call), [](MemoryWindow& window, const std::string& caption) {
    return EqualNames(window.Caption(), caption);
  });
}
Variant CountOfWindows(Call& call) { return CountOf(WindowsIn(call)); }
Variant EnumerateWindows(Call& call) { return EnumeratorOf(call, WindowsIn(call)); }

MemoryWindow& Self(Call& call) { return call.The<MemoryWindow>(); }

Variant Caption(Call& call) { return Variant(Self(call).Caption()); }
Variant Type(Call& call) { return Variant(Self(call).Type()); }
Variant Visible(Call& call) { return Variant(Self(call).Visible()); }
Variant SetVisible(Call& call) {
  Self(call).SetVisible(call.Bool(0));
  return Variant();
}
Variant SetFocus(Call& call) {
  Self(call).SetFocus();
  return Variant();
}
Variant Close(Call& call) {
  Self(call).Close();
  return Variant();
}

template <int Bounds::*side>
Variant Side(Call& call) {
  return Variant(SurfaceOf(call).BoundsOf(Self(call)).*side);
}

template <int Bounds::*side>
Variant SetSide(Call& call) {
  Bounds bounds = SurfaceOf(call).BoundsOf(Self(call));
  bounds.*side = static_cast<int>(call.Long(0));
  SurfaceOf(call).SetBoundsOf(Self(call), bounds);
  return Variant();
}

Variant State(Call& call) {
  return Variant(static_cast<long>(SurfaceOf(call).StateOf(Self(call))));
}

Variant SetState(Call& call) {
  const long state = call.Long(0);
  if (state < 0 || state > 2) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  SurfaceOf(call).SetStateOf(Self(call), static_cast<WindowState>(state));
  return Variant();
}

Variant Handle(Call& call) {
  return Variant(static_cast<long>(SurfaceOf(call).HandleOf(Self(call))));
}

// No window is linked to another here.
Variant NoFrame(Call&) { return Variant(static_cast<IDispatch*>(nullptr)); }

constexpr Member kWindowsMembers[] = {
    Method(L"Item", DISPID_VALUE, Item, Parameters(L"index")),
    Get(L"VBE", 0x1, VbeOf),
    Get(L"Parent", 0x2, VbeOf),
    Get(L"Count", 0xC9, CountOfWindows),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateWindows),
    Method(L"CreateToolWindow", 0x12C, NotOffered,
           Parameters(L"AddInInst", L"ProgId", L"Caption", L"GuidPosition", L"DocObj")),
};

constexpr Member kWindowMembers[] = {
    Get(L"VBE", 0x1, VbeOf),
    Get(L"Collection", 0x2, WindowsOf),
    Method(L"Close", 0x63, Close),
    Get(L"Caption", 0x64, Caption),
    GetPut(L"Left", 0x65, Side<&Bounds::left>, SetSide<&Bounds::left>),
    GetPut(L"Top", 0x67, Side<&Bounds::top>, SetSide<&Bounds::top>),
    GetPut(L"Width", 0x69, Side<&Bounds::width>, SetSide<&Bounds::width>),
    GetPut(L"Visible", 0x6A, Visible, SetVisible),
    GetPut(L"Height", 0x6B, Side<&Bounds::height>, SetSide<&Bounds::height>),
    GetPut(L"WindowState", 0x6D, State, SetState),
    Method(L"SetFocus", 0x6F, SetFocus),
    Get(L"Type", 0x70, Type),
    Method(L"SetKind", 0x71, NotOffered, Parameters(L"eKind")),
    Get(L"LinkedWindows", 0x74, NotOffered),
    Get(L"LinkedWindowFrame", 0x75, NoFrame),
    Method(L"Detach", 0x76, NotOffered),
    Method(L"Attach", 0x77, NotOffered, Parameters(L"lWindowHandle")),
    Get(L"HWnd", 0x78, Handle),
};

}  // namespace window_interface

constinit const InterfaceTable kWindows{"Windows", iid::kWindows,
                                        window_interface::kWindowsMembers};
constinit const InterfaceTable kWindow{"Window", iid::kWindow, window_interface::kWindowMembers};

}  // namespace brimwork::bench
