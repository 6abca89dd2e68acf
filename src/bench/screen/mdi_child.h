// A window of the workspace: a code window or a designer.
#pragma once

#include <memory>
#include <string>

#include "bench/screen/glyphs.h"
#include "bench/screen/handles.h"
#include "bench/screen/native_window.h"
#include "bench/screen/screen_host.h"

namespace brimwork::bench {

class MdiChild : public NativeWindow {
 public:
  MdiChild(const ScreenParts& parts, std::shared_ptr<MemoryWindow> window);
  ~MdiChild() override { Close(); }

  const std::shared_ptr<MemoryWindow>& Model() const { return window_; }

  /// What gets the keyboard's focus when the window does.
  virtual HWND FocusTarget() const { return Handle(); }

  /// Brings what the user did into the workbench.
  virtual void TakeInput() {}

  /// Draws what changed in the workbench.
  virtual void Refresh();

  WindowState State() const;
  void SetState(WindowState state);

 protected:
  /// client: the MDI client that it becomes a child of.
  void CreateIn(HWND client, const wchar_t* className, int background, Glyph glyph);

  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;
  LRESULT Default(UINT message, WPARAM wide, LPARAM longer) override {
    return DefMDIChildProcW(Handle(), message, wide, longer);
  }

  const ScreenParts& Parts() const { return parts_; }

  /// Ends the native window through its client, which then activates another one. Every class calls
  /// it in its destructor, while it can still answer messages.
  void Close();

 private:
  ScreenParts parts_;
  std::shared_ptr<MemoryWindow> window_;
  IconHandle icon_;
  std::string title_;  // the one shown
};

}  // namespace brimwork::bench
