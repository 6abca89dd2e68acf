// What fills the tool windows that have little of their own: the Immediate window, the empty lists
// of Locals and Watches, and the toolbox.
#pragma once

#include <memory>
#include <vector>

#include "bench/screen/text_view.h"
#include "bench/screen/tool_window.h"

namespace brimwork::bench {

/// The Immediate window's text.
class ImmediateContent : public ToolContent {
 public:
  ImmediateContent(const ScreenParts& parts, const ToolWindow& owner);

  HWND Handle() const override { return text_.Handle(); }
  void TakeInput() override { text_.TakeInput(); }
  void Refresh() override { text_.Refresh(); }

  TextView& Text() { return text_; }

 private:
  TextView text_;
};

struct ListColumn {
  const wchar_t* title;
  int share;  // of the list's width, in hundredths
};

/// A list with column headers and nothing to show while no program runs.
class ColumnList : public ToolContent {
 public:
  ColumnList(const ScreenParts& parts, const ToolWindow& owner, std::vector<ListColumn> columns);

  HWND Handle() const override { return list_; }
  void Arrange(const Bounds& room) override;

 private:
  std::vector<ListColumn> columns_;
  HWND list_;  // goes with its owner
};

std::vector<ListColumn> LocalsColumns();
std::vector<ListColumn> WatchColumns();

/// A palette of tools for designers.
class ToolboxContent : public ToolContent, public NativeWindow {
 public:
  ToolboxContent(const ScreenParts& parts, const ToolWindow& owner);

  HWND Handle() const override { return NativeWindow::Handle(); }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void Paint() const;
  void Choose(POINT place);

  ScreenParts parts_;
  std::shared_ptr<MemoryWindow> window_;
  std::size_t chosen_ = 0;
};

}  // namespace brimwork::bench
