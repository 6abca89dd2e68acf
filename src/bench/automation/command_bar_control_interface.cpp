// The controls of command bars.
#include "bench/automation/collection.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"

namespace brimwork::bench {
namespace {

using win32::Variant;

Surface& SurfaceOf(Call& call) { return call.TheSession().TheSurface(); }
Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }

// The collection of a bar's or a popup's controls.

MemoryCommandBarControls& Controls(Call& call) { return call.The<MemoryCommandBarControls>(); }

Variant Item(Call& call) {
  const auto control = call.IsText(0) ? Controls(call).Item(call.Text(0))
                                      : Controls(call).Item(static_cast<int>(call.Long(0)));
  return ObjectOf(call, std::static_pointer_cast<MemoryCommandBarControl>(control));
}
Variant CountOfControls(Call& call) { return Variant(Controls(call).Count()); }
Variant EnumerateControls(Call& call) { return EnumeratorOf(call, Controls(call).All()); }

std::shared_ptr<MemoryCommandBarControl> AddTo(MemoryCommandBarControls& controls,
                                               const NewControl& control) {
  return std::static_pointer_cast<MemoryCommandBarControl>(controls.Add(control));
}

Variant Add(Call& call) {
  NewControl control;
  control.type = static_cast<int>(call.LongOr(0, control_type::kButton));
  control.id = static_cast<int>(call.LongOr(1, control_id::kCustom));
  control.before = static_cast<int>(call.LongOr(3, 0));
  control.isTemporary = call.BoolOr(4, false);
  const auto added = AddTo(Controls(call), control);
  if (call.Has(2)) {
    ControlDetails details = added->Details();
    details.parameter = call.Text(2);
    added->SetDetails(details);
  }
  return ObjectOf(call, added);
}

/// The bar or popup that shows these controls; null when they are nowhere any more.
Variant OwnerOf(Call& call, const MemoryCommandBarControls& controls) {
  for (const auto& bar : WorkbenchOf(call).vbe.commandBars.All()) {
    if (bar->Entries().get() == &controls) return ObjectOf(call, bar);
  }
  return ObjectOf(call, WorkbenchOf(call).vbe.commandBars.PopupOf(controls));
}
Variant ParentOfControls(Call& call) { return OwnerOf(call, Controls(call)); }

// A control.

MemoryCommandBarControl& Self(Call& call) { return call.The<MemoryCommandBarControl>(); }

template <auto field>
Variant Detail(Call& call) {
  return Variant(Self(call).Details().*field);
}

template <auto field>
void Change(Call& call, decltype(ControlDetails{}.*field) value) {
  Self(call).Tag();  // raises the error of a control that was deleted
  ControlDetails details = Self(call).Details();
  details.*field = std::move(value);
  Self(call).SetDetails(std::move(details));
}

template <std::string ControlDetails::*field>
Variant SetText(Call& call) {
  Change<field>(call, call.Text(0));
  return Variant();
}

template <int ControlDetails::*field>
Variant SetNumber(Call& call) {
  Change<field>(call, static_cast<int>(call.Long(0)));
  return Variant();
}

template <bool ControlDetails::*field>
Variant SetTruth(Call& call) {
  Change<field>(call, call.Bool(0));
  return Variant();
}

Variant Type(Call& call) { return Variant(Self(call).Type()); }
Variant Id(Call& call) { return Variant(Self(call).Id()); }
Variant Index(Call& call) { return Variant(Self(call).Index()); }
Variant Caption(Call& call) { return Variant(Self(call).Caption()); }
Variant SetCaption(Call& call) {
  Self(call).SetCaption(call.Text(0));
  return Variant();
}
Variant Tag(Call& call) { return Variant(Self(call).Tag()); }
Variant SetTag(Call& call) {
  Self(call).SetTag(call.Text(0));
  return Variant();
}
Variant BeginGroup(Call& call) { return Variant(Self(call).BeginGroup()); }
Variant SetBeginGroup(Call& call) {
  Self(call).SetBeginGroup(call.Bool(0));
  return Variant();
}
Variant BuiltIn(Call& call) { return Variant(Self(call).Id() != control_id::kCustom); }

Variant Execute(Call& call) {
  Self(call).Execute();
  return Variant();
}

Variant Delete(Call& call) {
  Self(call).Delete();
  return Variant();
}

// A tool tip that was not given is the caption.
Variant TooltipText(Call& call) {
  const std::string& text = Self(call).Details().tooltipText;
  return Variant(text.empty() ? WithoutAccessKeys(Self(call).Caption()) : text);
}

Bounds BoundsOf(Call& call) { return SurfaceOf(call).BoundsOf(Self(call)); }
Variant Left(Call& call) { return Variant(BoundsOf(call).left); }
Variant Top(Call& call) { return Variant(BoundsOf(call).top); }
Variant Width(Call& call) { return Variant(BoundsOf(call).width); }
Variant Height(Call& call) { return Variant(BoundsOf(call).height); }

Variant Parent(Call& call) { return OwnerOf(call, Self(call).Neighbours()); }

/// Where Copy and Move put a control: the controls of the bar that is named, else its own; the
/// place in front of which it goes.
struct Place {
  std::shared_ptr<MemoryCommandBarControls> controls;
  int before;
};

Place PlaceOf(Call& call) {
  if (!call.Has(0)) return {Self(call).SharedNeighbours(), static_cast<int>(call.LongOr(1, 0))};
  const auto bar = ArgumentOf<MemoryCommandBar>(call, 0, kCommandBar);
  return {bar->Entries(), static_cast<int>(call.LongOr(1, 0))};
}

std::shared_ptr<MemoryCommandBarControl> CopyTo(Call& call) {
  const Place place = PlaceOf(call);
  MemoryCommandBarControl& self = Self(call);
  if (self.Entries() != nullptr) NotOffered(call);
  const auto copy =
      AddTo(*place.controls, {self.Type(), self.Id(), place.before, self.IsTemporary()});
  copy->SetCaption(self.Caption());
  copy->SetTag(self.Tag());
  copy->SetStyle(self.Style());
  copy->SetDetails(self.Details());
  return copy;
}

Variant Copy(Call& call) { return ObjectOf(call, CopyTo(call)); }

Variant Move(Call& call) {
  const auto moved = CopyTo(call);
  Self(call).Delete();
  return ObjectOf(call, moved);
}

// A button.

Variant Style(Call& call) { return Variant(Self(call).Style()); }
Variant SetStyle(Call& call) {
  Self(call).SetStyle(static_cast<int>(call.Long(0)));
  return Variant();
}

Variant PasteFace(Call& call) {
  WorkbenchOf(call).clipboard.SetData(SurfaceOf(call).FaceFromClipboard());
  Self(call).PasteFace();
  return Variant();
}

Variant CopyFace(Call& call) {
  SurfaceOf(call).FaceToClipboard(Self(call));
  return Variant();
}

Variant BuiltInFace(Call& call) { return Variant(Self(call).Face().empty()); }
Variant SetBuiltInFace(Call& call) {
  if (call.Bool(0)) Self(call).DropFace();
  return Variant();
}

// A popup.

Variant EntriesOf(Call& call) {
  return ObjectOf(call, std::static_pointer_cast<MemoryCommandBarControls>(Self(call).Controls()));
}

Variant BarOfPopup(Call& call) {
  const auto entries = Self(call).Controls();
  for (const auto& bar : WorkbenchOf(call).vbe.commandBars.All()) {
    if (bar->Entries() == entries) return ObjectOf(call, bar);
  }
  return NotOffered(call);
}

constexpr Member kControlsMembers[] = {
    Get(L"Item", DISPID_VALUE, Item, Parameters(L"Index")),
    Method(L"Add", 0x60030000, Add,
           Parameters(L"?Type", L"?Id", L"?Parameter", L"?Before", L"?Temporary")),
    Get(L"Count", 0x60030001, CountOfControls),
    Get(L"Parent", 0x60030004, ParentOfControls),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateControls),
};

constexpr Parameters kBarAndBefore(L"?Bar", L"?Before");

constexpr Member kControlMembers[] = {
    GetPut(L"BeginGroup", 0x60040000, BeginGroup, SetBeginGroup),
    Get(L"BuiltIn", 0x60040002, BuiltIn),
    GetPut(L"Caption", 0x60040003, Caption, SetCaption),
    Method(L"Copy", 0x60040006, Copy, kBarAndBefore),
    Method(L"Delete", 0x60040007, Delete, Parameters(L"?Temporary")),
    GetPut(L"DescriptionText", 0x60040008, Detail<&ControlDetails::descriptionText>,
           SetText<&ControlDetails::descriptionText>),
    GetPut(L"Enabled", 0x6004000A, Detail<&ControlDetails::enabled>,
           SetTruth<&ControlDetails::enabled>),
    Method(L"Execute", 0x6004000C, Execute),
    Get(L"Height", 0x6004000D, Height),
    Get(L"Id", 0x60040013, Id),
    Get(L"Index", 0x60040014, Index),
    Method(L"Move", 0x60040016, Move, kBarAndBefore),
    Get(L"Left", 0x60040017, Left),
    GetPut(L"OLEUsage", 0x60040018, Detail<&ControlDetails::oleUsage>,
           SetNumber<&ControlDetails::oleUsage>),
    GetPut(L"OnAction", 0x6004001A, Detail<&ControlDetails::onAction>,
           SetText<&ControlDetails::onAction>),
    Get(L"Parent", 0x6004001C, Parent),
    GetPut(L"Parameter", 0x6004001D, Detail<&ControlDetails::parameter>,
           SetText<&ControlDetails::parameter>),
    GetPut(L"Priority", 0x6004001F, Detail<&ControlDetails::priority>,
           SetNumber<&ControlDetails::priority>),
    Method(L"Reset", 0x60040021, NotOffered),
    Method(L"SetFocus", 0x60040022, NotOffered),
    GetPut(L"Tag", 0x60040023, Tag, SetTag),
    GetPut(L"TooltipText", 0x60040025, TooltipText, SetText<&ControlDetails::tooltipText>),
    Get(L"Top", 0x60040027, Top),
    Get(L"Type", 0x60040028, Type),
    GetPut(L"Visible", 0x60040029, Detail<&ControlDetails::visible>,
           SetTruth<&ControlDetails::visible>),
    Get(L"Width", 0x6004002B, Width),
};

constexpr Member kButtonMembers[] = {
    GetPut(L"BuiltInFace", 0x60050000, BuiltInFace, SetBuiltInFace),
    Method(L"CopyFace", 0x60050002, CopyFace),
    GetPut(L"FaceId", 0x60050003, Detail<&ControlDetails::faceId>,
           SetNumber<&ControlDetails::faceId>),
    Method(L"PasteFace", 0x60050005, PasteFace),
    GetPut(L"ShortcutText", 0x60050006, Detail<&ControlDetails::shortcutText>,
           SetText<&ControlDetails::shortcutText>),
    GetPut(L"State", 0x60050008, Detail<&ControlDetails::state>, SetNumber<&ControlDetails::state>),
    GetPut(L"Style", 0x6005000A, Style, SetStyle),
};

constexpr Member kPopupMembers[] = {
    Get(L"CommandBar", 0x60050000, BarOfPopup),
    Get(L"Controls", 0x60050001, EntriesOf),
    GetPut(L"OLEMenuGroup", 0x60050002, Detail<&ControlDetails::oleMenuGroup>,
           SetNumber<&ControlDetails::oleMenuGroup>),
};

}  // namespace

constinit const InterfaceTable kCommandBarControls{"CommandBarControls", iid::kCommandBarControls,
                                                   kControlsMembers};
constinit const InterfaceTable kCommandBarControl{"CommandBarControl", iid::kCommandBarControl,
                                                  kControlMembers};
constinit const InterfaceTable kCommandBarButton{"CommandBarButton", iid::kCommandBarButton,
                                                 kButtonMembers, &kCommandBarControl};
constinit const InterfaceTable kCommandBarPopup{"CommandBarPopup", iid::kCommandBarPopup,
                                                kPopupMembers, &kCommandBarControl};

}  // namespace brimwork::bench
