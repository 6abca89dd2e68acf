// The environment's windows as plain data: which there are, which are shown, which has the focus.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/window.h"
#include "memory/key_target.h"
#include "memory/memory_keyboard.h"

namespace brimwork {

class MemoryWindows;

class MemoryWindow : public Window {
 public:
  MemoryWindow(MemoryWindows& all, std::string caption, int type, std::shared_ptr<KeyTarget> keys);

  std::uintptr_t Identity() override { return reinterpret_cast<std::uintptr_t>(this); }
  std::string Caption() override { return caption_; }
  int Type() override { return type_; }
  bool Visible() override { return visible_; }

  /// A window that is hidden gives the focus away.
  void SetVisible(bool visible) override;

  void SetFocus() override;
  void Close() override;

  void SetCaption(std::string caption);

  /// What keystrokes act on while the window has the focus; null for nothing.
  KeyTarget* Keys() { return keys_.get(); }

 private:
  MemoryWindows& all_;
  std::string caption_;
  int type_;
  bool visible_ = true;
  std::shared_ptr<KeyTarget> keys_;
};

class MemoryWindows {
 public:
  explicit MemoryWindows(MemoryKeyboard& keyboard) : keyboard_(keyboard) {}
  MemoryWindows(const MemoryWindows&) = delete;
  MemoryWindows& operator=(const MemoryWindows&) = delete;

  std::shared_ptr<MemoryWindow> Add(std::string caption, int type,
                                    std::shared_ptr<KeyTarget> keys = nullptr);

  const std::vector<std::shared_ptr<MemoryWindow>>& All() const { return windows_; }
  std::shared_ptr<MemoryWindow> OfCaption(std::string_view caption) const;

  /// The window with the focus; null when none has it.
  std::shared_ptr<MemoryWindow> Active() const { return active_; }

  /// Gives a window the focus; one that was closed raises an error.
  void Activate(MemoryWindow& window);

  /// Takes the focus from the window if it has it; no other gets it.
  void Deactivate(const MemoryWindow& window);

  void Remove(MemoryWindow& window);

  /// Called when a window has got the focus, and before one goes away, for as long as this lives.
  void OnActivate(std::function<void(MemoryWindow&)> listener);
  void OnRemove(std::function<void(MemoryWindow&)> listener);

  /// Goes up with each change: which windows there are, captions, what is shown, the focus.
  std::uint64_t Revision() const { return revision_; }
  void NoteChange() { ++revision_; }

 private:
  using Listeners = std::vector<std::function<void(MemoryWindow&)>>;

  std::shared_ptr<MemoryWindow> Shared(const MemoryWindow& window) const;

  MemoryKeyboard& keyboard_;
  std::vector<std::shared_ptr<MemoryWindow>> windows_;
  std::shared_ptr<MemoryWindow> active_;
  Listeners activationListeners_;
  Listeners removalListeners_;
  std::uint64_t revision_ = 0;
};

}  // namespace brimwork
