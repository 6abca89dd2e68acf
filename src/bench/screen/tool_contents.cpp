#include "bench/screen/tool_contents.h"

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

#include "bench/screen/faults.h"
#include "bench/screen/glyphs.h"
#include "bench/screen/picture_painter.h"

namespace brimwork::bench {
namespace {

constexpr int kTool = 25;  // a tool's side in pixels
constexpr int kToolsAcross = 3;

RECT ToolArea(std::size_t tool) {
  const auto place = static_cast<int>(tool);
  const int left = 2 + place % kToolsAcross * kTool;
  const int top = 2 + place / kToolsAcross * kTool;
  return {left, top, left + kTool, top + kTool};
}

}  // namespace

ImmediateContent::ImmediateContent(const ScreenParts& parts, const ToolWindow& owner)
    : text_(parts, owner.Handle(), std::make_unique<PlainText>(parts.bench.windows.immediateText),
            owner.Model(), [parts](POINT place) {
              parts.host.OpenMenu(parts.bench.bars.immediateWindow->Entries(), place);
            }) {}

ColumnList::ColumnList(const ScreenParts& parts, const ToolWindow& owner,
                       std::vector<ListColumn> columns)
    : columns_(std::move(columns)),
      list_(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 0, 0,
                            owner.Handle(), nullptr, GetModuleHandleW(nullptr), nullptr)) {
  CheckSystem(list_ != nullptr, "a list could not be made");
  SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(parts.fonts.Plain()), FALSE);
  SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
  for (std::size_t place = 0; place < columns_.size(); ++place) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = const_cast<wchar_t*>(columns_[place].title);
    column.cx = 80;
    SendMessageW(list_, LVM_INSERTCOLUMNW, place, reinterpret_cast<LPARAM>(&column));
  }
}

void ColumnList::Arrange(const Bounds& room) {
  ToolContent::Arrange(room);
  for (std::size_t place = 0; place < columns_.size(); ++place) {
    const int width = room.width * columns_[place].share / 100;
    SendMessageW(list_, LVM_SETCOLUMNWIDTH, place, MAKELPARAM(width, 0));
  }
}

std::vector<ListColumn> LocalsColumns() {
  return {{L"Expression", 33}, {L"Value", 33}, {L"Type", 33}};
}

std::vector<ListColumn> WatchColumns() {
  return {{L"Expression", 32}, {L"Value", 22}, {L"Type", 20}, {L"Context", 25}};
}

ToolboxContent::ToolboxContent(const ScreenParts& parts, const ToolWindow& owner)
    : parts_(parts), window_(owner.Model()) {
  Create({.className = L"BrimworkBenchToolbox",
          .style = WS_CHILD | WS_VISIBLE,
          .parent = owner.Handle(),
          .bounds = {0, 0, 0, 0}});
}

LRESULT ToolboxContent::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_SETFOCUS:
      parts_.host.NoteFocus(window_);
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(Handle());
      Choose({GET_X_LPARAM(longer), GET_Y_LPARAM(longer)});
      return 0;
    default:
      return Default(message, wide, longer);
  }
}

void ToolboxContent::Paint() const {
  const Painting painting(Handle());
  const auto tools = ToolboxTools();
  for (std::size_t tool = 0; tool < tools.size(); ++tool) {
    RECT area = ToolArea(tool);
    if (tool == chosen_) DrawEdge(painting.Context(), &area, BDR_SUNKENOUTER, BF_RECT);
    constexpr int kInset = (kTool - Picture::kSize) / 2;
    DrawPicture(painting.Context(), Drawn(tools[tool].glyph), static_cast<int>(area.left) + kInset,
                static_cast<int>(area.top) + kInset, true);
  }
}

void ToolboxContent::Choose(POINT place) {
  for (std::size_t tool = 0; tool < ToolboxTools().size(); ++tool) {
    const RECT area = ToolArea(tool);
    if (!PtInRect(&area, place)) continue;
    chosen_ = tool;
    InvalidateRect(Handle(), nullptr, TRUE);
  }
}

}  // namespace brimwork::bench
