// The Properties window: what the selected component is, and its name, which can be edited.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/screen/native_window.h"
#include "bench/screen/subclass.h"
#include "bench/screen/tool_window.h"

namespace brimwork::bench {

/// The field in which a property's value is typed: Enter and leaving it take the value, Escape
/// leaves it as it was.
class ValueField : public SubclassedControl {
 public:
  ValueField(HWND parent, HFONT font, std::function<void(const std::string&)> take);

  void Open(const std::string& value, const RECT& area);
  bool IsOpen() const { return IsWindowVisible(Handle()) != 0; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void Leave(bool takesValue);

  std::function<void(const std::string&)> take_;
};

class PropertiesList : public ToolContent, public NativeWindow {
 public:
  PropertiesList(const ScreenParts& parts, const ToolWindow& owner);

  HWND Handle() const override { return NativeWindow::Handle(); }
  HWND FocusTarget() const override { return list_; }
  void Refresh() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  using Properties = std::vector<std::pair<std::string, std::string>>;

  Properties CurrentProperties() const;
  void Fill(const Properties& properties);
  void Arrange();
  void PaintTitle();
  LRESULT OnNote(const NMHDR& note, WPARAM wide, LPARAM longer);
  void EditName();
  void Rename(const std::string& name);

  ScreenParts parts_;
  std::shared_ptr<MemoryWindow> window_;
  HWND list_ = nullptr;  // goes with this window
  std::unique_ptr<ValueField> field_;
  Properties shown_;
  std::uint64_t revision_ = 0;
  bool isFilled_ = false;
};

}  // namespace brimwork::bench
