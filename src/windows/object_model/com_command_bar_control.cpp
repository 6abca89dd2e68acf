#include "windows/object_model/com_command_bar_control.h"

#include "windows/object_model/com_command_bar_controls.h"

namespace brimwork::windows {

// Buttons and popups use one number for different members, so those of either are asked for anew.
ComCommandBarControl::ComCommandBarControl(DispatchObject control)
    : control_(std::move(control)), ofItsType_(control_, std::make_shared<MemberNames>()) {}

int ComCommandBarControl::Type() { return ToNumber(control_.Get(L"Type")); }

int ComCommandBarControl::Id() { return ToNumber(control_.Get(L"Id")); }

int ComCommandBarControl::Index() { return ToNumber(control_.Get(L"Index")); }

std::string ComCommandBarControl::Caption() { return ToText(control_.Get(L"Caption")); }

void ComCommandBarControl::SetCaption(std::string_view caption) {
  control_.Put(L"Caption", Argument(caption));
}

std::string ComCommandBarControl::Tag() { return ToText(control_.Get(L"Tag")); }

void ComCommandBarControl::SetTag(std::string_view tag) { control_.Put(L"Tag", Argument(tag)); }

bool ComCommandBarControl::BeginGroup() { return ToTruth(control_.Get(L"BeginGroup")); }

void ComCommandBarControl::SetBeginGroup(bool begins) {
  control_.Put(L"BeginGroup", Argument(begins));
}

void ComCommandBarControl::Execute() { control_.Call(L"Execute"); }

void ComCommandBarControl::Delete() { control_.Call(L"Delete"); }

int ComCommandBarControl::Style() { return ToNumber(ofItsType_.Get(L"Style")); }

void ComCommandBarControl::SetStyle(int style) { ofItsType_.Put(L"Style", Argument(style)); }

void ComCommandBarControl::PasteFace() { ofItsType_.Call(L"PasteFace"); }

std::shared_ptr<CommandBarControls> ComCommandBarControl::Controls() {
  return ofItsType_.GetExisting<ComCommandBarControls>(L"Controls");
}

}  // namespace brimwork::windows
