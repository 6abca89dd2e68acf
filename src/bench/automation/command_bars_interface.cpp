// The collection of all command bars, and the bars.
#include "bench/automation/collection.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"

namespace brimwork::bench {
namespace command_bars_interface {

using win32::Variant;

MemoryCommandBars& All(Call& call) { return call.TheSession().TheWorkbench().vbe.commandBars; }

Variant Item(Call& call) {
  return EntryOf(call, All(call).All(), [](MemoryCommandBar& bar, const std::string& name) {
    return EqualNames(bar.LastName(), name);
  });
}
Variant CountOfBars(Call& call) { return CountOf(All(call).All()); }
Variant EnumerateBars(Call& call) { return EnumeratorOf(call, All(call).All()); }

Variant Add(Call& call) {
  constexpr int kPlaceOfNewBars = bar_position::kTop;
  const std::string name = call.TextOr(0, "");  // it gets one that is free
  NewCommandBar bar;
  bar.name = name;
  bar.position = static_cast<int>(call.LongOr(1, kPlaceOfNewBars));
  bar.isTemporary = call.BoolOr(3, false);
  return ObjectOf(call, All(call).Add(bar));
}

ControlQuery QueryOf(Call& call) {
  ControlQuery query;
  query.type = static_cast<int>(call.LongOr(0, 0));
  query.id = static_cast<int>(call.LongOr(1, 0));
  query.tag = call.TextOr(2, "");
  query.isVisible = call.BoolOr(3, false);
  return query;
}

Variant FindInAll(Call& call) { return ObjectOf(call, All(call).Find(QueryOf(call))); }

Variant ActionControl(Call& call) { return ObjectOf(call, All(call).ActionControl()); }

Variant ActiveMenuBar(Call& call) {
  return ObjectOf(call, All(call).OfName(MemoryVbe::kMenuBarName));
}

MemoryCommandBar& Self(Call& call) { return call.The<MemoryCommandBar>(); }

Variant Controls(Call& call) {
  return ObjectOf(call, std::static_pointer_cast<MemoryCommandBarControls>(Self(call).Controls()));
}

Variant Delete(Call& call) {
  Self(call).Delete();
  return Variant();
}

Variant FindInBar(Call& call) {
  ControlQuery query = QueryOf(call);
  query.isInPopups = call.BoolOr(4, false);
  Self(call).Controls();  // raises the error of a bar that was deleted
  return ObjectOf(call, Self(call).Entries()->Find(query));
}

Variant Name(Call& call) { return Variant(Self(call).Name()); }
Variant SetName(Call& call) {
  Self(call).SetName(call.Text(0));
  return Variant();
}

Variant Visible(Call& call) { return Variant(Self(call).Visible()); }
Variant SetVisible(Call& call) {
  Self(call).SetVisible(call.Bool(0));
  return Variant();
}
Variant Position(Call& call) { return Variant(Self(call).Position()); }
Variant SetPosition(Call& call) {
  Self(call).SetPosition(static_cast<int>(call.Long(0)));
  return Variant();
}
Variant RowIndex(Call& call) { return Variant(Self(call).RowIndex()); }
Variant SetRowIndex(Call& call) {
  Self(call).SetRowIndex(static_cast<int>(call.Long(0)));
  return Variant();
}
Variant Left(Call& call) { return Variant(Self(call).Left()); }
Variant SetLeft(Call& call) {
  Self(call).SetLeft(static_cast<int>(call.Long(0)));
  return Variant();
}
Variant Top(Call& call) { return Variant(Self(call).Top()); }
Variant SetTop(Call& call) {
  Self(call).SetTop(static_cast<int>(call.Long(0)));
  return Variant();
}

Bounds BoundsOf(Call& call) { return call.TheSession().TheSurface().BoundsOf(Self(call)); }
Variant Height(Call& call) { return Variant(BoundsOf(call).height); }
Variant Width(Call& call) { return Variant(BoundsOf(call).width); }

Variant BuiltIn(Call& call) { return Variant(Self(call).IsBuiltIn()); }

Variant Enabled(Call& call) { return Variant(Self(call).Details().enabled); }
Variant SetEnabled(Call& call) {
  BarDetails details = Self(call).Details();
  details.enabled = call.Bool(0);
  Self(call).SetDetails(details);
  return Variant();
}
Variant Protection(Call& call) { return Variant(Self(call).Details().protection); }
Variant SetProtection(Call& call) {
  BarDetails details = Self(call).Details();
  details.protection = static_cast<int>(call.Long(0));
  Self(call).SetDetails(details);
  return Variant();
}

Variant Index(Call& call) { return Variant(Self(call).Index()); }
Variant Type(Call& call) { return Variant(Self(call).Kind()); }

Variant ShowPopup(Call& call) {
  if (Self(call).Kind() != bar_type::kPopup) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Only a pop-up menu can be shown so");
  }
  call.TheSession().TheSurface().ShowPopup(Self(call));
  return Variant();
}

constexpr Member kCommandBarsMembers[] = {
    Get(L"Item", DISPID_VALUE, Item, Parameters(L"Index")),
    Get(L"ActionControl", 0x60030000, ActionControl),
    Get(L"ActiveMenuBar", 0x60030001, ActiveMenuBar),
    Method(L"Add", 0x60030002, Add, Parameters(L"?Name", L"?Position", L"?MenuBar", L"?Temporary")),
    Get(L"Count", 0x60030003, CountOfBars),
    Method(L"FindControl", 0x60030008, FindInAll,
           Parameters(L"?Type", L"?Id", L"?Tag", L"?Visible")),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateBars),
};

constexpr Member kCommandBarMembers[] = {
    Get(L"BuiltIn", 0x60040000, BuiltIn),
    Get(L"Controls", 0x60040003, Controls),
    Method(L"Delete", 0x60040004, Delete),
    GetPut(L"Enabled", 0x60040005, Enabled, SetEnabled),
    Method(L"FindControl", 0x60040007, FindInBar,
           Parameters(L"?Type", L"?Id", L"?Tag", L"?Visible", L"?Recursive")),
    Get(L"Height", 0x60040008, Height),
    Get(L"Index", 0x6004000A, Index),
    GetPut(L"Left", 0x6004000C, Left, SetLeft),
    GetPut(L"Name", 0x6004000E, Name, SetName),
    GetPut(L"NameLocal", 0x60040010, Name, SetName),
    Get(L"Parent", 0x60040012, VbeOf),
    GetPut(L"Position", 0x60040013, Position, SetPosition),
    GetPut(L"RowIndex", 0x60040015, RowIndex, SetRowIndex),
    GetPut(L"Protection", 0x60040017, Protection, SetProtection),
    Method(L"Reset", 0x60040019, NotOffered),
    Method(L"ShowPopup", 0x6004001A, ShowPopup, Parameters(L"?x", L"?y")),
    GetPut(L"Top", 0x6004001B, Top, SetTop),
    Get(L"Type", 0x6004001D, Type),
    GetPut(L"Visible", 0x6004001E, Visible, SetVisible),
    Get(L"Width", 0x60040020, Width),
};

}  // namespace command_bars_interface

constinit const InterfaceTable kCommandBars{"CommandBars", iid::kCommandBars,
                                            command_bars_interface::kCommandBarsMembers};
constinit const InterfaceTable kCommandBar{"CommandBar", iid::kCommandBar,
                                           command_bars_interface::kCommandBarMembers};

}  // namespace brimwork::bench
