#include "windows/object_model/com_command_bar.h"

#include "windows/object_model/com_command_bar_controls.h"

namespace brimwork::windows {

std::string ComCommandBar::Name() { return ToText(bar_.Get(L"Name")); }

bool ComCommandBar::Visible() { return ToTruth(bar_.Get(L"Visible")); }

void ComCommandBar::SetVisible(bool visible) { bar_.Put(L"Visible", Argument(visible)); }

int ComCommandBar::Position() { return ToNumber(bar_.Get(L"Position")); }

void ComCommandBar::SetPosition(int position) { bar_.Put(L"Position", Argument(position)); }

int ComCommandBar::RowIndex() { return ToNumber(bar_.Get(L"RowIndex")); }

void ComCommandBar::SetRowIndex(int row) { bar_.Put(L"RowIndex", Argument(row)); }

int ComCommandBar::Left() { return ToNumber(bar_.Get(L"Left")); }

void ComCommandBar::SetLeft(int left) { bar_.Put(L"Left", Argument(left)); }

int ComCommandBar::Top() { return ToNumber(bar_.Get(L"Top")); }

void ComCommandBar::SetTop(int top) { bar_.Put(L"Top", Argument(top)); }

std::shared_ptr<CommandBarControls> ComCommandBar::Controls() {
  return bar_.GetExisting<ComCommandBarControls>(L"Controls");
}

void ComCommandBar::Delete() { bar_.Call(L"Delete"); }

}  // namespace brimwork::windows
