// The controls of command bars.
#include "bench/automation/collection.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"

namespace brimwork::bench {
namespace command_bar_control_interface {

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

Variant Add(Call& call) {
  NewControl control;
  control.type = static_cast<int>(call.LongOr(0, control_type::kButton));
  control.id = static_cast<int>(call.LongOr(1, control_id::kCustom));
  control.before = static_cast<int>(call.LongOr(3, 0));
  control.isTemporary = call.BoolOr(4, false);
  const auto added = std::static_pointer_cast<MemoryCommandBarControl>(Controls(call).Add(control));
  if (call.Has(2)) {
    ControlDetails details = added->Details();
    details.parameter = call.Text(2);
    added->SetDetails(details);
  }
  return ObjectOf(call, added);
}

/// The bar itself, or the bar of a popup on it, whose controls these are; null when it is neither.
std::shared_ptr<MemoryCommandBar> BarOf(const std::shared_ptr<MemoryCommandBar>& bar,
                                        const MemoryCommandBarControls& controls) {
  if (bar->Entries().get() == &controls) return bar;
  for (const auto& control : bar->Entries()->All()) {
    if (control->Menu() == nullptr) continue;
    if (auto found = BarOf(control->Menu(), controls)) return found;
  }
  return nullptr;
}

Variant OwnerOf(Call& call, const MemoryCommandBarControls& controls) {
  for (const auto& bar : WorkbenchOf(call).vbe.commandBars.All()) {
    if (const auto found = BarOf(bar, controls)) return ObjectOf(call, found);
  }
  return ObjectOf(call, std::shared_ptr<MemoryCommandBar>());
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
Variant BuiltIn(Call& call) { return Variant(Self(call).IsBuiltIn()); }

Variant Execute(Call& call) {
  Self(call).Execute();
  return Variant();
}

Variant Delete(Call& call) {
  Self(call).Delete();
  return Variant();
}

/// A caption as a tool tip shows it: without the marks of its access key and of a dialog.
std::string Plain(std::string_view caption) {
  std::string plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) break;
    plain += caption[at];
  }
  if (plain.ends_with("...")) plain.resize(plain.size() - 3);
  return plain;
}

// A tool tip that was not given is the caption.
Variant TooltipText(Call& call) {
  const std::string& text = Self(call).Details().toolTip;
  return Variant(text.empty() ? Plain(Self(call).Caption()) : text);
}

Bounds BoundsOf(Call& call) { return SurfaceOf(call).BoundsOf(Self(call)); }
Variant Left(Call& call) { return Variant(BoundsOf(call).left); }
Variant Top(Call& call) { return Variant(BoundsOf(call).top); }
Variant Width(Call& call) { return Variant(BoundsOf(call).width); }
Variant Height(Call& call) { return Variant(BoundsOf(call).height); }

Variant Parent(Call& call) {
  Self(call).Index();  // raises the error of a control that was deleted
  return OwnerOf(call, *Self(call).Neighbours());
}

/// The bar that Copy and Move name, else the control's own.
MemoryCommandBarControls& GoalOf(Call& call) {
  Self(call).Index();  // raises the error of a control that was deleted
  if (!call.Has(0)) return *Self(call).Neighbours();
  return *ArgumentOf<MemoryCommandBar>(call, 0, kCommandBar)->Entries();
}

Variant Copy(Call& call) {
  const int before = static_cast<int>(call.LongOr(1, 0));
  return ObjectOf(call, GoalOf(call).AddCopyOf(Self(call), before));
}

Variant Move(Call& call) {
  const auto& self = call.Shared<MemoryCommandBarControl>();
  GoalOf(call).TakeOver(self, static_cast<int>(call.LongOr(1, 0)));
  return ObjectOf(call, self);
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
  if (call.Bool(0)) Self(call).ResetFace();
  return Variant();
}

// A popup.

Variant EntriesOf(Call& call) {
  return ObjectOf(call, std::static_pointer_cast<MemoryCommandBarControls>(Self(call).Controls()));
}

Variant BarOfPopup(Call& call) {
  Self(call).Controls();  // raises the error of a popup that was deleted
  return ObjectOf(call, Self(call).Menu());
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
    GetPut(L"TooltipText", 0x60040025, TooltipText, SetText<&ControlDetails::toolTip>),
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

}  // namespace command_bar_control_interface

constinit const InterfaceTable kCommandBarControls{"CommandBarControls", iid::kCommandBarControls,
                                                   command_bar_control_interface::kControlsMembers};
constinit const InterfaceTable kCommandBarControl{"CommandBarControl", iid::kCommandBarControl,
                                                  command_bar_control_interface::kControlMembers};
constinit const InterfaceTable kCommandBarButton{"CommandBarButton", iid::kCommandBarButton,
                                                 command_bar_control_interface::kButtonMembers,
                                                 &kCommandBarControl};
constinit const InterfaceTable kCommandBarPopup{"CommandBarPopup", iid::kCommandBarPopup,
                                                command_bar_control_interface::kPopupMembers,
                                                &kCommandBarControl};

}  // namespace brimwork::bench
